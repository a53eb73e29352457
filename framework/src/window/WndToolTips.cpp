// CWnd: tool tips. One tip control per thread shows the tool that OnToolHitTest names under the mouse.
#include "afxwin.h"
#include "threadstate/ThreadState.h"
#include "window/ToolTips.h"
#include "FrameworkAccess.h"

namespace
{

constexpr UINT FrameworkToolFlags = static_cast<UINT>(TTF_NOTBUTTON) | static_cast<UINT>(TTF_ALWAYSTIP);

bool IsMouseMessage(UINT message)
{
    const bool isClient = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    return isClient || (message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK);
}

bool IsMouseMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}

bool IsMouseButtonHeld()
{
    return ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0 || ::GetKeyState(VK_MBUTTON) < 0;
}

// The wheel messages and the non-client messages carry screen coordinates.
CPoint ScreenPointOf(const MSG& message)
{
    CPoint point(GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam));
    const bool isWheel = message.message == WM_MOUSEWHEEL || message.message == WM_MOUSEHWHEEL;
    if (message.message >= WM_MOUSEFIRST && !isWheel)
        ::ClientToScreen(message.hwnd, &point);
    return point;
}

ToolTipState& ToolTips()
{
    return CurrentThreadState().toolTip;
}

// The tip control, owned by the given top-level window: an owned window stays above its owner.
HWND ControlOwnedBy(HWND owner)
{
    ToolTipState& state = ToolTips();
    if (state.control != nullptr && ::IsWindow(state.control))
    {
        if (::GetWindow(state.control, GW_OWNER) == owner)
            return state.control;
        ::DestroyWindow(state.control);
    }
    INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    state.control = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_ALWAYSTIP,
                                     CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner,
                                     nullptr, AfxGetInstanceHandle(), nullptr);
    state.tool.cbSize = 0;
    return state.control;
}

// Takes the tool out of the control, which hides its tip.
void RemoveTool()
{
    ToolTipState& state = ToolTips();
    if (state.tool.cbSize != 0 && ::IsWindow(state.control))
    {
        ::SendMessage(state.control, TTM_ACTIVATE, FALSE, 0);
        ::SendMessage(state.control, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&state.tool));
    }
    state.tool.cbSize = 0;
}

