// The wrappers of header, spin, tab and tool tip, against the platform's controls.
#include "tests/support/HostWindow.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace
{

using namespace quor::test;

class HeaderWrapper : public testing::Test
{
protected:
    HeaderWrapper()
    {
        m_header.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ | HDS_BUTTONS | HDS_DRAGDROP, CRect(0, 0, 300, 22),
                        &m_host, 3);
        for (LPCTSTR text : {L"a", L"b", L"c"})
        {
            HDITEM item = {};
            item.mask = HDI_TEXT | HDI_WIDTH | HDI_LPARAM;
            item.pszText = const_cast<LPTSTR>(text);
            item.cxy = 50;
            item.lParam = text[0];
            m_header.InsertItem(m_header.GetItemCount(), &item);
        }
    }

    HostWindow m_host;
    CHeaderCtrl m_header;
};

TEST_F(HeaderWrapper, Items)
{
    EXPECT_EQ(m_header.GetItemCount(), 3);
    wchar_t text[16] = {};
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_LPARAM | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(m_header.GetItem(1, &item));
    EXPECT_STREQ(text, L"b");
    EXPECT_EQ(item.lParam, 'b');
    item.mask = HDI_WIDTH;
    item.cxy = 80;
    EXPECT_TRUE(m_header.SetItem(1, &item));
    CRect rect;
    EXPECT_TRUE(m_header.GetItemRect(1, &rect));
    EXPECT_EQ(rect.left, 50);
    EXPECT_EQ(rect.Width(), 80);
    EXPECT_TRUE(m_header.DeleteItem(0));
    EXPECT_EQ(m_header.GetItemCount(), 2);
}

TEST_F(HeaderWrapper, Order)
{
    int order[] = {2, 0, 1};
    EXPECT_TRUE(m_header.SetOrderArray(3, order));
    int read[3] = {};
    EXPECT_TRUE(m_header.GetOrderArray(read, 3));
    EXPECT_EQ(std::vector<int>(read, read + 3), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(m_header.OrderToIndex(0), 2);
    CRect rect;
    m_header.GetItemRect(2, &rect);
    EXPECT_EQ(rect.left, 0);
}

TEST_F(HeaderWrapper, HitTestLayoutAndHotDivider)
{
    HDHITTESTINFO info = {};
    info.pt = CPoint(75, 10);
    EXPECT_EQ(m_header.HitTest(&info), 1);
    EXPECT_TRUE(info.flags & HHT_ONHEADER);
    CRect room(0, 0, 400, 300);
    WINDOWPOS position = {};
    HDLAYOUT layout = {&room, &position};
    EXPECT_TRUE(m_header.Layout(&layout));
    EXPECT_EQ(position.cx, 400);
    EXPECT_EQ(room.top, position.cy);
    EXPECT_EQ(m_header.SetHotDivider(2), 2);
    EXPECT_EQ(m_header.SetHotDivider(CPoint(10, 5)), 0);
    m_header.SetHotDivider(-1);
}

TEST_F(HeaderWrapper, ImagesAndDragImage)
{
    CImageList images;
    images.Create(8, 8, ILC_COLOR24, 1, 1);
    EXPECT_EQ(m_header.SetImageList(&images), nullptr);
    EXPECT_EQ(m_header.GetImageList(), &images);
    std::unique_ptr<CImageList> drag(m_header.CreateDragImage(1));
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(drag->GetImageCount(), 1);
    drag.reset();
    EXPECT_EQ(m_header.SetImageList(NULL), &images);
    m_header.SetBitmapMargin(9);
    EXPECT_EQ(m_header.GetBitmapMargin(), 9);
}

TEST_F(HeaderWrapper, OwnerDrawnItem_IsDrawnByItsObject)
{
    class DrawingHeader : public CHeaderCtrl
    {
    public:
        std::vector<UINT> drawn;
        void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(item->itemID); }
    };
    DrawingHeader header;
    ASSERT_TRUE(header.Create(WS_VISIBLE | HDS_HORZ, CRect(0, 30, 300, 52), &m_host, 4));
    HDITEM item = {};
    item.mask = HDI_WIDTH | HDI_FORMAT;
    item.cxy = 40;
    item.fmt = HDF_OWNERDRAW;
    header.InsertItem(0, &item);
    header.drawn.clear();
    header.Invalidate();
    header.UpdateWindow();
    EXPECT_EQ(header.drawn, (std::vector<UINT>{0}));
}

