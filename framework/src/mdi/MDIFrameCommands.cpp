// CMDIFrameWnd: the command route, menus, keys, title and the commands of the Window menu.
#include "bars/FrameMessages.h"

CFrameWnd* CMDIFrameWnd::GetActiveFrame()
{
    CMDIChildWnd* child = MDIGetActive();
    return child != nullptr ? static_cast<CFrameWnd*>(child) : this;
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    CMDIChildWnd* child = MDIGetActive();
    if (child != nullptr && child->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    // The active child's keys work wherever the focus is.
    CMDIChildWnd* child = MDIGetActive();
    if (child != nullptr && !::IsChild(child->m_hWnd, pMsg->hwnd) && child->PreTranslateMessage(pMsg))
        return TRUE;
    if (CFrameWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    return isKey && ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

void CMDIFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    BOOL isMaximized = FALSE;
    CMDIChildWnd* child = MDIGetActive(&isMaximized);
    CString title = m_strTitle;
    if (bAddToTitle && child != nullptr && !isMaximized)
    {
        const CString document = child->DocumentTitle();
        const CString name = document.IsEmpty() ? child->GetTitle() : document;
        if (!name.IsEmpty())
            title += _T(" - ") + name;
    }
    SetWindowText(title);
}

// Shows the child's menu, or the frame's own for NULL or a child without one.
void CMDIFrameWnd::ShowMenuOf(const CMDIChildWnd* child)
{
    if (m_hMenuDefault == nullptr)
        return;
    const bool hasMenu = child != nullptr && child->m_hMenuShared != nullptr;
    const HMENU menu = hasMenu ? child->m_hMenuShared : m_hMenuDefault;
    if (menu == ::GetMenu(m_hWnd))
        return;
    Tell(WM_MDISETMENU, reinterpret_cast<WPARAM>(menu), reinterpret_cast<LPARAM>(GetWindowMenuPopup(menu)));
    DrawMenuBar();
}

void CMDIFrameWnd::OnDestroy()
{
    // The system destroys the menu that the frame shows: that must be its own.
    ShowMenuOf(nullptr);
    m_hMenuDefault = nullptr;
    CFrameWnd::OnDestroy();
}

// The default processing would give the client window the place of the bars.
void CMDIFrameWnd::OnSize(UINT nType, int, int)
{
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CMDIFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CFrameWnd::OnActivate(nState, pWndOther, bMinimized);
    CMDIChildWnd* child = MDIGetActive();
    CView* view = child != nullptr ? child->GetActiveView() : nullptr;
    if (view == nullptr)
        return;
    if (nState != WA_INACTIVE && !bMinimized)
        view->OnActivateView(TRUE, view, view);
    view->OnActivateFrame(nState, child);
}

void CMDIFrameWnd::OnWindowNew()
{
    CMDIChildWnd* child = MDIGetActive();
    CDocument* document = child != nullptr ? child->GetActiveDocument() : nullptr;
    CDocTemplate* docTemplate = document != nullptr ? document->GetDocTemplate() : nullptr;
    if (docTemplate == nullptr)
    {
        TRACE(_T("Frame: there is no document for another window.\n"));
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
        return;
    }
    CFrameWnd* frame = docTemplate->CreateNewFrame(document, child);
    if (frame != nullptr)
        docTemplate->InitialUpdateFrame(frame, document);
}

void CMDIFrameWnd::OnUpdateWindowNew(CCmdUI* pCmdUI)
{
    CMDIChildWnd* child = MDIGetActive();
    CDocument* document = child != nullptr ? child->GetActiveDocument() : nullptr;
    pCmdUI->Enable(document != nullptr && document->GetDocTemplate() != nullptr);
}

BOOL CMDIFrameWnd::OnMDIWindowCmd(UINT nID)
{
    switch (nID)
    {
    case ID_WINDOW_ARRANGE:
        MDIIconArrange();
        return TRUE;
    case ID_WINDOW_CASCADE:
        MDICascade();
        return TRUE;
    case ID_WINDOW_TILE_HORZ:
        MDITile(MDITILE_HORIZONTAL);
        return TRUE;
    case ID_WINDOW_TILE_VERT:
        MDITile(MDITILE_VERTICAL);
        return TRUE;
    default:
        return FALSE;
    }
}

void CMDIFrameWnd::OnUpdateMDIWindowCmd(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(MDIGetActive() != nullptr);
}
