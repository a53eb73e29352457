// CFindReplaceDialog: the modeless dialogs for finding and replacing text.
#pragma once

#include "fx/commondialog.h"

// Make it with new and call Create; it deletes itself with its window. The parent is told of what the user
// does by the registered message FINDMSGSTRING, whose lParam GetNotifier turns into the dialog; the
// questions below are answered then.
class QFX_API CFindReplaceDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFindReplaceDialog)

public:
    CFindReplaceDialog();

    // The parameters of the dialog.
    FINDREPLACE m_fr;

    // bFindDialogOnly: TRUE to find, FALSE to replace. The parent must not be NULL unless there is a main
    // window.
    virtual BOOL Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith = NULL,
                        DWORD dwFlags = FR_DOWN, CWnd* pParentWnd = NULL);
    using CDialog::Create;

    static CFindReplaceDialog* PASCAL GetNotifier(LPARAM lParam);

    CString GetFindString() const { return m_fr.lpstrFindWhat; }
    CString GetReplaceString() const { return m_fr.lpstrReplaceWith; }
    // What the user asks for.
    BOOL FindNext() const { return (m_fr.Flags & FR_FINDNEXT) != 0; }
    BOOL ReplaceCurrent() const { return (m_fr.Flags & FR_REPLACE) != 0; }
    BOOL ReplaceAll() const { return (m_fr.Flags & FR_REPLACEALL) != 0; }
    BOOL IsTerminating() const { return (m_fr.Flags & FR_DIALOGTERM) != 0; }
    BOOL SearchDown() const { return (m_fr.Flags & FR_DOWN) != 0; }
    BOOL MatchCase() const { return (m_fr.Flags & FR_MATCHCASE) != 0; }
    BOOL MatchWholeWord() const { return (m_fr.Flags & FR_WHOLEWORD) != 0; }

protected:
    virtual void PostNcDestroy();

private:
    TCHAR m_findWhat[128];
    TCHAR m_replaceWith[128];
};