class SpinWrapper : public testing::Test
{
protected:
    SpinWrapper()
    {
        m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 22), &m_host, 1);
        m_spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(80, 0, 96, 22),
                      &m_host, 2);
    }

    HostWindow m_host;
    CEdit m_edit;
    CSpinButtonCtrl m_spin;
};

TEST_F(SpinWrapper, Ranges)
{
    m_spin.SetRange(-10, 250);
    int low = 0, high = 0;
    m_spin.GetRange(low, high);
    EXPECT_EQ(low, -10);
    EXPECT_EQ(high, 250);
    EXPECT_EQ(m_spin.GetRange(), static_cast<DWORD>(MAKELONG(250, -10)));
    m_spin.SetRange32(-100000, 100000);
    m_spin.GetRange32(low, high);
    EXPECT_EQ(low, -100000);
    EXPECT_EQ(high, 100000);
}

TEST_F(SpinWrapper, PositionAndBuddy)
{
    EXPECT_EQ(m_spin.SetBuddy(&m_edit), nullptr);
    EXPECT_EQ(m_spin.GetBuddy(), &m_edit);
    m_spin.SetRange32(0, 100000);
    m_spin.SetPos(42);
    CString text;
    m_edit.GetWindowText(text);
    EXPECT_STREQ(text, L"42");
    EXPECT_EQ(LOWORD(m_spin.GetPos()), 42);
    EXPECT_EQ(m_spin.SetPos(43), 42);
    m_spin.SetPos32(70000);
    BOOL error = TRUE;
    EXPECT_EQ(m_spin.GetPos32(&error), 70000);
    EXPECT_FALSE(error);
    m_edit.SetWindowText(L"no number");
    m_spin.GetPos32(&error);
    EXPECT_TRUE(error);
}

TEST_F(SpinWrapper, BaseAndAcceleration)
{
    EXPECT_EQ(m_spin.GetBase(), 10u);
    EXPECT_EQ(m_spin.SetBase(16), 10);
    EXPECT_EQ(m_spin.GetBase(), 16u);
    UDACCEL steps[] = {{0, 1}, {3, 20}};
    EXPECT_TRUE(m_spin.SetAccel(2, steps));
    UDACCEL read[2] = {};
    EXPECT_EQ(m_spin.GetAccel(2, read), 2u);
    EXPECT_EQ(read[1].nInc, 20u);
}

TEST(TabWrapper, StatesSizesImagesAndTips)
{
    HostWindow host;
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE | TCS_FIXEDWIDTH, CRect(0, 0, 300, 200), &host, 5));
    tabs.InsertItem(0, L"first");
    tabs.InsertItem(1, L"second");
    EXPECT_EQ(tabs.GetItemState(1, TCIS_HIGHLIGHTED), 0u);
    EXPECT_TRUE(tabs.SetItemState(1, TCIS_HIGHLIGHTED, TCIS_HIGHLIGHTED));
    EXPECT_EQ(tabs.GetItemState(1, TCIS_HIGHLIGHTED), static_cast<DWORD>(TCIS_HIGHLIGHTED));
    EXPECT_EQ(tabs.GetItemState(1, TCIS_BUTTONPRESSED), 0u);
    EXPECT_EQ(tabs.GetItemState(0, TCIS_HIGHLIGHTED), 0u);
    tabs.SetItemSize(CSize(70, 30));
    EXPECT_EQ(tabs.SetItemSize(CSize(60, 25)), CSize(70, 30));
    CRect first;
    EXPECT_TRUE(tabs.GetItemRect(0, &first));
    EXPECT_EQ(first.Width(), 60);
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 1, 1));
    EXPECT_EQ(tabs.GetImageList(), nullptr);
    EXPECT_EQ(tabs.SetImageList(&images), nullptr);
    EXPECT_EQ(tabs.GetImageList(), &images);
    EXPECT_EQ(tabs.SetImageList(NULL), &images);
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&host));
    tabs.SetToolTips(&tips);
    EXPECT_EQ(tabs.GetToolTips(), &tips);
}

