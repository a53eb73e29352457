// Commands and notifications with odd codes, timers, and the news of the system: colours, themes, resolution.
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Step.h"

#include <windows.h>
#include <commctrl.h>

namespace quor::fuzz
{

namespace
{

constexpr UINT DpiChanged = 0x02E0;
constexpr UINT DpiChangedBeforeParent = 0x02E2;
constexpr UINT DpiChangedAfterParent = 0x02E3;

void SendCommand(HWND target)
{
    constexpr WORD ids[] = {0, 1, 2, 100, 101, 102, 103, 104, 105, 1000, 0xFFFF};
    const WORD id = Dice().Pick(ids);
    const auto code =
        static_cast<WORD>(Dice().OneIn(3) ? Dice().Next() : static_cast<std::uint64_t>(Dice().Below(16)));
    const HWND child = Dice().OneIn(3) ? nullptr : GetDlgItem(target, id);
    Say("command %u code %u %s to %d", id, code, child != nullptr ? "of a child" : "of nobody",
        GetDlgCtrlID(target));
    SendMessageW(target, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(child));
}

// The records of all notifications begin alike; the rest is empty, and more than any of them is long.
void SendNotification(HWND target)
{
    union {
        NMHDR header;
        char bytes[1024];
    } record = {};
    const HWND child = GetWindow(target, GW_CHILD);
    record.header.hwndFrom = Dice().OneIn(2) ? child : nullptr;
    record.header.idFrom = static_cast<UINT_PTR>(child != nullptr ? GetDlgCtrlID(child) : 0);
    // Codes that no control sends.
    record.header.code =
        static_cast<UINT>(Dice().OneIn(2) ? Dice().Between(1, 500) : Dice().Between(-40000, -30000));
    Say("notification %d to %d", static_cast<int>(record.header.code), GetDlgCtrlID(target));
    SendMessageW(target, WM_NOTIFY, record.header.idFrom, reinterpret_cast<LPARAM>(&record));
}

void SendTimer(HWND target)
{
    const WPARAM id = static_cast<WPARAM>(Dice().Below(6));
    Say("timer %llu to %d", static_cast<unsigned long long>(id), GetDlgCtrlID(target));
    SendMessageW(target, WM_TIMER, id, 0);
}

void SendNews(HWND target)
{
    RECT place = {0, 0, Dice().Below(600), Dice().Below(400)};
    constexpr UINT messages[] = {WM_SYSCOLORCHANGE,     WM_THEMECHANGED,  WM_SETTINGCHANGE,
                                 WM_FONTCHANGE,         WM_DISPLAYCHANGE, DpiChangedBeforeParent,
                                 DpiChangedAfterParent, DpiChanged};
    const UINT message = Dice().Pick(messages);
    Say("%04x news to %d", message, GetDlgCtrlID(target));
    if (message == DpiChanged)
        SendMessageW(target, message, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&place));
    else
        SendMessageW(target, message, 0, 0);
}

void AskForColours(HWND host, HWND target)
{
    const HDC context = GetDC(target);
    const UINT message = static_cast<UINT>(Dice().Between(WM_CTLCOLORMSGBOX, WM_CTLCOLORSTATIC));
    const HWND child = GetWindow(target, GW_CHILD);
    Say("%04x colours of %d", message, GetDlgCtrlID(target));
    SendMessageW(target, message, reinterpret_cast<WPARAM>(context),
                 reinterpret_cast<LPARAM>(child != nullptr ? child : host));
    ReleaseDC(target, context);
}

void SendStyle(HWND target)
{
    const LONG_PTR flags = Dice().OneIn(2) ? WS_BORDER : WS_TABSTOP;
    Say("style of %d", GetDlgCtrlID(target));
    SetWindowLongPtrW(target, GWL_STYLE, GetWindowLongPtrW(target, GWL_STYLE) ^ flags);
    if (IsWindow(target))
        SetWindowPos(target, nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

} // namespace

void SendOdd(HWND host, HWND target)
{
    switch (Dice().Below(12))
    {
    case 0:
    case 1:
    case 2:
        return SendCommand(target);
    case 3:
        return SendNotification(target);
    case 4:
    case 5:
        return SendNews(target);
    case 6:
        return AskForColours(host, target);
    case 7:
        return SendStyle(target);
    case 8:
        Say("asks %d for its keys", GetDlgCtrlID(target));
        SendMessageW(target, WM_GETDLGCODE, 0, 0);
        return;
    default:
        return SendTimer(target);
    }
}

} // namespace quor::fuzz
