// CInPlaceEdit: the editor of one cell of a CGridListCtrl.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcmn.h>

// An edit that the owner of a list creates as a child of the list, over the cell to be edited. It takes the
// list's font and the focus, selects its text, and grows while the user types. Enter, Esc, a click elsewhere
// and scrolling end the edit: the editor loses the focus and sends LVN_ENDLABELEDIT to the list's parent.
//
// The notification is a NMLVDISPINFO with the list's window and the editor's own control id in its header
// (the message itself carries the list's control id), the mask LVIF_TEXT, the row in iItem and the column
// index in iSubItem. pszText is the text and cchTextMax its length, or null and 0 after Esc. The result is
// ignored.
//
// The owner also destroys the editor: after the notification has returned, for it comes from inside a message
// of the editor. DestroyWindow on an editor that has the focus takes it away, so it sends the notification;
// deleting the object with its window does not.
class QUOR_EXT_CLASS CInPlaceEdit : public CEdit
{
public:
    // Edits the cell of row `item` and column index `subItem`; `initText` becomes the text of the window.
    CInPlaceEdit(int item, int subItem, CString initText);
    ~CInPlaceEdit() override;

    // Grows to the right and downwards when the text needs more room than there is, up to two pixels before
    // the edges of the list's client area; an edge that lay beyond is drawn back to there. Lines of an
    // ES_MULTILINE editor are broken. Shows the vertical scroll bar when the height does not suffice. The
    // client rectangle becomes the window's rectangle then: a border or a scroll bar costs its width.
    void CalculateSize();

    // Lets Enter, Esc and Delete, and every key while Ctrl is held or toggled, reach the editor before a
    // dialog sees them. In a multi-line editor Esc is swallowed.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    // Takes the font, the text and the focus, and selects all. Fails when that made somebody destroy the
    // window.
    afx_msg int OnCreate(LPCREATESTRUCT create);
    // Esc cancels, Enter finishes; both by giving the focus to the list.
    afx_msg void OnChar(UINT character, UINT repeatCount, UINT flags);
    // Sends LVN_ENDLABELEDIT.
    afx_msg void OnKillFocus(CWnd* newFocus);

    DECLARE_MESSAGE_MAP()

    // The row and the column index of the edited cell, zero-based, as the notification reports them. They are
    // not followed when rows or columns come and go meanwhile.
    int item;
    int subItem;
    // What the window shows at first; later texts are in the window only.
    CString initText;
    // Whether the user pressed Esc: the notification then carries no text.
    BOOL escPressed;

private:
    bool IsMultiLine() const;
    CSize MeasureText(const CRect& place, const CRect& listClient);
    // The character that made the text too long has scrolled it; shows as much of its start as there is room
    // for beside the caret.
    void ScrollBack();
    void SendEndOfEdit();
};
