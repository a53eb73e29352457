// Input through SendInput, which goes the way of real input, and through messages.
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

namespace quor::test
{

namespace
{

constexpr WORD ModifierKeys[] = {VK_SHIFT, VK_CONTROL, VK_MENU};

// Keys of the block between letters and numbers share scan codes with the number pad and are told apart by a
// flag.
constexpr WORD ExtendedKeys[] = {VK_INSERT, VK_DELETE, VK_HOME, VK_END,  VK_PRIOR, VK_NEXT, VK_LEFT,
                                 VK_RIGHT,  VK_UP,     VK_DOWN, VK_APPS, VK_LWIN,  VK_RWIN, VK_DIVIDE};

bool IsExtended(WORD virtualKey)
{
    return std::find(std::begin(ExtendedKeys), std::end(ExtendedKeys), virtualKey) != std::end(ExtendedKeys);
}

WORD ScanCode(WORD virtualKey)
{
    return static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
}

void Send(INPUT input)
{
    if (SendInput(1, &input, sizeof input) != 1)
        throw std::runtime_error("the system did not take the input");
}

void SendMouseInput(DWORD flags, int wheel = 0)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = static_cast<DWORD>(wheel);
    Send(input);
}

void SendKeyInput(WORD virtualKey, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = ScanCode(virtualKey);
    input.ki.dwFlags = flags | (IsExtended(virtualKey) ? KEYEVENTF_EXTENDEDKEY : 0);
    Send(input);
}

void SendCharacterInput(wchar_t character, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    Send(input);
}

bool IsAt(POINT screenPoint)
{
    POINT cursor{};
    return GetCursorPos(&cursor) && cursor.x == screenPoint.x && cursor.y == screenPoint.y;
}

void HoldModifiers(Modifiers modifiers, DWORD flags)
{
    for (int i = 0; i < 3; ++i)
        if (Has(modifiers, static_cast<Modifiers>(1 << i)))
            SendKeyInput(ModifierKeys[i], flags);
}

LPARAM KeyParameter(WORD virtualKey, bool released)
{
    DWORD bits = 1u | (static_cast<DWORD>(ScanCode(virtualKey)) << 16);
    if (IsExtended(virtualKey))
        bits |= 1u << 24;
    if (released)
        bits |= 3u << 30;
    return static_cast<LPARAM>(bits);
}

} // namespace

bool Activate(HWND window)
{
    const HWND top = GetAncestor(window, GA_ROOT);
    SetForegroundWindow(top);
    return PumpUntil([top] { return GetForegroundWindow() == top; });
}

void MoveMouse(HWND window, POINT point)
{
    ClientToScreen(window, &point);
    SetCursorPos(point.x, point.y);
    // Moving the cursor makes no input of its own on every system; a move by nothing does.
    SendMouseInput(MOUSEEVENTF_MOVE);
    PumpPending();
    if (!IsAt(point))
        throw std::runtime_error("the cursor is not at " + std::to_string(point.x) + "," +
                                 std::to_string(point.y));
}

void PressMouse(HWND window, POINT point, Button button)
{
    MoveMouse(window, point);
    SendMouseInput(button == Button::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
    PumpPending();
}

void ReleaseMouse(HWND window, POINT point, Button button)
{
    MoveMouse(window, point);
    SendMouseInput(button == Button::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
    PumpPending();
}

void Click(HWND window, POINT point, Modifiers modifiers)
{
    MoveMouse(window, point);
    HoldModifiers(modifiers, 0);
    SendMouseInput(MOUSEEVENTF_LEFTDOWN);
    SendMouseInput(MOUSEEVENTF_LEFTUP);
    // Released only after the click was handled: a handler may ask for the state of the key.
    PumpPending();
    HoldModifiers(modifiers, KEYEVENTF_KEYUP);
    PumpPending();
}

void DoubleClick(HWND window, POINT point)
{
    MoveMouse(window, point);
    for (int i = 0; i < 2; ++i)
    {
        SendMouseInput(MOUSEEVENTF_LEFTDOWN);
        SendMouseInput(MOUSEEVENTF_LEFTUP);
    }
    PumpPending();
}

void RightClick(HWND window, POINT point)
{
    MoveMouse(window, point);
    SendMouseInput(MOUSEEVENTF_RIGHTDOWN);
    SendMouseInput(MOUSEEVENTF_RIGHTUP);
    PumpPending();
}

void TurnWheel(HWND window, POINT point, int notches)
{
    MoveMouse(window, point);
    SendMouseInput(MOUSEEVENTF_WHEEL, notches * WHEEL_DELTA);
    PumpPending();
}

void TurnWheelBy(HWND window, POINT point, int amount, Wheel wheel, Modifiers modifiers)
{
    MoveMouse(window, point);
    HoldModifiers(modifiers, 0);
    PumpPending();
    SendMouseInput(wheel == Wheel::Vertical ? MOUSEEVENTF_WHEEL : MOUSEEVENTF_HWHEEL, amount);
    PumpPending();
    HoldModifiers(modifiers, KEYEVENTF_KEYUP);
    PumpPending();
}

void DragPath(HWND window, const std::vector<POINT>& path, Button button)
{
    PressMouse(window, path.front(), button);
    for (const POINT point : path)
        MoveMouse(window, point);
    ReleaseMouse(window, path.back(), button);
}

void KeyDown(WORD virtualKey)
{
    SendKeyInput(virtualKey, 0);
    PumpPending();
}

void KeyUp(WORD virtualKey)
{
    SendKeyInput(virtualKey, KEYEVENTF_KEYUP);
    PumpPending();
}

void KeyPress(WORD virtualKey, Modifiers modifiers)
{
    HoldModifiers(modifiers, 0);
    SendKeyInput(virtualKey, 0);
    SendKeyInput(virtualKey, KEYEVENTF_KEYUP);
    PumpPending();
    HoldModifiers(modifiers, KEYEVENTF_KEYUP);
    PumpPending();
}

void TypeText(std::wstring_view text)
{
    for (const wchar_t character : text)
    {
        SendCharacterInput(character, 0);
        SendCharacterInput(character, KEYEVENTF_KEYUP);
    }
    PumpPending();
}

void PostKey(HWND window, WORD virtualKey)
{
    PostMessageW(window, WM_KEYDOWN, virtualKey, KeyParameter(virtualKey, false));
    PostMessageW(window, WM_KEYUP, virtualKey, KeyParameter(virtualKey, true));
    PumpPending();
}

void PostCharacter(HWND window, wchar_t character)
{
    PostMessageW(window, WM_CHAR, character, 1);
    PumpPending();
}

LRESULT SendMouse(HWND window, UINT message, POINT point, WPARAM keys)
{
    return SendMessageW(window, message, keys, MAKELPARAM(point.x, point.y));
}

} // namespace quor::test
