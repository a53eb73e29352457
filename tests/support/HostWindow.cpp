// Creates the host window and turns messages into lines of its log.
#include "tests/support/HostWindow.h"
#include "tests/support/Pump.h"

#include <commctrl.h>

#include <stdexcept>

namespace quor::test
{

namespace
{

constexpr UINT FirstRegisteredMessage = 0xC000;

std::string Parameters(WPARAM wParam, LPARAM lParam)
{
    return " w=" + std::to_string(static_cast<INT_PTR>(wParam)) + " l=" + std::to_string(lParam);
}

std::string CommandLine(WPARAM wParam)
{
    return "command " + std::to_string(LOWORD(wParam)) + " code " + std::to_string(HIWORD(wParam));
}

std::string NotificationLine(const NMHDR& header)
{
    return "notify " + std::to_string(header.idFrom) + " code " +
           std::to_string(static_cast<int>(header.code));
}

} // namespace

HostWindow::HostWindow(int clientWidth, int clientHeight)
    : m_ignoredNotifications{NM_CUSTOMDRAW, TTN_GETDISPINFOA, TTN_GETDISPINFOW}
{
    constexpr DWORD Style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    RECT window{0, 0, clientWidth, clientHeight};
    AdjustWindowRect(&window, Style, FALSE);
    const CString windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), GetSysColorBrush(COLOR_WINDOW));
    if (!CreateEx(0, windowClass, _T("Test host"), Style, 0, 0, window.right - window.left,
                  window.bottom - window.top, nullptr, nullptr))
        throw std::runtime_error("cannot create the host window");
    ShowWindow(SW_SHOW);
    UpdateWindow();
    SetForegroundWindow();
    PumpPending();
    m_log.clear();
}

HostWindow::~HostWindow()
{
    DestroyWindow();
}

std::vector<std::string> HostWindow::TakeLog()
{
    return std::exchange(m_log, {});
}

void HostWindow::IgnoreNotification(UINT code)
{
    m_ignoredNotifications.insert(code);
}

LRESULT HostWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    Record(message, wParam, lParam);
    return CWnd::WindowProc(message, wParam, lParam);
}

void HostWindow::Record(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
    {
        m_log.push_back(CommandLine(wParam));
    }
    else if (message == WM_NOTIFY)
    {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (!m_ignoredNotifications.contains(header.code))
            m_log.push_back(NotificationLine(header));
    }
    else if (message >= FirstRegisteredMessage)
    {
        m_log.push_back("registered" + Parameters(wParam, lParam));
    }
    else if (message >= WM_USER)
    {
        m_log.push_back("user+" + std::to_string(message - WM_USER) + Parameters(wParam, lParam));
    }
}

} // namespace quor::test
