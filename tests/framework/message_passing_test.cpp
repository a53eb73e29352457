// The handlers of CWnd that do nothing of their own: what reaches them goes on to the default procedure as it
// came.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor::test
{
namespace
{

// Handles every message with the handler of CWnd itself.
class PassingWindow : public CWnd
{
public:
    using Seen = std::tuple<UINT, WPARAM, LPARAM>;

    bool m_watches = false;
    std::vector<Seen> m_seen;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (!m_watches)
            return CWnd::DefWindowProc(message, wParam, lParam);
        m_seen.emplace_back(message, wParam, lParam);
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PassingWindow, CWnd)
    ON_WM_CLOSE()
    ON_WM_SIZING()
    ON_WM_MOVE()
    ON_WM_MOVING()
    ON_WM_NCPAINT()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_MOUSEHOVER()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEHWHEEL()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_XBUTTONDOWN()
    ON_WM_XBUTTONUP()
    ON_WM_XBUTTONDBLCLK()
    ON_WM_KEYUP()
    ON_WM_DEADCHAR()
    ON_WM_SYSKEYUP()
    ON_WM_SYSCHAR()
    ON_WM_SYSDEADCHAR()
    ON_WM_HOTKEY()
    ON_WM_CONTEXTMENU()
    ON_WM_INITMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_MENUCHAR()
    ON_WM_ENTERMENULOOP()
    ON_WM_EXITMENULOOP()
    ON_WM_ENTERIDLE()
    ON_WM_GETDLGCODE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_WM_NCRBUTTONDBLCLK()
    ON_WM_NCMBUTTONDOWN()
    ON_WM_NCMBUTTONUP()
    ON_WM_NCMBUTTONDBLCLK()
    ON_WM_ACTIVATEAPP()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_FONTCHANGE()
    ON_WM_TIMECHANGE()
    ON_WM_CHILDACTIVATE()
    ON_WM_QUERYDRAGICON()
    ON_WM_QUERYOPEN()
    ON_WM_QUERYNEWPALETTE()
    ON_WM_PALETTECHANGED()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
    ON_WM_STYLECHANGING()
    ON_WM_STYLECHANGED()
    ON_WM_DEVICECHANGE()
    ON_WM_HELPINFO()
    ON_WM_COPYDATA()
    ON_WM_DROPFILES()
    ON_WM_INPUTLANGCHANGE()
END_MESSAGE_MAP()

constexpr UINT PassedMessages[] = {
    WM_CLOSE,
    WM_SIZING,
    WM_MOVE,
    WM_MOVING,
    WM_NCPAINT,
    WM_ENABLE,
    WM_SHOWWINDOW,
    WM_MOUSEHOVER,
    WM_MOUSELEAVE,
    WM_MOUSEHWHEEL,
    WM_RBUTTONDOWN,
    WM_RBUTTONDBLCLK,
    WM_MBUTTONDOWN,
    WM_MBUTTONUP,
    WM_MBUTTONDBLCLK,
    WM_XBUTTONDOWN,
    WM_XBUTTONUP,
    WM_XBUTTONDBLCLK,
    WM_KEYUP,
    WM_DEADCHAR,
    WM_SYSKEYUP,
    WM_SYSCHAR,
    WM_SYSDEADCHAR,
    WM_HOTKEY,
    WM_CONTEXTMENU,
    WM_INITMENU,
    WM_INITMENUPOPUP,
    WM_UNINITMENUPOPUP,
    WM_MENUSELECT,
    WM_MENUCHAR,
    WM_ENTERMENULOOP,
    WM_EXITMENULOOP,
    WM_ENTERIDLE,
    WM_GETDLGCODE,
    WM_NCCALCSIZE,
    WM_NCMOUSEMOVE,
    WM_NCLBUTTONDOWN,
    WM_NCLBUTTONUP,
    WM_NCLBUTTONDBLCLK,
    WM_NCRBUTTONDOWN,
    WM_NCRBUTTONUP,
    WM_NCRBUTTONDBLCLK,
    WM_NCMBUTTONDOWN,
    WM_NCMBUTTONUP,
    WM_NCMBUTTONDBLCLK,
    WM_ACTIVATEAPP,
    WM_WINDOWPOSCHANGING,
    WM_WINDOWPOSCHANGED,
    WM_FONTCHANGE,
    WM_TIMECHANGE,
    WM_CHILDACTIVATE,
    WM_QUERYDRAGICON,
    WM_QUERYOPEN,
    WM_QUERYNEWPALETTE,
    WM_PALETTECHANGED,
    WM_QUERYENDSESSION,
    WM_ENDSESSION,
    WM_STYLECHANGING,
    WM_STYLECHANGED,
    WM_DEVICECHANGE,
    WM_HELP,
    WM_COPYDATA,
    WM_DROPFILES,
    WM_INPUTLANGCHANGE,
};

TEST(MessagePassing, AHandlerOfCWndPassesEachMessageOnOnce)
{
    ParentWindow parent;
    PassingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    window.m_watches = true;
    for (const UINT message : PassedMessages)
    {
        window.m_seen.clear();
        window.SendMessage(message, 5, 7);
        EXPECT_EQ(window.m_seen, (std::vector<PassingWindow::Seen>{{message, 5, 7}})) << message;
    }
    window.m_watches = false;
}

TEST(MessagePassing, AHandlerThatReturnsSomethingReturnsWhatTheDefaultProcedureDoes)
{
    ParentWindow parent;
    PassingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    window.m_watches = true;
    for (const UINT message : {WM_MENUCHAR, WM_GETDLGCODE, WM_QUERYDRAGICON, WM_QUERYOPEN, WM_QUERYNEWPALETTE,
                               WM_QUERYENDSESSION, WM_DEVICECHANGE, WM_HELP, WM_COPYDATA})
        EXPECT_EQ(window.SendMessage(message, 5, 7), 1) << message;
    window.m_watches = false;
}

} // namespace
} // namespace quor::test
