// Who sees a notification, and in which order: parent, child, and the command targets of a route.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

constexpr UINT ChildId = 7;
constexpr UINT EatenCode = 1001;
constexpr UINT SharedCode = 1002;
constexpr UINT ParentCode = 1003;

// A control that gets its own notifications back.
class ReflectingChild : public CWnd
{
public:
    explicit ReflectingChild(Log& log) : m_log(log) {}
    HBRUSH m_brush = nullptr;

protected:
    afx_msg void OnEaten() { m_log.push_back("child eats command"); }
    afx_msg BOOL OnShared()
    {
        m_log.push_back("child shares command");
        return FALSE;
    }
    afx_msg void OnNotifyEaten(NMHDR*, LRESULT* result)
    {
        m_log.push_back("child eats notify");
        *result = 11;
    }
    afx_msg BOOL OnNotifyShared(NMHDR*, LRESULT*)
    {
        m_log.push_back("child shares notify");
        return FALSE;
    }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind)
    {
        m_log.push_back(dc != nullptr && kind == CTLCOLOR_EDIT ? "child colours edit" : "child colours");
        return m_brush;
    }
    afx_msg void HScroll(UINT code, UINT position)
    {
        m_log.push_back("child scrolls " + std::to_string(code) + " " + std::to_string(position));
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT draw)
    {
        m_log.push_back("child draws " + std::to_string(draw->itemID));
    }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT measure) { measure->itemHeight = 33; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT) { m_log.push_back("child deletes"); }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT) { return -1; }
    afx_msg int CharToItem(UINT key, UINT index) { return static_cast<int>(key + index); }
    afx_msg void ParentNotify(UINT message, LPARAM)
    {
        m_log.push_back("child told " + std::to_string(LOWORD(message)));
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
};

BEGIN_MESSAGE_MAP(ReflectingChild, CWnd)
    ON_CONTROL_REFLECT(EatenCode, &ReflectingChild::OnEaten)
    ON_CONTROL_REFLECT_EX(SharedCode, &ReflectingChild::OnShared)
    ON_NOTIFY_REFLECT(EatenCode, &ReflectingChild::OnNotifyEaten)
    ON_NOTIFY_REFLECT_EX(SharedCode, &ReflectingChild::OnNotifyShared)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

class RoutingParent : public CWnd
{
public:
    using CWnd::ReflectLastMsg;

    explicit RoutingParent(Log& log) : m_log(log)
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, NULL, NULL);
    }
    ~RoutingParent() override { DestroyWindow(); }
    bool m_callsBase = true;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        m_log.push_back("parent OnCommand");
        return CWnd::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        m_log.push_back("parent OnNotify");
        return CWnd::OnNotify(wParam, lParam, result);
    }
    afx_msg void OnMapCommand() { m_log.push_back("parent map"); }
    afx_msg void OnMapRange(UINT id) { m_log.push_back("parent range " + std::to_string(id)); }
    afx_msg BOOL OnMapEx(UINT id)
    {
        m_log.push_back("parent ex " + std::to_string(id));
        return FALSE;
    }
    afx_msg void OnMapNotify(NMHDR* header, LRESULT* result)
    {
        m_log.push_back("parent notify " + std::to_string(header->idFrom));
        *result = 22;
    }
    afx_msg BOOL OnMapNotifyEx(UINT id, NMHDR*, LRESULT*)
    {
        m_log.push_back("parent notify ex " + std::to_string(id));
        return TRUE;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT kind)
    {
        m_log.push_back("parent colours");
        return m_callsBase ? CWnd::OnCtlColor(dc, window, kind)
                           : static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar)
    {
        m_log.push_back("parent scrolls");
        if (m_callsBase)
            CWnd::OnHScroll(code, position, bar);
    }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT draw)
    {
        m_log.push_back("parent draws");
        if (m_callsBase)
            CWnd::OnDrawItem(id, draw);
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
};

