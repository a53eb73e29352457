// Wheel messages of a grid and of its editors, and how far they scroll.
#include "grid/extras/TGWheelScroll.h"

#include "grid/TGGrid.h"
#include "rules/WheelTurns.h"

namespace QuorUiCtr
{
namespace
{

bool IsWheel(UINT message)
{
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
}

unsigned WheelSetting(UINT action)
{
    constexpr UINT UsualSetting = 3;
    UINT setting = UsualSetting;
    ::SystemParametersInfo(action, 0, &setting, 0);
    return setting;
}

// Windows that are no combo boxes do not know the question.
BOOL CALLBACK FindOpenList(HWND window, LPARAM found)
{
    if (::SendMessage(window, CB_GETDROPPEDSTATE, 0, 0) != TRUE)
        return TRUE;
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
}

// As default processing does, which knows only one of the two messages on some systems.
LRESULT PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool isChild = (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0;
    return isChild ? ::SendMessage(::GetParent(window), message, wParam, lParam) : 0;
}

} // namespace

TGWheelScroll::TGWheelScroll() = default;

TGWheelScroll::TGWheelScroll(TGGrid& newGrid)
{
    AttachTo(newGrid);
}

TGWheelScroll::~TGWheelScroll()
{
    Detach();
}

void TGWheelScroll::OnDetach(TGGrid&)
{
    rowRest = 0;
    colRest = 0;
}

// ---- Messages

// Grid and headers get theirs later, as messages that have arrived.
bool TGWheelScroll::OnPreTranslate(MSG& message)
{
    const CWnd* const editor = IsWheel(message.message) ? GetEditorWindow() : nullptr;
    if (editor->GetSafeHwnd() == nullptr || IsListOpen() ||
        (message.hwnd != editor->m_hWnd && !::IsChild(editor->m_hWnd, message.hwnd)))
        return false;
    Turn(message.message, message.wParam, message.lParam);
    return true;
}

bool TGWheelScroll::OnMessage(CWnd&, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    if (!IsWheel(message))
        return false;
    result = IsListOpen() ? 0 : Turn(message, wParam, lParam);
    return true;
}

// The hooks of a commit may detach and delete this object.
LRESULT TGWheelScroll::Turn(UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool sideways = message == WM_MOUSEHWHEEL || (wParam & MK_SHIFT) != 0;
    if ((wParam & MK_CONTROL) != 0 || !CanScroll(sideways))
        return PassOn(GetGrid()->m_hWnd, message, wParam, lParam);
    const int delta = static_cast<short>(HIWORD(wParam));
    const int forward = message == WM_MOUSEHWHEEL ? delta : -delta;
    const int distance = TakeWheelTurn(forward, StepOf(sideways), sideways ? colRest : rowRest);
    if (distance != 0)
        ScrollBy(sideways ? distance : 0, sideways ? 0 : distance, openEditor == OpenEditor::Keep);
    return 0;
}

// ---- Distances

bool TGWheelScroll::CanScroll(bool sideways) const
{
    const CRect view = GetView();
    return sideways ? GetGrid()->GetRight() > view.Width() : GetGrid()->GetBottom() > view.Height();
}

int TGWheelScroll::StepOf(bool sideways) const
{
    const CRect view = GetView();
    const int rowHeight = static_cast<int>(GetGrid()->GetRowHeight());
    if (!sideways)
        return WheelStep(WheelSetting(SPI_GETWHEELSCROLLLINES), rowHeight, view.Height());
    return WheelStep(WheelSetting(SPI_GETWHEELSCROLLCHARS), charWidth > 0 ? charWidth : rowHeight,
                     view.Width());
}

// The editor itself, or a combo box in one of a host's own.
bool TGWheelScroll::IsListOpen() const
{
    const CWnd* const editor = GetEditorWindow();
    bool open = false;
    if (editor->GetSafeHwnd() != nullptr &&
        FindOpenList(editor->m_hWnd, reinterpret_cast<LPARAM>(&open)) != FALSE)
        ::EnumChildWindows(editor->m_hWnd, FindOpenList, reinterpret_cast<LPARAM>(&open));
    return open;
}

} // namespace QuorUiCtr
