// What the handlers of the window messages get: every prototype, with its arguments unpacked from the
// message.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace quor::test
{
namespace
{

template <typename... TArguments> std::string Text(const char* format, TArguments... arguments)
{
    char buffer[256];
    std::snprintf(buffer, sizeof(buffer), format, arguments...);
    return buffer;
}

// Notes the latest handler call as text.
class DecodingWindow : public CWnd
{
public:
    std::string m_call;

    std::string NameOf(const CWnd* window) const
    {
        return window == this ? "self" : window == nullptr ? "none" : "other";
    }

protected:
    afx_msg void OnSize(UINT type, int cx, int cy) { m_call = Text("size %u %d %d", type, cx, cy); }
    afx_msg void OnMove(int x, int y) { m_call = Text("move %d %d", x, y); }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        m_call = Text("erase %d", dc != nullptr);
        return 7;
    }
    afx_msg void OnSetFocus(CWnd* old) { m_call = "setfocus " + NameOf(old); }
    afx_msg void OnKillFocus(CWnd* next) { m_call = "killfocus " + NameOf(next); }
    afx_msg void OnCaptureChanged(CWnd* next) { m_call = "capture " + NameOf(next); }
    afx_msg void OnEnable(BOOL enable) { m_call = Text("enable %d", enable); }
    afx_msg void OnShowWindow(BOOL show, UINT status) { m_call = Text("show %d %u", show, status); }
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message)
    {
        m_call = "cursor " + NameOf(window) + Text(" %u %u", hit, message);
        return 5;
    }
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hit, UINT message)
    {
        m_call = "activate " + NameOf(desktop) + Text(" %u %u", hit, message);
        return MA_NOACTIVATE;
    }
    afx_msg void OnMouseMove(UINT flags, CPoint point)
    {
        m_call = Text("move %u %ld %ld", flags, point.x, point.y);
    }
    afx_msg void OnLButtonDown(UINT flags, CPoint point)
    {
        m_call = Text("ldown %u %ld %ld", flags, point.x, point.y);
    }
    afx_msg void OnXButtonDown(UINT flags, UINT button, CPoint point)
    {
        m_call = Text("xdown %u %u %ld %ld", flags, button, point.x, point.y);
    }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point)
    {
        m_call = Text("wheel %u %d %ld %ld", flags, delta, point.x, point.y);
        return TRUE;
    }
    afx_msg void OnMouseHWheel(UINT flags, short delta, CPoint point)
    {
        m_call = Text("hwheel %u %d %ld %ld", flags, delta, point.x, point.y);
    }
    afx_msg void OnMouseLeave() { m_call = "leave"; }
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags)
    {
        m_call = Text("key %u %u %u", key, repeat, flags);
    }
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags)
    {
        m_call = Text("char %u %u %u", character, repeat, flags);
    }
    afx_msg void OnSysCommand(UINT id, LPARAM lParam) { m_call = Text("sys %u %lld", id, lParam); }
    afx_msg void OnTimer(UINT_PTR id) { m_call = Text("timer %llx", id); }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar)
    {
        m_call = Text("hscroll %u %u ", code, position) + NameOf(reinterpret_cast<CWnd*>(bar));
    }
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar)
    {
        m_call = Text("vscroll %u %u ", code, position) + NameOf(reinterpret_cast<CWnd*>(bar));
    }
    afx_msg void OnContextMenu(CWnd* window, CPoint point)
    {
        m_call = "context " + NameOf(window) + Text(" %ld %ld", point.x, point.y);
    }
    afx_msg void OnMenuSelect(UINT item, UINT flags, HMENU menu)
    {
        m_call = Text("select %u %u %d", item, flags, menu != nullptr);
    }
    afx_msg LRESULT OnMenuChar(UINT character, UINT flags, CMenu* menu)
    {
        m_call = Text("menuchar %u %u %d", character, flags, menu != nullptr);
        return MAKELRESULT(1, MNC_EXECUTE);
    }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        m_call = Text("hittest %ld %ld", point.x, point.y);
        return HTCAPTION;
    }
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized)
    {
        m_call = Text("activate %u ", state) + NameOf(other) + Text(" %d", minimized);
    }
    afx_msg void OnActivateApp(BOOL active, DWORD thread) { m_call = Text("app %d %lu", active, thread); }
    afx_msg BOOL OnNcActivate(BOOL active)
    {
        m_call = Text("ncactivate %d", active);
        return TRUE;
    }
    afx_msg BOOL OnDeviceChange(UINT event, DWORD_PTR data)
    {
        m_call = Text("device %u %llx", event, data);
        return BROADCAST_QUERY_DENY;
    }
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(static_cast<UINT_PTR>(0x1234)); }
    afx_msg BOOL OnQueryEndSession() { return 3; }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section)
    {
        m_call = Text("setting %u %ls", flags, section);
    }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system)
    {
        m_call = Text("popup %d %u %d", menu != nullptr, index, system);
    }
    afx_msg void OnStyleChanged(int type, LPSTYLESTRUCT style)
    {
        m_call = Text("style %d %lx", type, style->styleNew);
    }
    afx_msg LRESULT OnAny(WPARAM wParam, LPARAM lParam)
    {
        m_call = Text("any %llx %llx", wParam, lParam);
        return static_cast<LRESULT>(0x123456789AB);
    }
    DECLARE_MESSAGE_MAP()
};