BEGIN_MESSAGE_MAP(RoutingParent, CWnd)
    ON_CONTROL(EatenCode, ChildId, &RoutingParent::OnMapCommand)
    ON_CONTROL(SharedCode, ChildId, &RoutingParent::OnMapCommand)
    ON_CONTROL(ParentCode, ChildId, &RoutingParent::OnMapCommand)
    ON_CONTROL_RANGE(ParentCode, 20, 22, &RoutingParent::OnMapRange)
    ON_COMMAND(ChildId, &RoutingParent::OnMapCommand)
    ON_COMMAND_RANGE(100, 110, &RoutingParent::OnMapRange)
    ON_COMMAND_EX(120, &RoutingParent::OnMapEx)
    ON_NOTIFY(EatenCode, ChildId, &RoutingParent::OnMapNotify)
    ON_NOTIFY(SharedCode, ChildId, &RoutingParent::OnMapNotify)
    ON_NOTIFY(ParentCode, ChildId, &RoutingParent::OnMapNotify)
    ON_NOTIFY_EX(NM_CLICK, ChildId, &RoutingParent::OnMapNotifyEx)
    ON_WM_CTLCOLOR()
    ON_WM_HSCROLL()
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

class MessageRouting : public testing::Test
{
protected:
    MessageRouting() : m_parent(m_log), m_child(m_log)
    {
        CreateChild(m_child, m_parent, ChildId);
        m_log.clear();
    }

    LRESULT Command(UINT code, UINT id = ChildId)
    {
        return m_parent.SendMessage(WM_COMMAND, MAKEWPARAM(id, code),
                                    reinterpret_cast<LPARAM>(m_child.m_hWnd));
    }
    LRESULT Notify(UINT code)
    {
        NMHDR header = {m_child.m_hWnd, 99, code};
        return m_parent.SendMessage(WM_NOTIFY, 99, reinterpret_cast<LPARAM>(&header));
    }
    LRESULT Color(HWND control)
    {
        const HDC dc = ::GetDC(control);
        const LRESULT brush = m_parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                                                   reinterpret_cast<LPARAM>(control));
        ::ReleaseDC(control, dc);
        return brush;
    }

    Log m_log;
    RoutingParent m_parent;
    ReflectingChild m_child;
};

TEST_F(MessageRouting, CommandGoesToTheOverrideThenToTheChildThenToTheMap)
{
    EXPECT_EQ(Command(EatenCode), 1);
    EXPECT_EQ(m_log, (Log{"parent OnCommand", "child eats command"}));
    m_log.clear();
    EXPECT_EQ(Command(SharedCode), 1);
    EXPECT_EQ(m_log, (Log{"parent OnCommand", "child shares command", "parent map"}));
    m_log.clear();
    EXPECT_EQ(Command(ParentCode), 1);
    EXPECT_EQ(m_log, (Log{"parent OnCommand", "parent map"}));
    m_log.clear();
    EXPECT_EQ(Command(1004), 0);
    EXPECT_EQ(m_log, Log{"parent OnCommand"});
}

TEST_F(MessageRouting, ClickedAndCommandAreTheSameEntry)
{
    EXPECT_EQ(Command(BN_CLICKED), 1);
    EXPECT_EQ(m_log, (Log{"parent OnCommand", "parent map"}));
    m_log.clear();
    EXPECT_EQ(m_parent.SendMessage(WM_COMMAND, MAKEWPARAM(ChildId, 1), 0), 1);
    EXPECT_EQ(m_log, (Log{"parent OnCommand", "parent map"}));
}

TEST_F(MessageRouting, RangesGetTheIdAndEndWhereTheyEnd)
{
    m_parent.SendMessage(WM_COMMAND, 100);
    m_parent.SendMessage(WM_COMMAND, 110);
    EXPECT_EQ(m_parent.SendMessage(WM_COMMAND, 111), 0);
    EXPECT_EQ(m_parent.SendMessage(WM_COMMAND, 99), 0);
    Command(ParentCode, 21);
    const Log calls = {"parent OnCommand", "parent range 100", "parent OnCommand", "parent range 110",
                       "parent OnCommand", "parent OnCommand", "parent OnCommand", "parent range 21"};
    EXPECT_EQ(m_log, calls);
}

