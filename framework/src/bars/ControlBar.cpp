// CControlBar: life, place along an edge, messages for the owner and idle updates.
#include "bars/BarDrag.h"
#include "bars/FrameBars.h"

using quorfx::BarAccess;

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
END_MESSAGE_MAP()

CControlBar::CControlBar()
    : m_bAutoDelete(FALSE),
      m_pInPlaceOwner(nullptr),
      m_dwBarStyle(0),
      m_dwDockStyle(0),
      m_nCount(0),
      m_rectBorders(6, 1, 6, 1),
      m_pDockSite(nullptr),
      m_nShownTool(-1),
      m_nDelayedShow(quorfx::delayNothing),
      m_nMruWidth(32767)
{
}

CControlBar::~CControlBar()
{
    DestroyWindow();
}

BOOL CControlBar::CreateBar(LPCTSTR lpszClassName, DWORD dwControlStyle, DWORD dwStyle, CWnd* pParentWnd,
                            UINT nID)
{
    m_dwBarStyle = dwStyle & CBRS_ALL;
    const DWORD windowStyle = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | dwControlStyle | WS_CHILD;
    return CWnd::CreateEx(0, lpszClassName, nullptr, windowStyle, CRect(0, 0, 0, 0), pParentWnd, nID);
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= WS_CLIPSIBLINGS;
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1)));
    return CWnd::PreCreateWindow(cs);
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    CWnd* const parent = GetParent();
    SetOwner(parent);
    if (m_dwBarStyle & CBRS_TOOLTIPS)
        EnableToolTips();
    if (CFrameWnd* const frame = DYNAMIC_DOWNCAST(CFrameWnd, parent))
    {
        m_pDockSite = frame;
        BarAccess::Bars(*frame).Add(this);
    }
    return 0;
}

void CControlBar::OnDestroy()
{
    if (m_pDockSite != nullptr)
        BarAccess::Bars(*m_pDockSite).Remove(this);
    m_pDockSite = nullptr;
    CWnd::OnDestroy();
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

void CControlBar::SetBorders(LPCRECT lpRect)
{
    m_rectBorders = *lpRect;
}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom)
{
    m_rectBorders.SetRect(cxLeft, cyTop, cxRight, cyBottom);
}

void CControlBar::SetBarStyle(DWORD dwStyle)
{
    const DWORD before = m_dwBarStyle;
    m_dwBarStyle = dwStyle & CBRS_ALL;
    if (m_hWnd == nullptr || m_dwBarStyle == before)
        return;
    EnableToolTips((m_dwBarStyle & CBRS_TOOLTIPS) != 0);
    // Borders and gripper may have come or gone.
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    Invalidate();
}

void CControlBar::EnableDocking(DWORD dwDockStyle)
{
    ASSERT((dwDockStyle & ~static_cast<DWORD>(CBRS_ALIGN_ANY | CBRS_FLOAT_MULTI)) == 0);
    m_dwDockStyle = dwDockStyle;
    if (m_pDockSite == nullptr)
        m_pDockSite = DYNAMIC_DOWNCAST(CFrameWnd, GetParent());
}

BOOL CControlBar::IsFloating() const
{
    return (m_dwBarStyle & CBRS_FLOATING) != 0;
}

CFrameWnd* CControlBar::GetDockingFrame() const
{
    return m_pDockSite != nullptr ? m_pDockSite : GetParentFrame();
}

BOOL CControlBar::IsVisible() const
{
    if (m_nDelayedShow == quorfx::delayShow)
        return TRUE;
    return m_nDelayedShow != quorfx::delayHide && quorfx::HasVisibleStyle(*this);
}

void CControlBar::SetInPlaceOwner(CWnd* pWnd)
{
    m_pInPlaceOwner = pWnd;
}

