// Showing that a host works, holding input back, and the small message loop of a step.
#include "grid/extras/TGBusyOverlay.h"

#include "grid/extras/BusyPanel.h"
#include "grid/TGGrid.h"
#include "rules/Progress.h"

#include <utility>

namespace QuorUiCtr
{
namespace
{

// Messages from the first one to the second one.
struct MessageRange
{
    UINT first;
    UINT last;
};

// Of keys and mouse. Those of scroll bars are outside the client area.
constexpr MessageRange InputMessages[] = {
    {WM_KEYFIRST, WM_KEYLAST}, {WM_MOUSEFIRST, WM_MOUSELAST}, {WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK}};

bool IsInput(UINT message)
{
    for (const MessageRange& range : InputMessages)
        if (message >= range.first && message <= range.last)
            return true;
    return false;
}

// What users have set going, by menus and scroll bars for example.
bool IsUsersCommand(UINT message, LPARAM lParam)
{
    return message == WM_VSCROLL || message == WM_HSCROLL || message == WM_CONTEXTMENU ||
           (message == WM_COMMAND && lParam == 0);
}

// Draws around the children of the window, or around its siblings.
void AddStyle(HWND window, LONG bit, std::vector<std::pair<HWND, LONG>>& added)
{
    const LONG style = ::GetWindowLong(window, GWL_STYLE);
    if ((style & bit) != 0)
        return;
    ::SetWindowLong(window, GWL_STYLE, style | bit);
    added.emplace_back(window, bit);
}

} // namespace

TGBusyOverlay::TGBusyOverlay() = default;

TGBusyOverlay::TGBusyOverlay(TGGrid& newGrid)
{
    AttachTo(newGrid);
}

TGBusyOverlay::~TGBusyOverlay()
{
    Detach();
}

bool TGBusyOverlay::OnCancel()
{
    return true;
}

bool TGBusyOverlay::IsCalledFirst() const
{
    return true;
}

void TGBusyOverlay::OnDetach(TGGrid& oldGrid)
{
    Close(oldGrid);
}

// ---- Showing

bool TGBusyOverlay::Show(const wchar_t* text, long long newTotal)
{
    if (GetGrid() == nullptr || GetGrid()->GetSafeHwnd() == nullptr || panel != nullptr)
        return false;
    const std::weak_ptr<int> alive = life;
    GetGrid()->EndEditCell();
    if (alive.expired() || GetGrid() == nullptr || GetGrid()->GetSafeHwnd() == nullptr || panel != nullptr)
        return false;
    TGGrid& grid = *GetGrid();
    auto made = std::make_unique<BusyPanel>(*this);
    const bool isShown = made->Create(grid, CString(text), newTotal > 0);
    if (!isShown)
        return false;
    panel = made.release();
    total = newTotal;
    cancelled = false;
    lost = false;
    lastPump = 0;
    ClipWindows(grid);
    const HWND focus = ::GetFocus();
    focusBefore = nullptr;
    if (focus != nullptr && ::GetAncestor(focus, GA_ROOT) == ::GetAncestor(grid.m_hWnd, GA_ROOT))
    {
        focusBefore = focus;
        ::SetFocus(panel->GetCancelButton());
    }
    return true;
}

void TGBusyOverlay::Hide()
{
    if (GetGrid() != nullptr)
        Close(*GetGrid());
}

void TGBusyOverlay::Close(TGGrid& grid)
{
    if (panel == nullptr)
        return;
    const HWND focus = ::GetFocus();
    const bool givesBack = IsOwn(focus);
    BusyPanel* const closed = std::exchange(panel, nullptr);
    closed->Leave();
    UnclipWindows(grid);
    if (givesBack)
        ::SetFocus(::IsWindow(focusBefore) ? focusBefore : grid.GetSafeHwnd());
    closed->DestroyWindow();
}

void TGBusyOverlay::PanelGone()
{
    panel = nullptr;
    lost = true;
    clipped.clear();
}

void TGBusyOverlay::OnLaidOut()
{
    if (panel != nullptr)
        panel->Place(*GetGrid());
}

// The grid and its headers draw what they like in their place; the kept drawing context is made anew, because
// it knows what lies over it.
void TGBusyOverlay::ClipWindows(TGGrid& grid)
{
    clipped.clear();
    AddStyle(grid.m_hWnd, WS_CLIPCHILDREN, clipped);
    for (HWND child = ::GetWindow(grid.m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
        AddStyle(child, WS_CLIPSIBLINGS, clipped);
    grid.RecalcLayout(0);
}

void TGBusyOverlay::UnclipWindows(TGGrid& grid)
{
    for (const auto& [window, bit] : std::exchange(clipped, {}))
        if (::IsWindow(window))
            ::SetWindowLong(window, GWL_STYLE, ::GetWindowLong(window, GWL_STYLE) & ~bit);
    grid.RecalcLayout(0);
}

// ---- Progress

void TGBusyOverlay::SetText(const wchar_t* text)
{
    if (panel != nullptr)
        panel->ShowText(CString(text));
}

void TGBusyOverlay::SetDone(long long done)
{
    if (panel != nullptr)
        panel->ShowPercent(PercentOf(done, total));
}

bool TGBusyOverlay::Step(long long done)
{
    constexpr ULONGLONG Interval = 30;
    if (panel == nullptr)
        return !cancelled && !lost;
    const ULONGLONG now = ::GetTickCount64();
    if (now - lastPump < Interval && (total <= 0 || done < total))
        return !cancelled;
    lastPump = now;
    SetDone(done);
    return Pump();
}

void TGBusyOverlay::Cancel()
{
    if (panel == nullptr || cancelled || asking)
        return;
    const std::weak_ptr<int> alive = life;
    asking = true;
    const bool agreed = OnCancel();
    if (alive.expired())
        return;
    asking = false;
    cancelled = agreed;
    if (cancelled && panel != nullptr)
        panel->DisableCancel();
}

// ---- Messages

bool TGBusyOverlay::IsOwn(HWND window) const
{
    return window == panel->m_hWnd || ::IsChild(panel->m_hWnd, window);
}

// Enter presses the button that has the focus.
bool TGBusyOverlay::IsCancelKey(const MSG& message) const
{
    return message.message == WM_KEYDOWN &&
           (message.wParam == VK_ESCAPE ||
            (message.wParam == VK_RETURN && message.hwnd == panel->GetCancelButton()));
}

// Windows that do not paint when they are asked to must not hold the work up.
bool TGBusyOverlay::Pump()
{
    constexpr int MostPaints = 32;
    const std::weak_ptr<int> alive = life;
    panel->UpdateWindow();
    MSG message = {};
    while (!alive.expired() && panel != nullptr && !lost && TakeInput(message))
        HandleInput(message);
    for (int i = 0; i < MostPaints && ::PeekMessage(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE); ++i)
    {
        if (message.message == WM_QUIT)
        {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        ::DispatchMessage(&message);
    }
    return !alive.expired() && !cancelled && !lost;
}

// The next message of keys and mouse for the grid or a window in it.
bool TGBusyOverlay::TakeInput(MSG& message) const
{
    for (const MessageRange& range : InputMessages)
        if (::PeekMessage(&message, GetGrid()->m_hWnd, range.first, range.last, PM_REMOVE))
            return true;
    return false;
}

void TGBusyOverlay::HandleInput(MSG& message)
{
    if (message.message == WM_QUIT)
    {
        lost = true;
        ::PostQuitMessage(static_cast<int>(message.wParam));
    }
    else if (IsCancelKey(message))
        Cancel();
    else if (IsOwn(message.hwnd))
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}

bool TGBusyOverlay::OnPreTranslate(MSG& message)
{
    if (panel == nullptr || !IsInput(message.message))
        return false;
    HandleInput(message);
    return true;
}

bool TGBusyOverlay::OnMessage(CWnd&, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    if (panel == nullptr || !(IsInput(message) || IsUsersCommand(message, lParam)))
        return false;
    result = 0;
    if (message == WM_KEYDOWN && wParam == VK_ESCAPE)
        Cancel();
    return true;
}

} // namespace QuorUiCtr