TEST(TabWrapper, ItemsSelectionAndGeometry)
{
    HostWindow host;
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host, 5));
    EXPECT_EQ(tabs.InsertItem(0, L"first"), 0);
    EXPECT_EQ(tabs.InsertItem(1, L"third"), 1);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 1, L"second", 0, 22), 1);
    EXPECT_EQ(tabs.GetItemCount(), 3);
    EXPECT_EQ(tabs.GetCurSel(), 0);
    host.TakeLog();
    EXPECT_EQ(tabs.SetCurSel(2), 0);
    EXPECT_EQ(tabs.GetCurSel(), 2);
    EXPECT_TRUE(host.TakeLog().empty());
    TCITEM item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tabs.GetItem(1, &item));
    EXPECT_EQ(item.lParam, 22);
    item.lParam = 23;
    EXPECT_TRUE(tabs.SetItem(1, &item));
    CRect second;
    EXPECT_TRUE(tabs.GetItemRect(1, &second));
    TCHITTESTINFO hit = {second.CenterPoint(), 0};
    EXPECT_EQ(tabs.HitTest(&hit), 1);
    CRect page(0, 0, 300, 200);
    tabs.AdjustRect(FALSE, &page);
    EXPECT_GE(page.top, second.bottom);
    EXPECT_EQ(tabs.GetRowCount(), 1);
    EXPECT_TRUE(tabs.DeleteItem(0));
    EXPECT_TRUE(tabs.DeleteAllItems());
    EXPECT_EQ(tabs.GetItemCount(), 0);
}

TEST(ToolTipWrapper, ToolsAndTexts)
{
    HostWindow host;
    CButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 30), &host, 1));
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&host, TTS_ALWAYSTIP));
    EXPECT_TRUE(tips.GetStyle() & TTS_ALWAYSTIP);
    EXPECT_TRUE(tips.AddTool(&button, L"a button"));
    const CRect area(100, 100, 150, 120);
    EXPECT_TRUE(tips.AddTool(&host, L"an area", area, 17));
    EXPECT_EQ(tips.GetToolCount(), 2);
    CString text;
    tips.GetText(text, &button);
    EXPECT_STREQ(text, L"a button");
    tips.GetText(text, &host, 17);
    EXPECT_STREQ(text, L"an area");
    tips.UpdateTipText(L"other", &host, 17);
    tips.GetText(text, &host, 17);
    EXPECT_STREQ(text, L"other");
    TOOLINFO info = {};
    EXPECT_TRUE(tips.HitTest(&host, CPoint(110, 110), &info));
    EXPECT_EQ(info.uId, 17u);
    EXPECT_FALSE(tips.HitTest(&host, CPoint(300, 300), &info));
    tips.SetToolRect(&host, 17, CRect(290, 290, 310, 310));
    EXPECT_TRUE(tips.HitTest(&host, CPoint(300, 300), &info));
    tips.DelTool(&button);
    EXPECT_EQ(tips.GetToolCount(), 1);
    tips.DelTool(&host, 17);
    EXPECT_EQ(tips.GetToolCount(), 0);
}

TEST(ToolTipWrapper, DelaysAndLook)
{
    HostWindow host;
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&host));
    tips.SetDelayTime(TTDT_INITIAL, 123);
    EXPECT_EQ(tips.GetDelayTime(TTDT_INITIAL), 123);
    tips.SetMaxTipWidth(222);
    EXPECT_EQ(tips.GetMaxTipWidth(), 222);
    tips.SetTipBkColor(RGB(1, 2, 3));
    EXPECT_EQ(tips.GetTipBkColor(), RGB(1, 2, 3));
    tips.SetTipTextColor(RGB(4, 5, 6));
    EXPECT_EQ(tips.GetTipTextColor(), RGB(4, 5, 6));
    CRect margin(1, 2, 3, 4), read;
    tips.SetMargin(&margin);
    tips.GetMargin(&read);
    EXPECT_EQ(read, margin);
}

} // namespace
