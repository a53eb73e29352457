// Follows the loops of the platform by hooks.
#include "tests/fuzz/Modal.h"
#include "tests/fuzz/PlatformEdit.h"
#include "tests/fuzz/Step.h"

#include <afxwin.h>

#include <cwchar>

namespace quor::fuzz
{

namespace
{

constexpr int TextOfMessageBox = 0xFFFF;
constexpr UINT SystemTimer = 0x118;
constexpr int MaxMessagesOfMenu = 60;
constexpr int MaxMessagesOfStep = 80;

int messagesOfMenu;

bool HasClass(HWND window, const wchar_t* name)
{
    wchar_t found[32] = L"";
    GetClassNameW(window, found, 32);
    return std::wcscmp(found, name) == 0;
}

void WalkThroughMenu(HWND menuWindow)
{
    messagesOfMenu = 0;
    const long down = Dice().Below(12);
    for (long i = 0; i < down; ++i)
        PostMessageW(menuWindow, WM_KEYDOWN, VK_DOWN, 1);
    PostMessageW(menuWindow, WM_KEYDOWN, static_cast<WPARAM>(Dice().OneIn(3) ? VK_ESCAPE : VK_RETURN), 1);
    PostMessageW(menuWindow, WM_KEYDOWN, VK_ESCAPE, 1);
}

void AnswerBox(HWND box)
{
    const int buttons[] = {IDOK, IDCANCEL, IDYES, IDNO};
    const int first = static_cast<int>(Dice().Below(4));
    for (int i = 0; i < 4; ++i)
    {
        const HWND button = GetDlgItem(box, buttons[(first + i) % 4]);
        if (button != nullptr && (GetWindowLongPtrW(button, GWL_STYLE) & WS_VISIBLE) != 0)
        {
            PostMessageW(button, BM_CLICK, 0, 0);
            return;
        }
    }
    PostMessageW(box, WM_CLOSE, 0, 0);
}

} // namespace

ModalEnder::ModalEnder()
    : training(WH_CBT, OnComputerBasedTraining),
      filter(WH_MSGFILTER, OnMessageFilter),
      queue(WH_GETMESSAGE, OnGetMessage)
{
}

LRESULT CALLBACK ModalEnder::OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && HasClass(window, L"#32768"))
        WalkThroughMenu(window);
    if (code == HCBT_CREATEWND && HasClass(window, L"Edit"))
        KeepTextInside(window);
    if (code == HCBT_ACTIVATE && HasClass(window, L"#32770") &&
        GetDlgItem(window, TextOfMessageBox) != nullptr)
        AnswerBox(window);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK ModalEnder::OnMessageFilter(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == MSGF_MENU && ++messagesOfMenu > MaxMessagesOfMenu)
        EndMenu();
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// What depends on time or on the real mouse is different in every run.
LRESULT CALLBACK ModalEnder::OnGetMessage(int code, WPARAM wParam, LPARAM lParam)
{
    auto& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && (message.message == WM_TIMER || message.message == SystemTimer))
        message.message = WM_NULL;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void PostEndOfMouseLoop(HWND window, LPARAM point)
{
    if (Dice().OneIn(2))
        PostMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, point + Dice().Below(40));
    PostMessageW(window, WM_LBUTTONUP, 0, point);
    PostMessageW(window, WM_RBUTTONUP, 0, point);
}

void Pump()
{
    MSG message;
    for (int i = 0; i < MaxMessagesOfStep && PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); ++i)
        AfxPumpMessage();
}

} // namespace quor::fuzz