void AddTool(HWND owner, const TOOLINFO& described)
{
    ToolTipState& state = ToolTips();
    RemoveTool();
    const HWND control = ControlOwnedBy(owner);
    if (control == nullptr)
        return;
    TOOLINFO tool = described;
    // These two are for the framework; the control would take them for flags of its own.
    tool.uFlags &= ~FrameworkToolFlags;
    ::SendMessage(control, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    ::SendMessage(control, TTM_ACTIVATE, TRUE, 0);
    ::SetWindowPos(control, HWND_TOP, 0, 0, 0, 0,
                   SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE | SWP_NOOWNERZORDER);
    state.tool = described;
    // The text belonged to the one who described the tool; the control has its own copy.
    state.tool.lpszText = nullptr;
}

// Passes the mouse message to the control as one of the tool's window, for that is how the control finds the
// tool.
void RelayToControl(const MSG& message, CPoint screenPoint)
{
    const ToolTipState& state = ToolTips();
    if (state.tool.cbSize == 0 || !::IsWindow(state.control))
        return;
    MSG relayed = message;
    const bool isWindow = (state.tool.uFlags & TTF_IDISHWND) != 0;
    relayed.hwnd = isWindow ? reinterpret_cast<HWND>(state.tool.uId) : state.tool.hwnd;
    if (relayed.message == WM_NCMOUSEMOVE)
        relayed.message = WM_MOUSEMOVE;
    CPoint point = screenPoint;
    ::ScreenToClient(relayed.hwnd, &point);
    relayed.lParam = MAKELPARAM(static_cast<WORD>(point.x), static_cast<WORD>(point.y));
    ::SendMessage(state.control, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void FreeToolText(const TOOLINFO& tool)
{
    if (tool.lpszText != LPSTR_TEXTCALLBACK && !IS_INTRESOURCE(tool.lpszText))
        free(tool.lpszText);
}

bool KeepsTipWithButtonHeld()
{
    const ToolTipState& state = ToolTips();
    return state.tool.cbSize != 0 && (state.tool.uFlags & static_cast<UINT>(TTF_NOTBUTTON)) != 0;
}

void ForgetHit()
{
    RemoveTool();
    ToolTips().window = nullptr;
    ToolTips().hit = -1;
}

} // namespace

void ForgetToolTips(const CWnd* window)
{
    if (ToolTips().window == window)
        ForgetHit();
}

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    if (bEnable)
    {
        m_nFlags |= WF_TOOLTIPS;
        return TRUE;
    }
    m_nFlags &= ~static_cast<UINT>(WF_TOOLTIPS);
    ForgetToolTips(this);
    return TRUE;
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    const ToolTipState& state = ToolTips();
    if (state.control != nullptr && ::IsWindow(state.control))
        ::SendMessage(state.control, TTM_POP, 0, 0);
}

namespace
{

// The visible child at the client point that has an id of its own; static texts usually have none.
HWND ChildAt(HWND window, CPoint clientPoint)
{
    CPoint screenPoint = clientPoint;
    ::ClientToScreen(window, &screenPoint);
    for (HWND child = ::GetTopWindow(window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CRect rect;
        ::GetWindowRect(child, &rect);
        if (LOWORD(::GetDlgCtrlID(child)) != 0xFFFF && ::IsWindowVisible(child) && rect.PtInRect(screenPoint))
            return child;
    }
    return nullptr;
}

// Whether the window is the innermost one over the message's window that has tool tips.
bool OwnsToolTipsOf(HWND hitWindow, const CWnd* window, UINT (*flagsOf)(const CWnd*))
{
    for (HWND next = hitWindow; next != nullptr; next = ::GetParent(next))
    {
        const CWnd* const object = CWnd::FromHandlePermanent(next);
        if (object != nullptr && (flagsOf(object) & WF_TOOLTIPS) != 0)
            return object == window;
    }
    return false;
}

} // namespace

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    const HWND child = ChildAt(m_hWnd, point);
    if (child == nullptr)
        return -1;
    if (pTI != nullptr)
    {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
        if (!(::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON))
            pTI->uFlags |= static_cast<UINT>(TTF_NOTBUTTON) | TTF_CENTERTIP;
    }
    return ::GetDlgCtrlID(child);
}

namespace
{

// Puts the tool that was hit into the control in place of the one before.
void ChangeHit(CWnd& window, INT_PTR hit, const TOOLINFO& tool)
{
    ForgetHit();
    const bool showsInactive = (tool.uFlags & static_cast<UINT>(TTF_ALWAYSTIP)) != 0;
    if (hit == -1 || !(showsInactive || FrameworkAccess::IsTopParentActive(window)))
        return;
    AddTool(window.GetParentOwner()->GetSafeHwnd(), tool);
    ToolTips().window = &window;
    ToolTips().hit = hit;
}

void FollowMouse(CWnd& window, const MSG& message, CPoint screenPoint)
{
    CPoint clientPoint = screenPoint;
    window.ScreenToClient(&clientPoint);
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    tool.lpszText = LPSTR_TEXTCALLBACK;
    const HWND handle = window.m_hWnd;
    const INT_PTR hit = window.OnToolHitTest(clientPoint, &tool);
    // Whoever gave the tip may have destroyed the window.
    const bool exists = CWnd::FromHandlePermanent(handle) == &window;
    if (exists && (ToolTips().window != &window || ToolTips().hit != hit))
        ChangeHit(window, hit, tool);
    FreeToolText(tool);
    if (exists && ToolTips().window == &window)
        RelayToControl(message, screenPoint);
}

void FilterMouseMessage(CWnd& window, const MSG& message)
{
    const CPoint screenPoint = ScreenPointOf(message);
    if (!IsMouseMove(message.message))
        RelayToControl(message, screenPoint);
    else if (IsMouseButtonHeld() && !KeepsTipWithButtonHeld())
        CWnd::CancelToolTips();
    else
        FollowMouse(window, message, screenPoint);
}

} // namespace

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    const UINT message = pMsg->message;
    if (message == WM_KEYDOWN || message == WM_SYSKEYDOWN)
    {
        if (m_nFlags & WF_TOOLTIPS)
            CancelToolTips(TRUE);
        return;
    }
    if (!IsMouseMessage(message))
        return;
    const auto flagsOf = [](const CWnd* window) { return window->m_nFlags; };
    if (OwnsToolTipsOf(pMsg->hwnd, this, flagsOf))
        FilterMouseMessage(*this, *pMsg);
    else
        ForgetToolTips(this);
}