TEST_F(MessageRouting, AnExtendedCommandHandlerKeepsTheRouteOpen)
{
    EXPECT_EQ(m_parent.SendMessage(WM_COMMAND, 120), 0);
    EXPECT_EQ(m_log, (Log{"parent OnCommand", "parent ex 120"}));
}

TEST_F(MessageRouting, NotifyGoesToTheChildFirst)
{
    EXPECT_EQ(Notify(EatenCode), 11);
    EXPECT_EQ(m_log, (Log{"parent OnNotify", "child eats notify"}));
    m_log.clear();
    EXPECT_EQ(Notify(SharedCode), 22);
    EXPECT_EQ(m_log, (Log{"parent OnNotify", "child shares notify", "parent notify 99"}));
    m_log.clear();
    EXPECT_EQ(Notify(ParentCode), 22);
    EXPECT_EQ(m_log, (Log{"parent OnNotify", "parent notify 99"}));
}

TEST_F(MessageRouting, NotifyIsMappedByTheControlsIdAndNegativeCodesMatch)
{
    EXPECT_EQ(Notify(NM_CLICK), 0);
    EXPECT_EQ(m_log, (Log{"parent OnNotify", "parent notify ex 7"}));
}

TEST_F(MessageRouting, ColoursGoToTheParentAndFromItsBaseToTheChild)
{
    m_child.m_brush = static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(Color(m_child.m_hWnd), reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH)));
    EXPECT_EQ(m_log, (Log{"parent colours", "child colours edit"}));
    m_log.clear();
    m_parent.m_callsBase = false;
    EXPECT_EQ(Color(m_child.m_hWnd), reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(m_log, Log{"parent colours"});
}

TEST_F(MessageRouting, AChildWithoutABrushLeavesTheColourToTheDefault)
{
    m_child.m_brush = nullptr;
    EXPECT_EQ(Color(m_child.m_hWnd), reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW)));
    EXPECT_EQ(m_log, (Log{"parent colours", "child colours edit"}));
}

TEST_F(MessageRouting, ScrollingGoesToTheParentAndFromItsBaseToTheChild)
{
    const LPARAM child = reinterpret_cast<LPARAM>(m_child.m_hWnd);
    m_parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 44), child);
    EXPECT_EQ(m_log, (Log{"parent scrolls", "child scrolls 4 44"}));
    m_log.clear();
    m_parent.m_callsBase = false;
    m_parent.SendMessage(WM_HSCROLL, SB_LINEUP, child);
    EXPECT_EQ(m_log, Log{"parent scrolls"});
}

TEST_F(MessageRouting, OwnerDrawingGoesToTheParentAndFromItsBaseToTheChild)
{
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_LISTBOX;
    draw.hwndItem = m_child.m_hWnd;
    draw.itemID = 5;
    m_parent.SendMessage(WM_DRAWITEM, ChildId, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(m_log, (Log{"parent draws", "child draws 5"}));
    m_log.clear();
    m_parent.m_callsBase = false;
    m_parent.SendMessage(WM_DRAWITEM, ChildId, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(m_log, Log{"parent draws"});
}

TEST_F(MessageRouting, TheOtherOwnerDrawMessagesReachTheChild)
{
    MEASUREITEMSTRUCT measure = {ODT_LISTBOX, ChildId, 0, 0, 0, 0};
    m_parent.SendMessage(WM_MEASUREITEM, ChildId, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemHeight, 33u);

    DELETEITEMSTRUCT removed = {ODT_LISTBOX, ChildId, 0, m_child.m_hWnd, 0};
    m_parent.SendMessage(WM_DELETEITEM, ChildId, reinterpret_cast<LPARAM>(&removed));
    EXPECT_EQ(m_log, Log{"child deletes"});

    COMPAREITEMSTRUCT compare = {};
    compare.CtlType = ODT_LISTBOX;
    compare.hwndItem = m_child.m_hWnd;
    EXPECT_EQ(
        static_cast<int>(m_parent.SendMessage(WM_COMPAREITEM, ChildId, reinterpret_cast<LPARAM>(&compare))),
        -1);

    EXPECT_EQ(
        m_parent.SendMessage(WM_CHARTOITEM, MAKEWPARAM('a', 3), reinterpret_cast<LPARAM>(m_child.m_hWnd)),
        'a' + 3);
}

TEST_F(MessageRouting, AChildHearsOfItsOwnCreationAndEndFromItsParent)
{
    m_parent.SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, ChildId),
                         reinterpret_cast<LPARAM>(m_child.m_hWnd));
    EXPECT_EQ(m_log, Log{"child told 2"});
    m_log.clear();
    m_parent.SendMessage(WM_PARENTNOTIFY, WM_LBUTTONDOWN, MAKELPARAM(1, 1));
    EXPECT_EQ(m_log, Log{});
}