// The frame that commands go to: the owner, or the frame that the owner is in.
CFrameWnd* CControlBar::TargetFrame() const
{
    CFrameWnd* const owner = DYNAMIC_DOWNCAST(CFrameWnd, GetOwner());
    return owner != nullptr ? owner : GetParentFrame();
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM)
{
    const UINT delayed = m_nDelayedShow;
    m_nDelayedShow = quorfx::delayNothing;
    if (delayed != quorfx::delayNothing)
    {
        const bool shows = delayed == quorfx::delayShow;
        if (shows != quorfx::HasVisibleStyle(*this))
            ShowWindow(shows ? SW_SHOWNA : SW_HIDE);
    }
    CFrameWnd* const target = TargetFrame();
    if (target != nullptr && quorfx::HasVisibleStyle(*this))
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM)
{
    return OnIdleUpdateCmdUI(TRUE, 0);
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    return CSize(bStretch && bHorz ? 32767 : 0, bStretch && !bHorz ? 32767 : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD nMode)
{
    return CalcFixedLayout(nMode & LM_STRETCH, nMode & LM_HORZ);
}

namespace
{

// Takes a strip as thick as size off the edge that the style names; what is left of room is the bar's.
CRect TakeStrip(DWORD style, CSize size, CRect& room)
{
    CRect strip(room);
    if (style & CBRS_ORIENT_HORZ)
    {
        const LONG thickness = (std::min)(size.cy, static_cast<LONG>(room.Height()));
        strip.right = (std::min)(room.right, room.left + size.cx);
        if (style & CBRS_ALIGN_TOP)
            room.top = strip.bottom = strip.top + thickness;
        else
            room.bottom = strip.top = strip.bottom - thickness;
        return strip;
    }
    const LONG thickness = (std::min)(size.cx, static_cast<LONG>(room.Width()));
    strip.bottom = (std::min)(room.bottom, room.top + size.cy);
    if (style & CBRS_ALIGN_LEFT)
        room.left = strip.right = strip.left + thickness;
    else
        room.right = strip.left = strip.right - thickness;
    return strip;
}

DWORD LayoutMode(DWORD style, const AFX_SIZEPARENTPARAMS& layout)
{
    DWORD mode = layout.bStretch ? LM_STRETCH : 0;
    if (layout.hDWP != nullptr)
        mode |= LM_COMMIT;
    if (style & CBRS_ORIENT_HORZ)
        return mode | LM_HORZ | LM_HORZDOCK;
    return mode | LM_VERTDOCK;
}

void Extend(SIZE& total, bool horizontal, CSize size)
{
    if (horizontal)
    {
        total.cx = (std::max)(total.cx, size.cx);
        total.cy += size.cy;
    }
    else
    {
        total.cx += size.cx;
        total.cy = (std::max)(total.cy, size.cy);
    }
}

} // namespace

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    AFX_SIZEPARENTPARAMS& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    if (!(m_dwBarStyle & CBRS_ALIGN_ANY) || !IsVisible())
        return 0;
    CRect room(layout.rect);
    const CSize wanted = CalcDynamicLayout(-1, LayoutMode(m_dwBarStyle, layout));
    const CRect strip = TakeStrip(m_dwBarStyle, wanted, room);
    layout.rect = room;
    Extend(layout.sizeTotal, IsHorizontal() != FALSE, strip.Size());
    if (layout.hDWP != nullptr)
        layout.hDWP = ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, strip.left, strip.top, strip.Width(),
                                       strip.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
    return 0;
}

// Commands and notifications of what is in the bar are the owner's, unless the bar handles them.
LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND || message == WM_NOTIFY)
    {
        LRESULT result = 0;
        if (OnWndMsg(message, wParam, lParam, &result))
            return result;
        CWnd* const owner = GetOwner();
        if (owner != nullptr && owner != this)
            return owner->SendMessage(message, wParam, lParam);
        return DefWindowProc(message, wParam, lParam);
    }
    if (quorfx::BarDrag* const drag = quorfx::BarDrag::Of(*this))
    {
        if (drag->HandleMessage(message))
            return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CControlBar::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    ShowToolText(*pMsg);
    return FALSE;
}

// The text of a tool stands in the message line while the mouse is over it, or without CBRS_FLYBY while the
// button is held.
void CControlBar::ShowToolText(const MSG& message)
{
    INT_PTR tool = -1;
    switch (message.message)
    {
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
        if (!(m_dwBarStyle & CBRS_FLYBY) && !(message.wParam & MK_LBUTTON))
            break;
        [[fallthrough]];
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        CPoint point(message.pt);
        ScreenToClient(&point);
        tool = OnToolHitTest(point, nullptr);
        break;
    }
    case WM_MOUSELEAVE:
        break;
    default:
        return;
    }
    CFrameWnd* const frame = TargetFrame();
    if (tool == m_nShownTool || frame == nullptr)
        return;
    m_nShownTool = tool;
    if (tool == -1)
    {
        frame->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
        return;
    }
    frame->SendMessage(WM_SETMESSAGESTRING, static_cast<WPARAM>(tool));
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, message.hwnd, 0};
    ::TrackMouseEvent(&track);
}

void CControlBar::OnLButtonDown(UINT, CPoint point)
{
    if (OnToolHitTest(point, nullptr) == -1 && quorfx::BarDrag::Begin(*this, point))
        return;
    Default();
}

void CControlBar::OnLButtonDblClk(UINT, CPoint point)
{
    if (OnToolHitTest(point, nullptr) == -1 && quorfx::BarDrag::Toggle(*this))
        return;
    Default();
}

// A click on a floating bar leaves the frame active.
int CControlBar::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message)
{
    if (IsFloating() && nHitTest == HTCLIENT)
        return MA_NOACTIVATE;
    return CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
}
