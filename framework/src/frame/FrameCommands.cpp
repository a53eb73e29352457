// CFrameWnd: commands, menus, accelerators, title and tool tips.
#include "bars/BarDrag.h"
#include "bars/FrameMessages.h"

namespace
{

// Commands from here on are the system's.
constexpr UINT firstSystemCommand = 0xf000;

// The identifier whose handlers decide about an item: its own, or that of a popup's first command; 0 for
// none.
UINT CommandOfItem(CMenu* menu, UINT index, CMenu*& subMenu)
{
    subMenu = nullptr;
    const UINT id = menu->GetMenuItemID(static_cast<int>(index));
    if (id != static_cast<UINT>(-1))
        return id;
    subMenu = menu->GetSubMenu(static_cast<int>(index));
    const UINT first = subMenu != nullptr ? subMenu->GetMenuItemID(0) : 0;
    return first == static_cast<UINT>(-1) ? 0 : first;
}

} // namespace

BOOL CFrameWnd::IsFrameWnd() const
{
    return TRUE;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isEscape = pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE;
    if (isEscape && quorfx::BarDrag::Cancel(*this))
        return TRUE;
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    const HACCEL accelerators = GetDefaultAccelerator();
    return accelerators != nullptr && ::TranslateAccelerator(m_hWnd, accelerators, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    CView* view = GetActiveView();
    if (view != nullptr && view->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* application = AfxGetApp();
    return application != nullptr && application->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CFrameWnd::OnInitMenuPopup(CMenu* pMenu, UINT, BOOL bSysMenu)
{
    if (bSysMenu)
        return;
    CCmdUI state;
    state.m_pMenu = pMenu;
    state.m_nIndexMax = pMenu->GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        state.m_nID = CommandOfItem(pMenu, state.m_nIndex, state.m_pSubMenu);
        if (state.m_nID == 0)
            continue;
        const BOOL disable =
            state.m_pSubMenu == nullptr && m_bAutoMenuEnable && state.m_nID < firstSystemCommand;
        state.m_bEnableChanged = FALSE;
        state.DoUpdate(this, disable);
        // A handler may have inserted or removed items: go on behind the item that was updated.
        const UINT count = pMenu->GetMenuItemCount();
        if (count < state.m_nIndexMax)
            state.m_nIndex -= (std::min)(state.m_nIndex, state.m_nIndexMax - count);
        else
            state.m_nIndex += count - state.m_nIndexMax;
        state.m_nIndexMax = count;
    }
}

// The name of the active document, with the frame's number when the document has several.
CString CFrameWnd::DocumentTitle()
{
    CDocument* document = GetActiveDocument();
    if (document == nullptr || document->GetTitle().IsEmpty())
        return CString();
    CString title = document->GetTitle();
    if (m_nWindow > 0)
    {
        CString number;
        number.Format(_T(":%d"), m_nWindow);
        title += number;
    }
    return title;
}

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    const CString name = bAddToTitle ? DocumentTitle() : CString();
    CString title = m_strTitle;
    if (!name.IsEmpty())
    {
        const bool documentFirst = (GetStyle() & FWS_PREFIXTITLE) != 0;
        title = documentFirst ? name + _T(" - ") + m_strTitle : m_strTitle + _T(" - ") + name;
    }
    SetWindowText(title);
}

// The tip of a tool is the part behind the line break in the string of its command.
BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* pNMHDR, LRESULT* pResult)
{
    NMTTDISPINFO* tip = reinterpret_cast<NMTTDISPINFO*>(pNMHDR);
    UINT_PTR id = pNMHDR->idFrom;
    if (tip->uFlags & TTF_IDISHWND)
        id = static_cast<UINT_PTR>(::GetDlgCtrlID(reinterpret_cast<HWND>(id)));
    CString text, part;
    if (id == 0 || id > 0xffff || !text.LoadString(static_cast<UINT>(id)) ||
        !AfxExtractSubString(part, text, 1))
        return FALSE;
    ::lstrcpyn(tip->szText, part, static_cast<int>(sizeof tip->szText / sizeof tip->szText[0]));
    *pResult = 0;
    return TRUE;
}
