// CMiniFrameWnd: creation, and what its own styles do.
#include "bars/BarAccess.h"

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMiniFrameWnd, CFrameWnd)
    ON_WM_NCHITTEST()
    ON_WM_NCACTIVATE()
    ON_WM_NCRBUTTONUP()
    ON_WM_SYSCOMMAND()
END_MESSAGE_MAP()

CMiniFrameWnd::CMiniFrameWnd() {}

CMiniFrameWnd::~CMiniFrameWnd() {}

BOOL CMiniFrameWnd::Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect,
                           CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, lpClassName, lpWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                             const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    m_strTitle = lpWindowName;
    return CWnd::CreateEx(dwExStyle, lpClassName, lpWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1)));
    if (cs.style & (MFS_THICKFRAME | MFS_4THICKFRAME))
        cs.style |= WS_THICKFRAME;
    // A window of its own that the task bar does not list.
    if (!(cs.style & WS_CHILD))
    {
        cs.style |= static_cast<LONG>(WS_POPUP);
        cs.dwExStyle |= WS_EX_TOOLWINDOW;
    }
    return CFrameWnd::PreCreateWindow(cs);
}

LRESULT CMiniFrameWnd::OnNcHitTest(CPoint point)
{
    const LRESULT place = CFrameWnd::OnNcHitTest(point);
    const DWORD style = GetStyle();
    if ((style & MFS_BLOCKSYSMENU) && place == HTSYSMENU)
        return HTCAPTION;
    const bool isEdge = place >= HTSIZEFIRST && place <= HTSIZELAST;
    if (isEdge && (style & MFS_MOVEFRAME))
        return HTCAPTION;
    if (isEdge && (style & MFS_4THICKFRAME))
        return HTBORDER;
    return place;
}

// Looks active as long as one of the windows of its owner is.
BOOL CMiniFrameWnd::OnNcActivate(BOOL bActive)
{
    if (!(GetStyle() & MFS_SYNCACTIVE))
        return CFrameWnd::OnNcActivate(bActive);
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    const HWND active = ::GetActiveWindow();
    const bool together = bActive || active == owner || active == m_hWnd;
    return static_cast<BOOL>(DefWindowProc(WM_NCACTIVATE, together, 0));
}

void CMiniFrameWnd::OnNcRButtonUp(UINT nHitTest, CPoint point)
{
    // The right button opens the system menu.
    if (!(GetStyle() & MFS_BLOCKSYSMENU))
        CFrameWnd::OnNcRButtonUp(nHitTest, point);
}

void CMiniFrameWnd::OnSysCommand(UINT nID, LPARAM lParam)
{
    const UINT command = nID & 0xfff0;
    if ((GetStyle() & MFS_BLOCKSYSMENU) && (command == SC_MOUSEMENU || command == SC_KEYMENU))
        return;
    CFrameWnd::OnSysCommand(nID, lParam);
}
