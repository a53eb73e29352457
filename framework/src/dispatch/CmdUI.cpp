// CCmdUI: setting the state of a menu item or a control.
#include "afxwin.h"

CCmdUI::CCmdUI()
    : m_nID(0),
      m_nIndex(0),
      m_pMenu(nullptr),
      m_pSubMenu(nullptr),
      m_pOther(nullptr),
      m_nIndexMax(0),
      m_pParentMenu(nullptr),
      m_bEnableChanged(FALSE),
      m_bContinueRouting(FALSE)
{
}

void CCmdUI::Enable(BOOL bOn)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | static_cast<UINT>(bOn ? MF_ENABLED : MF_GRAYED));
    }
    else if (m_pOther != nullptr)
    {
        // A disabled control that keeps the focus would leave the dialog without keyboard.
        if (!bOn && CWnd::GetFocus() == m_pOther)
            m_pOther->GetParent()->SendMessage(WM_NEXTDLGCTL, 0, 0);
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu == nullptr)
            m_pMenu->CheckMenuItem(m_nIndex,
                                   MF_BYPOSITION | static_cast<UINT>(nCheck ? MF_CHECKED : MF_UNCHECKED));
    }
    else if (m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON))
    {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr)
        return;
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (!::GetMenuItemInfo(m_pMenu->GetSafeHmenu(), m_nIndex, TRUE, &info))
        return;
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfo(m_pMenu->GetSafeHmenu(), m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;
        MENUITEMINFO info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        ::SetMenuItemInfo(m_pMenu->GetSafeHmenu(), m_nIndex, TRUE, &info);
    }
    else if (m_pOther != nullptr)
    {
        CString current;
        m_pOther->GetWindowText(current);
        if (current != lpszText)
            m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    // Separators and system commands have no handlers to ask.
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;
    m_bEnableChanged = FALSE;
    const BOOL updated = pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged)
    {
        AFX_CMDHANDLERINFO info = {nullptr, nullptr};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return updated;
}
