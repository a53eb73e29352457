// CFindReplaceDialog.
#include "commondialog/HookScope.h"

IMPLEMENT_DYNAMIC(CFindReplaceDialog, CCommonDialog)

CFindReplaceDialog::CFindReplaceDialog() : CCommonDialog(nullptr), m_fr(), m_findWhat(), m_replaceWith()
{
    m_fr.lStructSize = sizeof(m_fr);
    m_fr.Flags = FR_ENABLEHOOK;
    m_fr.lpfnHook = &CCommonDialog::HookProcedure;
    m_fr.lpstrFindWhat = m_findWhat;
    m_fr.wFindWhatLen = _countof(m_findWhat);
    m_fr.lpstrReplaceWith = m_replaceWith;
    m_fr.wReplaceWithLen = _countof(m_replaceWith);
    m_fr.lCustData = reinterpret_cast<LPARAM>(this);
}

BOOL CFindReplaceDialog::Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith,
                                DWORD dwFlags, CWnd* pParentWnd)
{
    ASSERT(m_hWnd == nullptr);
    m_pParentWnd = pParentWnd;
    m_fr.Flags |= dwFlags;
    m_fr.hwndOwner = pParentWnd != nullptr ? pParentWnd->GetSafeHwnd() : AfxGetMainWnd()->GetSafeHwnd();
    if (lpszFindWhat != nullptr)
        lstrcpyn(m_findWhat, lpszFindWhat, _countof(m_findWhat));
    if (lpszReplaceWith != nullptr)
        lstrcpyn(m_replaceWith, lpszReplaceWith, _countof(m_replaceWith));
    const HookScope scope(this);
    return (bFindDialogOnly ? ::FindText(&m_fr) : ::ReplaceText(&m_fr)) != nullptr;
}

CFindReplaceDialog* PASCAL CFindReplaceDialog::GetNotifier(LPARAM lParam)
{
    ENSURE_ARG(lParam != 0);
    return reinterpret_cast<CFindReplaceDialog*>(reinterpret_cast<const FINDREPLACE*>(lParam)->lCustData);
}

void CFindReplaceDialog::PostNcDestroy()
{
    delete this;
}