const UINT registeredMessage = ::RegisterWindowMessage(L"QuorMessageDecodingTest");

BEGIN_MESSAGE_MAP(DecodingWindow, CWnd)
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CAPTURECHANGED()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_SETCURSOR()
    ON_WM_MOUSEACTIVATE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_XBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOUSEHWHEEL()
    ON_WM_MOUSELEAVE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_SYSCOMMAND()
    ON_WM_TIMER()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_CONTEXTMENU()
    ON_WM_MENUSELECT()
    ON_WM_MENUCHAR()
    ON_WM_GETDLGCODE()
    ON_WM_NCHITTEST()
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_NCACTIVATE()
    ON_WM_DEVICECHANGE()
    ON_WM_QUERYDRAGICON()
    ON_WM_QUERYENDSESSION()
    ON_WM_SETTINGCHANGE()
    ON_WM_INITMENUPOPUP()
    ON_WM_STYLECHANGED()
    ON_MESSAGE(WM_USER + 5, &DecodingWindow::OnAny)
    ON_REGISTERED_MESSAGE(registeredMessage, &DecodingWindow::OnAny)
END_MESSAGE_MAP()

// A negative coordinate and a large one.
constexpr LPARAM Coordinates = static_cast<LPARAM>(0x0007FFFD); // x -3, y 7
constexpr LPARAM KeyData = 0x40210003;                          // repeat 3, flags 0x4021

struct Decoded
{
    const char* name;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    const char* call;
    LRESULT result;
};

class MessageDecoding : public testing::TestWithParam<Decoded>
{
};

TEST_P(MessageDecoding, CallsTheHandlerWithTheUnpackedArguments)
{
    ParentWindow parent;
    DecodingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    window.m_call.clear();
    EXPECT_EQ(window.SendMessage(GetParam().message, GetParam().wParam, GetParam().lParam),
              GetParam().result);
    EXPECT_EQ(window.m_call, GetParam().call);
}

const STYLESTRUCT newStyle = {0, 0xABC};