TEST_F(MessageRouting, OnlyAttachedChildrenGetTheirMessagesBack)
{
    const HWND plain = m_child.Detach();
    CWnd::FromHandle(plain);
    NMHDR header = {plain, ChildId, EatenCode};
    EXPECT_EQ(m_parent.SendMessage(WM_NOTIFY, ChildId, reinterpret_cast<LPARAM>(&header)), 22);
    EXPECT_EQ(
        m_parent.SendMessage(WM_COMMAND, MAKEWPARAM(ChildId, EatenCode), reinterpret_cast<LPARAM>(plain)), 1);
    EXPECT_EQ(Color(plain), reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW)));
    const Log calls = {"parent OnNotify", "parent notify 7", "parent OnCommand", "parent map",
                       "parent colours"};
    EXPECT_EQ(m_log, calls);
    ::DestroyWindow(plain);
}

TEST_F(MessageRouting, ReflectLastMsgTellsWhetherTheChildTookIt)
{
    EXPECT_FALSE(RoutingParent::ReflectLastMsg(m_child.m_hWnd)) << "no message is being handled";
    EXPECT_FALSE(RoutingParent::ReflectLastMsg(NULL));
    EXPECT_EQ(m_log, Log{});
}

// A route of two targets: what the first does not handle goes to the second.
class SecondTarget : public CCmdTarget
{
public:
    explicit SecondTarget(Log& log) : m_log(log) {}

protected:
    afx_msg void OnThirty() { m_log.push_back("second target"); }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
};

BEGIN_MESSAGE_MAP(SecondTarget, CCmdTarget)
    ON_COMMAND(30, &SecondTarget::OnThirty)
    ON_COMMAND(120, &SecondTarget::OnThirty)
END_MESSAGE_MAP()

class RouteStart : public RoutingParent
{
public:
    RouteStart(Log& log, CCmdTarget& next) : RoutingParent(log), m_next(next) {}

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        return RoutingParent::OnCmdMsg(id, code, extra, info) || m_next.OnCmdMsg(id, code, extra, info);
    }

private:
    CCmdTarget& m_next;
};

TEST(CommandRoute, GoesOnToTheNextTarget)
{
    Log log;
    SecondTarget second(log);
    RouteStart first(log, second);
    log.clear();
    EXPECT_EQ(first.SendMessage(WM_COMMAND, 30), 1);
    EXPECT_EQ(log, (Log{"parent OnCommand", "second target"}));
    log.clear();
    EXPECT_EQ(first.SendMessage(WM_COMMAND, 120), 1);
    EXPECT_EQ(log, (Log{"parent OnCommand", "parent ex 120", "second target"}));
}

TEST(CommandRoute, HandlerInfoNamesTheTargetWithoutCallingIt)
{
    Log log;
    SecondTarget second(log);
    RouteStart first(log, second);
    log.clear();
    AFX_CMDHANDLERINFO info = {nullptr, nullptr};
    EXPECT_TRUE(first.OnCmdMsg(30, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &second);
    EXPECT_FALSE(first.OnCmdMsg(31, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(log, Log{});
}

} // namespace
} // namespace quor::test
