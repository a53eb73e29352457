// Real mouse and keyboard input, as a user makes it, and input messages for one window.
//
// Points are in client coordinates of the window that is named. Every function handles messages until its
// input has arrived, so what the input causes has happened when it returns; where it opens a menu or another
// loop of its own, that is after the loop has ended.
#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace quor::test
{

enum class Button
{
    Left,
    Right
};

// Keys held down during a key press or a click; may be combined with |.
enum class Modifiers
{
    None = 0,
    Shift = 1,
    Control = 2,
    Alt = 4
};

constexpr Modifiers operator|(Modifiers left, Modifiers right)
{
    return static_cast<Modifiers>(static_cast<int>(left) | static_cast<int>(right));
}

constexpr bool Has(Modifiers set, Modifiers one)
{
    return (static_cast<int>(set) & static_cast<int>(one)) != 0;
}

// Makes the top-level window of the given one the foreground window; returns whether it is.
bool Activate(HWND window);

// Real mouse input. MoveMouse throws std::runtime_error when the cursor does not get to the point.
void MoveMouse(HWND window, POINT point);
void PressMouse(HWND window, POINT point, Button button = Button::Left);
void ReleaseMouse(HWND window, POINT point, Button button = Button::Left);
void Click(HWND window, POINT point, Modifiers modifiers = Modifiers::None);
void DoubleClick(HWND window, POINT point);
void RightClick(HWND window, POINT point);
// Positive notches turn away from the user (scroll up).
void TurnWheel(HWND window, POINT point, int notches);
// Turns by any amount, WHEEL_DELTA a notch, also the horizontal wheel, where positive amounts are to the
// right.
enum class Wheel
{
    Vertical,
    Horizontal
};
void TurnWheelBy(HWND window, POINT point, int amount, Wheel wheel = Wheel::Vertical,
                 Modifiers modifiers = Modifiers::None);
// Presses at the first point, moves through the others, releases at the last.
void DragPath(HWND window, const std::vector<POINT>& path, Button button = Button::Left);

// Real keyboard input, for the window that has the focus.
void KeyDown(WORD virtualKey);
void KeyUp(WORD virtualKey);
void KeyPress(WORD virtualKey, Modifiers modifiers = Modifiers::None);
void TypeText(std::wstring_view text);

// Input messages for one window, without cursor and focus: posted, so that pre-translation sees them.
void PostKey(HWND window, WORD virtualKey);
void PostCharacter(HWND window, wchar_t character);

// Sends one mouse message (WM_LBUTTONDOWN, WM_MOUSEMOVE ...); keys are the MK_ flags.
LRESULT SendMouse(HWND window, UINT message, POINT point, WPARAM keys = 0);

} // namespace quor::test
