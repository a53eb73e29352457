// CMDIFrameWnd: the command route, menus, keys, title and the commands of the Window menu.
#include "frame/FrameMessages.h"

CFrameWnd* CMDIFrameWnd::GetActiveFrame()
{
    CMDIChildWnd* child = MDIGetActive();
    return child != NULL ? static_cast<CFrameWnd*>(child) : this;
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    CMDIChildWnd* child = MDIGetActive();
    if (child != NULL && child->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    // The active child's keys work wherever the focus is.
    CMDIChildWnd* child = MDIGetActive();
    if (child != NULL && !::IsChild(child->m_hWnd, pMsg->hwnd) && child->PreTranslateMessage(pMsg))
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
    if (bAddToTitle && child != NULL && !isMaximized)
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
    if (m_hMenuDefault == NULL)
        return;
    const bool hasMenu = child != NULL && child->m_hMenuShared != NULL;
    const HMENU menu = hasMenu ? child->m_hMenuShared : m_hMenuDefault;
    if (menu == ::GetMenu(m_hWnd))
        return;
    Tell(WM_MDISETMENU, reinterpret_cast<WPARAM>(menu), reinterpret_cast<LPARAM>(GetWindowMenuPopup(menu)));
    DrawMenuBar();
}

void CMDIFrameWnd::OnDestroy()
{
    // The system destroys the menu that the frame shows: that must be its own.
    ShowMenuOf(NULL);
    m_hMenuDefault = NULL;
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
    CView* view = child != NULL ? child->GetActiveView() : NULL;
    if (view == NULL)
        return;
    if (nState != WA_INACTIVE && !bMinimized)
        view->OnActivateView(TRUE, view, view);
    view->OnActivateFrame(nState, child);
}

void CMDIFrameWnd::OnWindowNew()
{
    CMDIChildWnd* child = MDIGetActive();
    CDocument* document = child != NULL ? child->GetActiveDocument() : NULL;
    CDocTemplate* docTemplate = document != NULL ? document->GetDocTemplate() : NULL;
    if (docTemplate == NULL)
    {
        TRACE(_T("Frame: there is no document for another window.\n"));
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
        return;
    }
    CFrameWnd* frame = docTemplate->CreateNewFrame(document, child);
    if (frame != NULL)
        docTemplate->InitialUpdateFrame(frame, document);
}

void CMDIFrameWnd::OnUpdateWindowNew(CCmdUI* pCmdUI)
{
    CMDIChildWnd* child = MDIGetActive();
    CDocument* document = child != NULL ? child->GetActiveDocument() : NULL;
    pCmdUI->Enable(document != NULL && document->GetDocTemplate() != NULL);
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
    pCmdUI->Enable(MDIGetActive() != NULL);
}
