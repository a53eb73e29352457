// CMDIFrameWnd: the client window and the child frames in it.
#include "bars/FrameMessages.h"

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_ACTIVATE()
    ON_COMMAND(ID_WINDOW_NEW, &CMDIFrameWnd::OnWindowNew)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_NEW, &CMDIFrameWnd::OnUpdateWindowNew)
    ON_COMMAND_EX(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
END_MESSAGE_MAP()

CMDIFrameWnd::CMDIFrameWnd() : m_hWndMDIClient(nullptr), m_hMenuDefault(nullptr) {}

CMDIFrameWnd::~CMDIFrameWnd()
{
    // The children must die while this is still their frame.
    DestroyWindow();
}

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = quorfx::RegisterFrameClass(quorfx::FrameIcon(AFX_IDI_STD_MDIFRAME));
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    // The system puts the name of a maximized child behind the program's; so does the frame for others.
    cs.style &= ~FWS_PREFIXTITLE;
    return TRUE;
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*)
{
    m_hMenuDefault = lpcs->hMenu;
    CMenu* windowMenu = nullptr;
    if (m_hMenuDefault != nullptr)
        windowMenu = CMenu::FromHandle(GetWindowMenuPopup(m_hMenuDefault));
    return CreateClient(lpcs, windowMenu);
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu)
{
    CLIENTCREATESTRUCT parameters = {};
    parameters.hWindowMenu = pWindowMenu->GetSafeHmenu();
    parameters.idFirstChild = AFX_IDM_FIRST_MDICHILD;
    // The scroll bars are the client window's.
    const DWORD scrollBars = static_cast<DWORD>(lpCreateStruct->style) & (WS_HSCROLL | WS_VSCROLL);
    ModifyStyle(scrollBars, 0, SWP_FRAMECHANGED);
    const DWORD style =
        WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | MDIS_ALLCHILDSTYLES | scrollBars;
    m_hWndMDIClient = ::CreateWindowEx(WS_EX_CLIENTEDGE, _T("MDICLIENT"), nullptr, style, 0, 0, 0, 0, m_hWnd,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                       AfxGetInstanceHandle(), &parameters);
    return m_hWndMDIClient != nullptr;
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar)
{
    for (int i = ::GetMenuItemCount(hMenuBar) - 1; i >= 0; --i)
    {
        const HMENU popup = ::GetSubMenu(hMenuBar, i);
        for (int j = popup != nullptr ? ::GetMenuItemCount(popup) - 1 : -1; j >= 0; --j)
        {
            const UINT id = ::GetMenuItemID(popup, j);
            if (id >= AFX_IDM_WINDOW_FIRST && id <= AFX_IDM_WINDOW_LAST)
                return popup;
        }
    }
    return nullptr;
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

LRESULT CMDIFrameWnd::Tell(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessage(m_hWndMDIClient, message, wParam, lParam);
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate)
{
    Tell(WM_MDIACTIVATE, reinterpret_cast<WPARAM>(pWndActivate->GetSafeHwnd()));
}

// A child that is still hidden is being created, and not the active one for programs.
CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const
{
    BOOL isMaximized = FALSE;
    const HWND window =
        reinterpret_cast<HWND>(Tell(WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&isMaximized)));
    if (pbMaximized != nullptr)
        *pbMaximized = isMaximized;
    CMDIChildWnd* child = DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(window));
    return child != nullptr && (child->GetStyle() & WS_VISIBLE) != 0 ? child : nullptr;
}

void CMDIFrameWnd::MDIIconArrange()
{
    Tell(WM_MDIICONARRANGE);
}

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd)
{
    Tell(WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(pWnd->GetSafeHwnd()));
}

void CMDIFrameWnd::MDINext()
{
    Tell(WM_MDINEXT);
}

void CMDIFrameWnd::MDIPrev()
{
    Tell(WM_MDINEXT, 0, 1);
}

void CMDIFrameWnd::MDIRestore(CWnd* pWnd)
{
    Tell(WM_MDIRESTORE, reinterpret_cast<WPARAM>(pWnd->GetSafeHwnd()));
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu)
{
    const LRESULT before = Tell(WM_MDISETMENU, reinterpret_cast<WPARAM>(pFrameMenu->GetSafeHmenu()),
                                reinterpret_cast<LPARAM>(pWindowMenu->GetSafeHmenu()));
    DrawMenuBar();
    return CMenu::FromHandle(reinterpret_cast<HMENU>(before));
}

void CMDIFrameWnd::MDITile()
{
    MDITile(MDITILE_VERTICAL);
}

void CMDIFrameWnd::MDITile(int nType)
{
    Tell(WM_MDITILE, static_cast<WPARAM>(nType));
}

void CMDIFrameWnd::MDICascade()
{
    MDICascade(0);
}

void CMDIFrameWnd::MDICascade(int nType)
{
    Tell(WM_MDICASCADE, static_cast<WPARAM>(nType));
}

CMDIChildWnd* CMDIFrameWnd::CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu, HACCEL hAccel)
{
    CObject* object = pClass->CreateObject();
    CMDIChildWnd* child = DYNAMIC_DOWNCAST(CMDIChildWnd, object);
    if (child == nullptr)
    {
        delete object;
        return nullptr;
    }
    child->SetHandles(hMenu, hAccel);
    // A frame that cannot be created deletes itself.
    if (!child->LoadFrame(nResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, this, nullptr))
        return nullptr;
    child->InitialUpdateFrame(nullptr, TRUE);
    return child;
}
