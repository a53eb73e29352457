// Members of control wrappers that are one message each: which message they send, with which parameters, and
// what they make of the answer.
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <afxdtctl.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace
{

using namespace quor::test;

// A window that writes down messages of controls and gives one answer to all.
class RecordingWindow
{
public:
    RecordingWindow()
    {
        const HINSTANCE module = ::GetModuleHandle(nullptr);
        WNDCLASS description = {};
        description.lpfnWndProc = &Procedure;
        description.hInstance = module;
        description.lpszClassName = L"QuorRecordingWindow";
        ::RegisterClass(&description);
        m_window = ::CreateWindow(description.lpszClassName, L"", WS_CHILD, 0, 0, 10, 10, m_host, nullptr,
                                  module, nullptr);
        ::SetWindowLongPtr(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~RecordingWindow() { ::DestroyWindow(m_window); }

    operator HWND() const { return m_window; }

    MSG last = {};
    int count = 0;
    LRESULT answer = 0;
    // Looks at structures while the message is being sent.
    std::function<void(const MSG&)> onMessage;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* const self = reinterpret_cast<RecordingWindow*>(::GetWindowLongPtr(window, GWLP_USERDATA));
        if (self == nullptr || message < WM_USER)
            return ::DefWindowProc(window, message, wParam, lParam);
        self->last = {window, message, wParam, lParam, 0, {}};
        ++self->count;
        if (self->onMessage)
            self->onMessage(self->last);
        return self->answer;
    }

    HostWindow m_host;
    HWND m_window;
};

template <class Pointer> LPARAM Parameter(Pointer pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

// One member: calling it sends the message with the parameters, and its result is the answer.
template <class Control> struct OneMessage
{
    const char* name;
    std::function<LRESULT(Control&)> call;
    UINT message;
    LPARAM wParam;
    LPARAM lParam;
};

template <class Control> void Check(const std::vector<OneMessage<Control>>& members)
{
    RecordingWindow window;
    Control control;
    control.Attach(window);
    for (const OneMessage<Control>& member : members)
    {
        SCOPED_TRACE(member.name);
        window.answer = 37;
        window.count = 0;
        EXPECT_EQ(37, member.call(control));
        EXPECT_EQ(1, window.count);
        EXPECT_EQ(member.message, window.last.message);
        EXPECT_EQ(static_cast<WPARAM>(member.wParam), window.last.wParam);
        EXPECT_EQ(member.lParam, window.last.lParam);
    }
    control.Detach();
}

int CALLBACK CompareGroups(int, int, void*)
{
    return 0;
}

TEST(ControlMessages, ListGroups)
{
    LVGROUP group = {};
    LVINSERTGROUPSORTED sorted = {};
    LVGROUPMETRICS metrics = {};
    using List = CListCtrl;
    Check<List>({
        {"EnableGroupView", [](List& l) { return l.EnableGroupView(TRUE); }, LVM_ENABLEGROUPVIEW, TRUE, 0},
        {"IsGroupViewEnabled", [](List& l) { return l.IsGroupViewEnabled(); }, LVM_ISGROUPVIEWENABLED, 0, 0},
        {"InsertGroup", [&](List& l) { return l.InsertGroup(2, &group); }, LVM_INSERTGROUP, 2,
         Parameter(&group)},
        {"InsertGroupSorted", [&](List& l) { return l.InsertGroupSorted(&sorted); }, LVM_INSERTGROUPSORTED,
         Parameter(&sorted), 0},
        {"MoveGroup", [](List& l) { return l.MoveGroup(5, 1); }, LVM_MOVEGROUP, 5, 1},
        {"MoveItemToGroup", [](List& l) { return l.MoveItemToGroup(5, 1), 37; }, LVM_MOVEITEMTOGROUP, 5, 1},
        {"RemoveGroup", [](List& l) { return l.RemoveGroup(5); }, LVM_REMOVEGROUP, 5, 0},
        {"RemoveAllGroups", [](List& l) { return l.RemoveAllGroups(), 37; }, LVM_REMOVEALLGROUPS, 0, 0},
        {"HasGroup", [](List& l) { return l.HasGroup(5); }, LVM_HASGROUP, 5, 0},
        {"GetGroupCount", [](List& l) { return l.GetGroupCount(); }, LVM_GETGROUPCOUNT, 0, 0},
        {"GetFocusedGroup", [](List& l) { return l.GetFocusedGroup(); }, LVM_GETFOCUSEDGROUP, 0, 0},
        {"GetGroupInfo", [&](List& l) { return l.GetGroupInfo(5, &group); }, LVM_GETGROUPINFO, 5,
         Parameter(&group)},
        {"SetGroupInfo", [&](List& l) { return l.SetGroupInfo(5, &group); }, LVM_SETGROUPINFO, 5,
         Parameter(&group)},
        {"GetGroupInfoByIndex", [&](List& l) { return l.GetGroupInfoByIndex(1, &group); },
         LVM_GETGROUPINFOBYINDEX, 1, Parameter(&group)},
        {"GetGroupMetrics", [&](List& l) { return l.GetGroupMetrics(&metrics), 37; }, LVM_GETGROUPMETRICS, 0,
         Parameter(&metrics)},
        {"SetGroupMetrics", [&](List& l) { return l.SetGroupMetrics(&metrics), 37; }, LVM_SETGROUPMETRICS, 0,
         Parameter(&metrics)},
        {"GetGroupState", [](List& l) { return static_cast<LRESULT>(l.GetGroupState(5, LVGS_FOCUSED)); },
         LVM_GETGROUPSTATE, 5, LVGS_FOCUSED},
        {"SortGroups", [&](List& l) { return l.SortGroups(&CompareGroups, &group); }, LVM_SORTGROUPS,
         Parameter(&CompareGroups), Parameter(&group)},
    });
}

TEST(ControlMessages, ListTilesAndMarks)
{
    LVTILEINFO tile = {};
    LVTILEVIEWINFO view = {};
    LVINSERTMARK mark = {};
    LVSETINFOTIP tip = {};
    LVITEMINDEX index = {3, 1};
    RECT rect = {};
    POINT point = {};
    using List = CListCtrl;
    Check<List>({
        {"GetTileInfo", [&](List& l) { return l.GetTileInfo(&tile); }, LVM_GETTILEINFO, 0, Parameter(&tile)},
        {"SetTileInfo", [&](List& l) { return l.SetTileInfo(&tile); }, LVM_SETTILEINFO, 0, Parameter(&tile)},
        {"GetTileViewInfo", [&](List& l) { return l.GetTileViewInfo(&view); }, LVM_GETTILEVIEWINFO, 0,
         Parameter(&view)},
        {"SetTileViewInfo", [&](List& l) { return l.SetTileViewInfo(&view); }, LVM_SETTILEVIEWINFO, 0,
         Parameter(&view)},
        {"GetInsertMark", [&](List& l) { return l.GetInsertMark(&mark); }, LVM_GETINSERTMARK, 0,
         Parameter(&mark)},
        {"SetInsertMark", [&](List& l) { return l.SetInsertMark(&mark); }, LVM_SETINSERTMARK, 0,
         Parameter(&mark)},
        {"GetInsertMarkRect", [&](List& l) { return l.GetInsertMarkRect(&rect); }, LVM_GETINSERTMARKRECT, 0,
         Parameter(&rect)},
        {"InsertMarkHitTest", [&](List& l) { return l.InsertMarkHitTest(&point, &mark); },
         LVM_INSERTMARKHITTEST, Parameter(&point), Parameter(&mark)},
        {"GetInsertMarkColor", [](List& l) { return static_cast<LRESULT>(l.GetInsertMarkColor()); },
         LVM_GETINSERTMARKCOLOR, 0, 0},
        {"SetInsertMarkColor",
         [](List& l) { return static_cast<LRESULT>(l.SetInsertMarkColor(RGB(1, 2, 3))); },
         LVM_SETINSERTMARKCOLOR, 0, RGB(1, 2, 3)},
        {"GetOutlineColor", [](List& l) { return static_cast<LRESULT>(l.GetOutlineColor()); },
         LVM_GETOUTLINECOLOR, 0, 0},
        {"SetOutlineColor", [](List& l) { return static_cast<LRESULT>(l.SetOutlineColor(RGB(1, 2, 3))); },
         LVM_SETOUTLINECOLOR, 0, RGB(1, 2, 3)},
        {"GetCallbackMask", [](List& l) { return static_cast<LRESULT>(l.GetCallbackMask()); },
         LVM_GETCALLBACKMASK, 0, 0},
        {"SetCallbackMask", [](List& l) { return l.SetCallbackMask(LVIS_SELECTED); }, LVM_SETCALLBACKMASK,
         LVIS_SELECTED, 0},
        {"MapIndexToID", [](List& l) { return static_cast<LRESULT>(l.MapIndexToID(4)); }, LVM_MAPINDEXTOID, 4,
         0},
        {"MapIDToIndex", [](List& l) { return static_cast<LRESULT>(l.MapIDToIndex(4)); }, LVM_MAPIDTOINDEX, 4,
         0},
        {"SetInfoTip", [&](List& l) { return l.SetInfoTip(&tip); }, LVM_SETINFOTIP, 0, Parameter(&tip)},
        {"GetNextItemIndex", [&](List& l) { return l.GetNextItemIndex(&index, LVNI_BELOW); },
         LVM_GETNEXTITEMINDEX, Parameter(&index), LVNI_BELOW},
        {"GetItemIndexRect", [&](List& l) { return l.GetItemIndexRect(&index, 2, LVIR_LABEL, &rect); },
         LVM_GETITEMINDEXRECT, Parameter(&index), Parameter(&rect)},
        {"GetGroupRect", [&](List& l) { return l.GetGroupRect(5, &rect, LVGGR_LABEL); }, LVM_GETGROUPRECT, 5,
         Parameter(&rect)},
    });
}

TEST(ControlMessages, OtherControls)
{
    RECT rect = {};
    TOOLINFO tool = {};
    TTGETTITLE title = {};
    const HTREEITEM item = reinterpret_cast<HTREEITEM>(0x1230);
    Check<CTreeCtrl>({
        {"GetSelectedCount", [](CTreeCtrl& t) { return static_cast<LRESULT>(t.GetSelectedCount()); },
         TVM_GETSELECTEDCOUNT, 0, 0},
        {"SetAutoscrollInfo", [](CTreeCtrl& t) { return t.SetAutoscrollInfo(50, 20); }, TVM_SETAUTOSCROLLINFO,
         50, 20},
        {"ShowInfoTip", [&](CTreeCtrl& t) { return t.ShowInfoTip(item), 37; }, TVM_SHOWINFOTIP, 0,
         Parameter(item)},
    });
    Check<CHeaderCtrl>({
        {"GetFocusedItem", [](CHeaderCtrl& h) { return h.GetFocusedItem(); }, HDM_GETFOCUSEDITEM, 0, 0},
        {"SetFocusedItem", [](CHeaderCtrl& h) { return h.SetFocusedItem(2); }, HDM_SETFOCUSEDITEM, 0, 2},
        {"GetItemDropDownRect", [&](CHeaderCtrl& h) { return h.GetItemDropDownRect(2, &rect); },
         HDM_GETITEMDROPDOWNRECT, 2, Parameter(&rect)},
        {"GetOverflowRect", [&](CHeaderCtrl& h) { return h.GetOverflowRect(&rect); }, HDM_GETOVERFLOWRECT, 0,
         Parameter(&rect)},
    });
    Check<CEdit>({{"SetHighlight", [](CEdit& e) { return e.SetHighlight(2, 5), 37; }, EM_SETHILITE, 2, 5}});
    Check<CToolTipCtrl>({
        {"SetWindowTheme", [](CToolTipCtrl& t) { return t.SetWindowTheme(nullptr); }, TTM_SETWINDOWTHEME, 0,
         0},
        {"GetCurrentTool", [&](CToolTipCtrl& t) { return t.GetCurrentTool(&tool); }, TTM_GETCURRENTTOOL, 0,
         Parameter(&tool)},
        {"GetTitle", [&](CToolTipCtrl& t) { return t.GetTitle(&title), 37; }, TTM_GETTITLE, 0,
         Parameter(&title)},
    });
}

TEST(ControlMessages, ListStructures_CarryTheArguments)
{
    RecordingWindow window;
    CListCtrl list;
    list.Attach(window);
    RECT rect = {};
    LVITEMINDEX index = {3, 1};
    window.onMessage = [&](const MSG&) {
        EXPECT_EQ(LVIR_LABEL, rect.left);
        EXPECT_EQ(2, rect.top);
    };
    list.GetItemIndexRect(&index, 2, LVIR_LABEL, &rect);
    window.onMessage = [&](const MSG&) { EXPECT_EQ(LVGGR_HEADER, rect.top); };
    list.GetGroupRect(5, &rect, LVGGR_HEADER);
    window.onMessage = [&](const MSG& message) {
        EXPECT_EQ(static_cast<UINT>(LVM_SETITEMINDEXSTATE), message.message);
        const LVITEM& item = *reinterpret_cast<const LVITEM*>(message.lParam);
        EXPECT_EQ(static_cast<UINT>(LVIS_SELECTED), item.state);
        EXPECT_EQ(static_cast<UINT>(LVIS_SELECTED | LVIS_FOCUSED), item.stateMask);
    };
    EXPECT_TRUE(list.SetItemIndexState(&index, LVIS_SELECTED, LVIS_SELECTED | LVIS_FOCUSED));
    window.answer = E_FAIL;
    EXPECT_FALSE(list.SetItemIndexState(&index, LVIS_SELECTED, LVIS_SELECTED | LVIS_FOCUSED));
    window.answer = TRUE;
    window.onMessage = [&](const MSG& message) {
        EXPECT_EQ(static_cast<UINT>(LVM_GETEMPTYTEXT), message.message);
        wcscpy(reinterpret_cast<wchar_t*>(message.lParam), L"nothing here");
    };
    EXPECT_STREQ(L"nothing here", list.GetEmptyText());
    window.onMessage = nullptr;
    window.answer = FALSE;
    EXPECT_STREQ(L"", list.GetEmptyText());
    window.answer = MAKELONG(75, 40);
    int across = 0, down = 0;
    EXPECT_TRUE(list.GetItemSpacing(TRUE, &across, &down));
    EXPECT_EQ(75, across);
    EXPECT_EQ(40, down);
    list.Detach();
}

TEST(ControlMessages, TreeStructures_CarryTheArguments)
{
    RecordingWindow window;
    CTreeCtrl tree;
    tree.Attach(window);
    const HTREEITEM handle = reinterpret_cast<HTREEITEM>(0x1230);
    window.answer = TRUE;
    window.onMessage = [&](const MSG& message) {
        TVITEMEX& item = *reinterpret_cast<TVITEMEX*>(message.lParam);
        EXPECT_EQ(handle, item.hItem);
        if (message.message == TVM_GETITEM)
        {
            item.uStateEx = (item.mask & TVIF_STATEEX) != 0 ? 2 : 0;
            item.iExpandedImage = (item.mask & TVIF_EXPANDEDIMAGE) != 0 ? 4 : 0;
        }
    };
    EXPECT_EQ(2u, tree.GetItemStateEx(handle));
    EXPECT_EQ(4, tree.GetItemExpandedImageIndex(handle));
    window.onMessage = [&](const MSG& message) {
        const TVITEMEX& item = *reinterpret_cast<const TVITEMEX*>(message.lParam);
        EXPECT_EQ(static_cast<UINT>(TVM_SETITEM), message.message);
        EXPECT_EQ((item.mask & TVIF_STATEEX) != 0 ? 2u : 0u, item.uStateEx);
        EXPECT_EQ((item.mask & TVIF_EXPANDEDIMAGE) != 0 ? 4 : 0, item.iExpandedImage);
        EXPECT_NE(static_cast<UINT>(TVIF_HANDLE), item.mask);
    };
    EXPECT_TRUE(tree.SetItemStateEx(handle, 2));
    EXPECT_TRUE(tree.SetItemExpandedImageIndex(handle, 4));
    RECT rect = {};
    window.onMessage = [&](const MSG& message) {
        const auto& info = *reinterpret_cast<const TVGETITEMPARTRECTINFO*>(message.lParam);
        EXPECT_EQ(static_cast<UINT>(TVM_GETITEMPARTRECT), message.message);
        EXPECT_EQ(handle, info.hti);
        EXPECT_EQ(TVGIPR_BUTTON, info.partID);
        EXPECT_EQ(&rect, info.prc);
    };
    EXPECT_TRUE(tree.GetItemPartRect(handle, TVGIPR_BUTTON, &rect));
    tree.Detach();
}

TEST(ControlMessages, TextsAndTools)
{
    HostWindow host;
    RecordingWindow window;
    CComboBox recorded;
    recorded.Attach(window);
    window.answer = TRUE;
    window.onMessage = [&](const MSG& message) {
        EXPECT_EQ(static_cast<UINT>(CB_GETCUEBANNER), message.message);
        wcscpy(reinterpret_cast<wchar_t*>(message.wParam), L"cue");
    };
    EXPECT_STREQ(L"cue", recorded.GetCueBanner());
    recorded.Detach();

    CEdit edit;
    edit.Attach(window);
    window.onMessage = nullptr;
    window.answer = MAKELONG(2, 5);
    int first = 0, last = 0;
    EXPECT_TRUE(edit.GetHighlight(&first, &last));
    EXPECT_EQ(2, first);
    EXPECT_EQ(5, last);
    edit.Detach();

    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&host));
    ASSERT_TRUE(tips.AddTool(&host, L"an area", CRect(1, 2, 3, 4), 17));
    CToolInfo found;
    ASSERT_TRUE(tips.GetToolInfo(found, &host, 17));
    EXPECT_STREQ(L"an area", found.szText);
    EXPECT_EQ(CRect(1, 2, 3, 4), CRect(found.rect));
    EXPECT_FALSE(tips.GetToolInfo(found, &host, 18));
}

TEST(ControlMessages, RealListBoxAndScrollBar)
{
    HostWindow host;
    CListBox box;
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &host, 1));
    EXPECT_EQ(static_cast<DWORD>(::SendMessage(box, LB_GETLISTBOXINFO, 0, 0)), box.GetListBoxInfo());
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(0, 120, 200, 140), &host, 2));
    SCROLLBARINFO info = {};
    ASSERT_TRUE(bar.GetScrollBarInfo(&info));
    CRect place;
    bar.GetWindowRect(&place);
    EXPECT_EQ(place, CRect(info.rcScrollBar));
}

