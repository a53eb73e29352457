// Sizes, fonts, visibility, focus, painting: what a host does to the window of a control.
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

#include <iterator>

namespace quor::fuzz
{

namespace
{

constexpr UINT CellEditor = 101;

long AnyLength()
{
    switch (Dice().Below(8))
    {
    case 0:
        return 0;
    case 1:
        return Dice().Below(30);
    case 2:
        return Dice().OneIn(6) ? Dice().Below(40000) : Dice().Below(3000);
    default:
        return Dice().Between(40, 260);
    }
}

void Place(HWND target)
{
    const long width = AnyLength();
    const long height = AnyLength();
    Say("size of %d: %ld x %ld", GetDlgCtrlID(target), width, height);
    if (Dice().OneIn(5))
        SendMessageW(target, WM_SIZE, static_cast<WPARAM>(Dice().Below(5)),
                     MAKELPARAM(static_cast<WORD>(width), static_cast<WORD>(height)));
    else
        SetWindowPos(target, nullptr, static_cast<int>(Dice().Between(-20, 50)),
                     static_cast<int>(Dice().Between(-20, 50)), width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Whether an editor is open shows by its window, so only the control itself hides that.
bool IsEditor(HWND target)
{
    return GetDlgCtrlID(target) == CellEditor;
}

void ShowOrEnable(HWND target)
{
    const long kind = IsEditor(target) ? 4 : Dice().Below(6);
    Say("shows or enables %d, kind %ld", GetDlgCtrlID(target), kind);
    switch (kind)
    {
    case 0:
        ShowWindow(target, SW_HIDE);
        break;
    case 1:
        EnableWindow(target, FALSE);
        break;
    case 2:
        ShowWindow(target, SW_SHOWNA);
        break;
    case 3:
        EnableWindow(target, TRUE);
        break;
    case 4:
        SendMessageW(target, WM_SHOWWINDOW, static_cast<WPARAM>(Dice().Below(2)), 0);
        break;
    default:
        SendMessageW(target, WM_ENABLE, static_cast<WPARAM>(Dice().Below(2)), 0);
    }
}

void ChangeFocus(HWND host, HWND target)
{
    const long kind = Dice().Below(5);
    Say("focus, kind %ld, of %d", kind, GetDlgCtrlID(target));
    switch (kind)
    {
    case 0:
        ::SetFocus(host);
        break;
    case 1:
        ::SetFocus(nullptr);
        break;
    case 2:
        SendMessageW(target, WM_KILLFOCUS, 0, 0);
        break;
    default:
        ::SetFocus(target);
    }
}

} // namespace

HFONT AnyFont()
{
    static HFONT fonts[6] = {};
    if (fonts[0] == nullptr)
    {
        constexpr int heights[] = {-12, -1, -40, 16, -200, -9};
        for (std::size_t i = 0; i < std::size(fonts); ++i)
            fonts[i] = CreateFontW(heights[i], 0, 0, 0, i == 3 ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                                   DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    }
    return Dice().OneIn(5) ? nullptr : Dice().Pick(fonts);
}

void ChangeState(HWND host, HWND target)
{
    switch (Dice().Below(10))
    {
    case 0:
    case 1:
        return ShowOrEnable(target);
    case 2:
    case 3:
        return ChangeFocus(host, target);
    case 4:
        Say("font of %d", GetDlgCtrlID(target));
        SendMessageW(target, WM_SETFONT, reinterpret_cast<WPARAM>(AnyFont()),
                     static_cast<LPARAM>(Dice().Below(2)));
        return;
    case 5:
        Say("cancels the mode of %d", GetDlgCtrlID(target));
        SendMessageW(target, WM_CANCELMODE, 0, 0);
        return;
    default:
        return Place(target);
    }
}

void SendPaint(HWND, HWND target)
{
    const long kind = Dice().Below(8);
    Say("painting, kind %ld, of %d", kind, GetDlgCtrlID(target));
    const HDC context = kind < 2 ? GetDC(target) : nullptr;
    switch (kind)
    {
    case 0:
        SendMessageW(target, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0);
        break;
    case 1:
        SendMessageW(target, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context), PRF_CLIENT | PRF_ERASEBKGND);
        break;
    case 2:
        SendMessageW(target, WM_SETREDRAW, static_cast<WPARAM>(Dice().Below(3) != 0), 0);
        break;
    case 3:
        SendMessageW(target, WM_PAINT, 0, 0);
        break;
    case 4:
        SendMessageW(target, WM_NCPAINT, 1, 0);
        break;
    default:
        InvalidateRect(target, nullptr, Dice().OneIn(2));
        UpdateWindow(target);
    }
    if (context != nullptr)
        ReleaseDC(target, context);
}

void SendText(HWND, HWND target)
{
    wchar_t buffer[40] = L"";
    const long kind = Dice().Below(6);
    const wchar_t* const text = AnyText();
    Say("text, kind %ld, of %d", kind, GetDlgCtrlID(target));
    switch (kind)
    {
    case 0:
    case 1:
        SendMessageW(target, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
        break;
    case 2:
        SendMessageW(target, WM_GETTEXT, static_cast<WPARAM>(Dice().Below(40)),
                     reinterpret_cast<LPARAM>(buffer));
        break;
    case 3:
        SendMessageW(target, WM_GETTEXTLENGTH, 0, 0);
        break;
    default: {
        constexpr UINT messages[] = {WM_COPY, WM_CUT, WM_PASTE, WM_CLEAR, WM_UNDO};
        SendMessageW(target, Dice().Pick(messages), 0, 0);
    }
    }
}

} // namespace quor::fuzz
