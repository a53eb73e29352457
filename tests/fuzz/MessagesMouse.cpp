// Mouse messages, lost captures included, and the scroll bars.
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Modal.h"
#include "tests/fuzz/Step.h"

#include <cwchar>

namespace quor::fuzz
{

namespace
{

constexpr UINT clientMessages[] = {WM_MOUSEMOVE,   WM_MOUSEMOVE,   WM_MOUSEMOVE,     WM_LBUTTONDOWN,
                                   WM_LBUTTONDOWN, WM_LBUTTONUP,   WM_LBUTTONUP,     WM_LBUTTONDBLCLK,
                                   WM_RBUTTONDOWN, WM_RBUTTONUP,   WM_RBUTTONDBLCLK, WM_MBUTTONDOWN,
                                   WM_MBUTTONUP,   WM_XBUTTONDOWN, WM_XBUTTONUP};

LPARAM Packed(POINT point)
{
    return MAKELPARAM(static_cast<WORD>(point.x), static_cast<WORD>(point.y));
}

// Trees, lists, their headers and scroll bars wait for the button in a loop of their own.
bool RunsMouseLoop(HWND window)
{
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    return std::wcsncmp(name, L"Sys", 3) == 0 || std::wcsncmp(name, L"Scroll", 6) == 0;
}

WPARAM AnyMouseKeys()
{
    constexpr WPARAM keys[] = {0, MK_LBUTTON, MK_LBUTTON, MK_CONTROL | MK_LBUTTON, MK_SHIFT, MK_RBUTTON};
    return Dice().Pick(keys);
}

void SendClientMouse(HWND target)
{
    const POINT point = AnyPoint(target);
    const UINT message = Dice().Pick(clientMessages);
    const WPARAM keys = AnyMouseKeys();
    Say("%04x mouse to %d: keys %llx at %ld,%ld", message, GetDlgCtrlID(target),
        static_cast<unsigned long long>(keys), point.x, point.y);
    const bool loops = RunsMouseLoop(target) && message != WM_MOUSEMOVE;
    const bool posts = Dice().OneIn(4);
    if (posts)
        PostMessageW(target, message, keys, Packed(point));
    if (loops)
        PostEndOfMouseLoop(target, Packed(point));
    if (!posts)
        SendMessageW(target, message, keys, Packed(point));
}

// A press, a few moves, and a release or a lost capture.
void SendDrag(HWND target)
{
    const POINT point = AnyPoint(target);
    Say("drag in %d from %ld,%ld", GetDlgCtrlID(target), point.x, point.y);
    if (RunsMouseLoop(target))
        PostEndOfMouseLoop(target, Packed(point));
    SendMessageW(target, WM_LBUTTONDOWN, MK_LBUTTON, Packed(point));
    for (long i = Dice().Between(1, 4); i > 0 && IsWindow(target); --i)
        SendMessageW(target, WM_MOUSEMOVE, MK_LBUTTON, Packed(AnyPoint(target)));
    if (!IsWindow(target))
        return;
    switch (Dice().Below(5))
    {
    case 0:
        ReleaseCapture();
        break;
    case 1:
        SendMessageW(target, WM_CANCELMODE, 0, 0);
        break;
    case 2:
        break;
    default:
        SendMessageW(target, WM_LBUTTONUP, 0, Packed(AnyPoint(target)));
    }
}

void SendWheel(HWND target)
{
    POINT point = AnyPoint(target);
    ClientToScreen(target, &point);
    constexpr int turns[] = {120, -120, 240, -360, 1, -1, 32767, -32768};
    const int turn = Dice().Pick(turns);
    Say("wheel %d to %d", turn, GetDlgCtrlID(target));
    SendMessageW(target, Dice().OneIn(5) ? WM_MOUSEHWHEEL : WM_MOUSEWHEEL,
                 MAKEWPARAM(0, static_cast<WORD>(turn)), Packed(point));
}

void ChangeCapture(HWND target)
{
    const long kind = Dice().Below(4);
    Say("capture, kind %ld, of %d", kind, GetDlgCtrlID(target));
    if (kind == 0)
        SetCapture(target);
    else if (kind == 1)
        SendMessageW(target, WM_CAPTURECHANGED, 0, 0);
    else
        ReleaseCapture();
}

void SendOtherMouse(HWND host, HWND target)
{
    POINT point = AnyPoint(target);
    ClientToScreen(target, &point);
    constexpr UINT messages[] = {WM_SETCURSOR,  WM_NCHITTEST,  WM_MOUSEACTIVATE, WM_CONTEXTMENU,
                                 WM_MOUSELEAVE, WM_MOUSEHOVER, WM_NCMOUSEMOVE,   WM_NCLBUTTONDOWN};
    const UINT message = Dice().Pick(messages);
    Say("%04x to %d", message, GetDlgCtrlID(target));
    switch (message)
    {
    case WM_SETCURSOR:
    case WM_MOUSEACTIVATE:
        SendMessageW(target, message, reinterpret_cast<WPARAM>(message == WM_SETCURSOR ? target : host),
                     MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        break;
    case WM_CONTEXTMENU:
        SendMessageW(target, message, reinterpret_cast<WPARAM>(target), Dice().OneIn(3) ? -1 : Packed(point));
        break;
    case WM_NCLBUTTONDOWN:
        // The scroll bar follows the mouse in a loop of its own.
        PostMessageW(target, WM_LBUTTONUP, 0, Packed(AnyPoint(target)));
        SendMessageW(target, message, static_cast<WPARAM>(Dice().OneIn(2) ? HTVSCROLL : HTHSCROLL),
                     Packed(point));
        break;
    default:
        SendMessageW(target, message, 0, Packed(point));
    }
}

} // namespace

POINT AnyPoint(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    switch (Dice().Below(12))
    {
    case 0:
        return {Dice().Between(-40, 10), Dice().Below(client.bottom)};
    case 1:
        return {Dice().Below(client.right), Dice().Between(-40, 10)};
    case 2:
        return {Dice().Between(client.right - 5, client.right + 60),
                Dice().Between(client.bottom - 5, client.bottom + 60)};
    case 3:
        return {Dice().Between(-32768, 32767), Dice().Between(-32768, 32767)};
    case 4:
        return {Dice().Below(60), Dice().Below(60)};
    default:
        return {Dice().Below(client.right), Dice().Below(client.bottom)};
    }
}

void SendMouse(HWND host, HWND target)
{
    switch (Dice().Below(24))
    {
    case 0:
        return SendWheel(target);
    case 1:
        return ChangeCapture(target);
    case 2:
        return SendOtherMouse(host, target);
    case 3:
    case 4:
    case 5:
    case 6:
        return SendDrag(target);
    default:
        return SendClientMouse(target);
    }
}

void SendScroll(HWND, HWND target)
{
    const UINT message = Dice().OneIn(3) ? WM_HSCROLL : WM_VSCROLL;
    const auto code = static_cast<WORD>(Dice().Below(10));
    const auto position =
        static_cast<WORD>(Dice().OneIn(4) ? Dice().Next() : static_cast<std::uint64_t>(Dice().Below(600)));
    Say("%04x scroll to %d: code %u position %u", message, GetDlgCtrlID(target), code, position);
    SendMessageW(target, message, MAKEWPARAM(code, position), 0);
}

} // namespace quor::fuzz
