// A top-level window that writes down what its children tell it.
#pragma once

#include <afxwin.h>

#include <set>
#include <string>
#include <vector>

namespace quor::test
{

// Hosts the window under test. Records, in the order of arrival, as lines:
//   "command 7 code 768"            WM_COMMAND with the control's id and notification code
//   "notify 7 code -101"            WM_NOTIFY with the control's id and notification code
//   "user+3 w=1 l=2"                WM_USER+3 with its parameters
//   "registered w=1 l=2"            a registered message
// Does not answer any of them itself: handling goes on as usual.
class HostWindow : public CWnd
{
public:
    // Creates and shows the window with a client area of that size, at the top left of the screen, and makes
    // it the active one.
    explicit HostWindow(int clientWidth = 800, int clientHeight = 600);
    ~HostWindow() override;

    // What was recorded since the last call.
    std::vector<std::string> TakeLog();

    // Leaves notifications of that code out of the log. NM_CUSTOMDRAW and the requests of tool tips are from
    // the start.
    void IgnoreNotification(UINT code);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Record(UINT message, WPARAM wParam, LPARAM lParam);

    std::vector<std::string> m_log;
    std::set<UINT> m_ignoredNotifications;
};

} // namespace quor::test
