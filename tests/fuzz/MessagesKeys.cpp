// Keys and characters, with and without the application's pre-translation, and what input methods send.
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Modal.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

namespace quor::fuzz
{

namespace
{

constexpr WPARAM usualKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,       VK_DOWN,     VK_HOME,   VK_END,    VK_PRIOR,
                                VK_NEXT, VK_TAB,   VK_RETURN,   VK_ESCAPE,   VK_DELETE, VK_INSERT, VK_SPACE,
                                VK_BACK, VK_F2,    VK_F4,       'A',         'C',       'V',       'X',
                                'Z',     VK_ADD,   VK_SUBTRACT, VK_MULTIPLY, VK_APPS};

// Alt with these opens a menu of the window or minimises it: they belong to the frame, not to a control.
bool IsForTheFrame(WPARAM key)
{
    return key == VK_SPACE || key == VK_F4 || key == VK_TAB || key == VK_ESCAPE || key == VK_SUBTRACT;
}

void SendKey(HWND target)
{
    const WPARAM key = Dice().OneIn(8) ? static_cast<WPARAM>(Dice().Below(256)) : Dice().Pick(usualKeys);
    const bool system = Dice().OneIn(12) && !IsForTheFrame(key);
    const UINT message = system ? WM_SYSKEYDOWN : Dice().OneIn(8) ? WM_KEYUP : WM_KEYDOWN;
    const bool posts = Dice().OneIn(2);
    const HWND focus = Dice().OneIn(3) ? GetFocus() : target;
    const HWND receiver = focus != nullptr ? focus : target;
    Say("%04x key %llx %s to %d", message, static_cast<unsigned long long>(key), posts ? "posted" : "sent",
        GetDlgCtrlID(receiver));
    if (posts)
        PostMessageW(receiver, message, key, 1);
    else
        SendMessageW(receiver, message, key, 1);
}

// Which keys are held is what this thread believes, not what the keyboard says.
void HoldKeys()
{
    BYTE keys[256] = {};
    const long held = Dice().Below(8);
    keys[VK_SHIFT] = held == 1 || held == 3 ? 0x80 : 0;
    keys[VK_CONTROL] = held == 2 || held == 3 ? 0x80 : 0;
    keys[VK_MENU] = held == 4 ? 0x80 : 0;
    Say("holds keys, kind %ld", held);
    SetKeyboardState(keys);
}

void SendCharacter(HWND target)
{
    const wchar_t character = AnyCharacter();
    constexpr UINT messages[] = {WM_CHAR, WM_CHAR, WM_CHAR, WM_CHAR, WM_SYSCHAR, WM_DEADCHAR, WM_IME_CHAR};
    UINT message = Dice().Pick(messages);
    if (message == WM_SYSCHAR && (character == L' ' || character == L'-'))
        message = WM_CHAR;
    Say("%04x character %04x to %d", message, character, GetDlgCtrlID(target));
    if (Dice().OneIn(4))
        PostMessageW(target, message, character, 1);
    else
        SendMessageW(target, message, character, 1);
}

void SendInputMethod(HWND target)
{
    constexpr UINT messages[] = {WM_IME_STARTCOMPOSITION, WM_IME_ENDCOMPOSITION, WM_IME_COMPOSITION,
                                 WM_IME_NOTIFY,           WM_IME_SETCONTEXT,     WM_IME_REQUEST,
                                 WM_INPUTLANGCHANGE};
    const UINT message = Dice().Pick(messages);
    const WPARAM code = static_cast<WPARAM>(Dice().Below(16));
    Say("%04x input method %llx to %d", message, static_cast<unsigned long long>(code), GetDlgCtrlID(target));
    // Requests are answered into a record; it is longer than any of them.
    alignas(void*) char record[1024] = {};
    SendMessageW(target, message, code, message == WM_IME_REQUEST ? reinterpret_cast<LPARAM>(record) : 0);
}

} // namespace

void SendKeys(HWND, HWND target)
{
    switch (Dice().Below(20))
    {
    case 0:
        return HoldKeys();
    case 1:
        return SendInputMethod(target);
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
        return SendCharacter(target);
    default:
        return SendKey(target);
    }
}

} // namespace quor::fuzz