INSTANTIATE_TEST_SUITE_P(
    Messages, MessageDecoding,
    testing::Values(
        Decoded{"Size", WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 5), "size 2 40000 5", 0},
        Decoded{"Move", WM_MOVE, 0, Coordinates, "move -3 7", 0},
        Decoded{"SetFocus", WM_SETFOCUS, 0, 0, "setfocus none", 0},
        Decoded{"KillFocus", WM_KILLFOCUS, 0, 0, "killfocus none", 0},
        Decoded{"CaptureChanged", WM_CAPTURECHANGED, 0, 0, "capture none", 0},
        Decoded{"Enable", WM_ENABLE, TRUE, 0, "enable 1", 0},
        Decoded{"ShowWindow", WM_SHOWWINDOW, TRUE, SW_PARENTOPENING, "show 1 3", 0},
        Decoded{"SetCursor", WM_SETCURSOR, 0, MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN), "cursor none 1 513", 5},
        Decoded{"MouseActivate", WM_MOUSEACTIVATE, 0, MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN),
                "activate none 1 513", MA_NOACTIVATE},
        Decoded{"MouseMove", WM_MOUSEMOVE, MK_SHIFT, Coordinates, "move 4 -3 7", 0},
        Decoded{"LButtonDown", WM_LBUTTONDOWN, MK_LBUTTON, Coordinates, "ldown 1 -3 7", 0},
        Decoded{"XButtonDown", WM_XBUTTONDOWN, MAKEWPARAM(MK_SHIFT, XBUTTON2), Coordinates, "xdown 4 2 -3 7",
                0},
        Decoded{"MouseWheel", WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), Coordinates,
                "wheel 8 -120 -3 7", 1},
        Decoded{"MouseHWheel", WM_MOUSEHWHEEL, MAKEWPARAM(0, 240), Coordinates, "hwheel 0 240 -3 7", 0},
        Decoded{"MouseLeave", WM_MOUSELEAVE, 0, 0, "leave", 0},
        Decoded{"KeyDown", WM_KEYDOWN, VK_LEFT, KeyData, "key 37 3 16417", 0},
        Decoded{"Char", WM_CHAR, 0x4E2D, KeyData, "char 20013 3 16417", 0},
        Decoded{"SysCommand", WM_SYSCOMMAND, SC_CLOSE, -1, "sys 61536 -1", 0},
        Decoded{"Timer", WM_TIMER, 0x123456789A, 0, "timer 123456789a", 0},
        Decoded{"HScroll", WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 60000), 0, "hscroll 5 60000 none", 0},
        Decoded{"VScroll", WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), 0, "vscroll 1 0 none", 0},
        Decoded{"ContextMenu", WM_CONTEXTMENU, 0, -1, "context none -1 -1", 0},
        Decoded{"MenuSelect", WM_MENUSELECT, MAKEWPARAM(9, 0x8080), 0, "select 9 32896 0", 0},
        Decoded{"MenuChar", WM_MENUCHAR, MAKEWPARAM('x', MF_POPUP), 0, "menuchar 120 16 0",
                static_cast<LRESULT>(MAKELRESULT(1, MNC_EXECUTE))},
        Decoded{"GetDlgCode", WM_GETDLGCODE, 0, 0, "", DLGC_WANTARROWS},
        Decoded{"NcHitTest", WM_NCHITTEST, 0, Coordinates, "hittest -3 7", HTCAPTION},
        Decoded{"Activate", WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0, "activate 2 none 1", 0},
        Decoded{"ActivateApp", WM_ACTIVATEAPP, TRUE, 77, "app 1 77", 0},
        Decoded{"NcActivate", WM_NCACTIVATE, TRUE, 0, "ncactivate 1", 1},
        Decoded{"DeviceChange", WM_DEVICECHANGE, 9, 0x11, "device 9 11", BROADCAST_QUERY_DENY},
        Decoded{"QueryDragIcon", WM_QUERYDRAGICON, 0, 0, "", 0x1234},
        Decoded{"QueryEndSession", WM_QUERYENDSESSION, 0, 0, "", 3},
        Decoded{"SettingChange", WM_SETTINGCHANGE, 8, reinterpret_cast<LPARAM>(L"intl"), "setting 8 intl", 0},
        Decoded{"StyleChanged", WM_STYLECHANGED, static_cast<WPARAM>(GWL_STYLE),
                reinterpret_cast<LPARAM>(&newStyle), "style -16 abc", 0},
        Decoded{"Message", WM_USER + 5, 0xFEDCBA9876543210, -1, "any fedcba9876543210 ffffffffffffffff",
                0x123456789AB},
        Decoded{"Registered", registeredMessage, 1, 2, "any 1 2", 0x123456789AB}),
    [](const auto& decoded) { return decoded.param.name; });

TEST(MessageDecodingOfHandles, WrapsWindowsDeviceContextsAndMenus)
{
    ParentWindow parent;
    DecodingWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    const WPARAM self = reinterpret_cast<WPARAM>(window.m_hWnd);

    window.SendMessage(WM_SETFOCUS, self);
    EXPECT_EQ(window.m_call, "setfocus self");
    window.SendMessage(WM_KILLFOCUS, reinterpret_cast<WPARAM>(parent.m_hWnd));
    EXPECT_EQ(window.m_call, "killfocus other");
    window.SendMessage(WM_CAPTURECHANGED, 0, static_cast<LPARAM>(self));
    EXPECT_EQ(window.m_call, "capture self");
    window.SendMessage(WM_VSCROLL, SB_LINEUP, static_cast<LPARAM>(self));
    EXPECT_EQ(window.m_call, "vscroll 0 0 self");

    const HDC dc = ::GetDC(window.m_hWnd);
    EXPECT_EQ(window.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)), 7);
    EXPECT_EQ(window.m_call, "erase 1");
    ::ReleaseDC(window.m_hWnd, dc);

    CMenu menu;
    menu.CreatePopupMenu();
    window.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.GetSafeHmenu()), MAKELPARAM(2, TRUE));
    EXPECT_EQ(window.m_call, "popup 1 2 1");
}

} // namespace
} // namespace quor::test
