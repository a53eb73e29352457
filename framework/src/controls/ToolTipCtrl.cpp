// CToolTipCtrl: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{

// Names a tool of a window: the window itself for the identifier 0, otherwise a part of it. The size is the
// one that every version of the control accepts.
TOOLINFO ToolFor(const CWnd* window, UINT_PTR tool)
{
    TOOLINFO info = {};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    const HWND handle = window->GetSafeHwnd();
    if (tool != 0)
    {
        info.hwnd = handle;
        info.uId = tool;
        return info;
    }
    const HWND parent = ::GetParent(handle);
    info.hwnd = parent != nullptr ? parent : handle;
    info.uFlags = TTF_IDISHWND;
    info.uId = reinterpret_cast<UINT_PTR>(handle);
    return info;
}

void SetTextResource(TOOLINFO& info, UINT textId)
{
    info.hinst = AfxFindResourceHandle(MAKEINTRESOURCE((textId >> 4) + 1), RT_STRING);
    info.lpszText = MAKEINTRESOURCE(textId);
}

} // namespace

CToolTipCtrl::~CToolTipCtrl()
{
    DestroyWindow();
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(pParentWnd, dwStyle);
}

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info = ToolFor(pWnd, nIDTool);
    SetTextResource(info, nIDText);
    if (lpRectTool != nullptr)
        info.rect = *lpRectTool;
    return quorfx::Send<BOOL>(m_hWnd, TTM_ADDTOOL, 0, &info);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info = ToolFor(pWnd, nIDTool);
    info.lpszText = const_cast<LPTSTR>(lpszText);
    if (lpRectTool != nullptr)
        info.rect = *lpRectTool;
    return quorfx::Send<BOOL>(m_hWnd, TTM_ADDTOOL, 0, &info);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info = ToolFor(pWnd, nIDTool);
    quorfx::Send(m_hWnd, TTM_DELTOOL, 0, &info);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    TTHITTESTINFO info = {};
    info.hwnd = pWnd->GetSafeHwnd();
    info.pt = pt;
    info.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!quorfx::Send<BOOL>(m_hWnd, TTM_HITTEST, 0, &info))
        return FALSE;
    *lpToolInfo = info.ti;
    return TRUE;
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    TOOLINFO info = ToolFor(pWnd, nIDTool);
    info.rect = *lpRect;
    quorfx::Send(m_hWnd, TTM_NEWTOOLRECT, 0, &info);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    // TTM_GETTEXT knows no size for the buffer; texts longer than this cannot be shown.
    constexpr int longestTip = 1024;
    TOOLINFO info = ToolFor(pWnd, nIDTool);
    info.lpszText = str.GetBuffer(longestTip);
    info.lpszText[0] = 0;
    quorfx::Send(m_hWnd, TTM_GETTEXT, longestTip, &info);
    str.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info = ToolFor(pWnd, nIDTool);
    info.lpszText = const_cast<LPTSTR>(lpszText);
    quorfx::Send(m_hWnd, TTM_UPDATETIPTEXT, 0, &info);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info = ToolFor(pWnd, nIDTool);
    SetTextResource(info, nIDText);
    quorfx::Send(m_hWnd, TTM_UPDATETIPTEXT, 0, &info);
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const
{
    return CSize(quorfx::Send<DWORD>(m_hWnd, TTM_GETBUBBLESIZE, 0, lpToolInfo));
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const
{
    static_cast<TOOLINFO&>(ToolInfo) = ToolFor(pWnd, nIDTool);
    ToolInfo.szText[0] = 0;
    ToolInfo.lpszText = ToolInfo.szText;
    return quorfx::Send<BOOL>(m_hWnd, TTM_GETTOOLINFO, 0, static_cast<TOOLINFO*>(&ToolInfo));
}