// Not with the platform's control, which keeps a font of its own for each font it is given.
TEST(ControlMessages, FontOfThePickersCalendar)
{
    RecordingWindow window;
    CDateTimeCtrl picker;
    picker.Attach(window);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Tahoma"));
    picker.SetMonthCalFont(font, FALSE);
    EXPECT_EQ(static_cast<UINT>(DTM_SETMCFONT), window.last.message);
    EXPECT_EQ(reinterpret_cast<WPARAM>(font.GetSafeHandle()), window.last.wParam);
    EXPECT_EQ(FALSE, window.last.lParam);
    window.answer = reinterpret_cast<LRESULT>(font.GetSafeHandle());
    EXPECT_EQ(&font, picker.GetMonthCalFont());
    EXPECT_EQ(static_cast<UINT>(DTM_GETMCFONT), window.last.message);
    picker.Detach();
}

TEST(ControlMessages, TabStructure_CarriesTheState)
{
    RecordingWindow window;
    CTabCtrl tabs;
    tabs.Attach(window);
    window.answer = 3;
    window.onMessage = [&](const MSG& message) {
        EXPECT_EQ(static_cast<UINT>(TCM_INSERTITEM), message.message);
        EXPECT_EQ(3u, message.wParam);
        const TCITEM& item = *reinterpret_cast<const TCITEM*>(message.lParam);
        EXPECT_EQ(static_cast<UINT>(TCIF_TEXT | TCIF_STATE), item.mask);
        EXPECT_STREQ(L"on", item.pszText);
        EXPECT_EQ(5, item.iImage);
        EXPECT_EQ(22, item.lParam);
        EXPECT_EQ(static_cast<DWORD>(TCIS_HIGHLIGHTED), item.dwState);
        EXPECT_EQ(static_cast<DWORD>(TCIS_HIGHLIGHTED | TCIS_BUTTONPRESSED), item.dwStateMask);
    };
    EXPECT_EQ(3, tabs.InsertItem(TCIF_TEXT | TCIF_STATE, 3, L"on", 5, 22, TCIS_HIGHLIGHTED,
                                 TCIS_HIGHLIGHTED | TCIS_BUTTONPRESSED));
    EXPECT_EQ(1, window.count);
    tabs.Detach();
}

} // namespace
