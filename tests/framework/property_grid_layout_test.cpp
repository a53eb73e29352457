// The property grid's window: rows, areas, hit test, alphabetic mode, fonts, painting.
#include "tests/support/PropertySheet.h"

#include "tests/support/Pump.h"
#include "tests/support/Snapshot.h"

using namespace quor::test;

namespace
{

class PropertyGridLayout : public PropertySheetTest
{
protected:
    // The names of the rows from the top, as many as have a place.
    std::wstring Rows()
    {
        std::wstring names;
        const CRect list = grid.GetListRect();
        for (int y = list.top + 1; y < list.bottom; y += grid.GetRowHeight())
            if (const Property* const property = grid.HitTest(CPoint(30, y)))
                names += std::wstring(names.empty() ? L"" : L" ") + property->GetName();
        return names;
    }

    std::wstring Area(CPoint point)
    {
        Property::ClickArea area = Property::ClickDescription;
        const Property* const property = grid.HitTest(point, &area);
        const wchar_t* const names[] = {L"box", L"name", L"value", L"description"};
        return std::wstring(property == NULL ? L"-" : property->GetName()) + L" " + names[area];
    }
};

TEST_F(PropertyGridLayout, RowsStandInOrderAndFoldedOnesHaveNoPlace)
{
    EXPECT_EQ(Rows(),
              L"Texts Title Code Fixed Off Numbers Count Level Ratio Choices Visible Shape Unit Size");
    numbers->Expand(FALSE);
    size->Expand();
    EXPECT_EQ(Rows(), L"Texts Title Code Fixed Off Numbers Choices Visible Shape Unit Size Width Height");
    EXPECT_TRUE(count->GetRect().IsRectEmpty());
    code->Show(FALSE);
    choices->Show(FALSE);
    EXPECT_EQ(Rows(), L"Texts Title Fixed Off Numbers Size Width Height");
    grid.ExpandAll();
    EXPECT_EQ(Rows(), L"Texts Title Fixed Off Numbers Count Level Ratio Size Width Height");
    grid.ExpandAll(FALSE);
    EXPECT_EQ(Rows(), L"Texts Numbers Size");
}

TEST_F(PropertyGridLayout, RowsFollowWhatIsAddedAndDeleted)
{
    Property* last = new Property(L"Last", _variant_t(1L));
    numbers->AddSubItem(last);
    EXPECT_EQ(last->GetRect().top, ratio->GetRect().bottom);
    grid.DeleteProperty(last);
    EXPECT_EQ(choices->GetRect().top, ratio->GetRect().bottom);
    Property* group = texts;
    grid.DeleteProperty(group);
    EXPECT_EQ(Rows(), L"Numbers Count Level Ratio Choices Visible Shape Unit Size");
}

TEST_F(PropertyGridLayout, ARowIsTheFontAndFourPixelsHigh)
{
    CClientDC dc(&grid);
    CFont* const old = dc.SelectObject(grid.GetFont());
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(old);
    EXPECT_EQ(grid.GetRowHeight(), metrics.tmHeight + 4);
    EXPECT_EQ(title->GetRect().Height(), grid.GetRowHeight());

    CFont large;
    large.CreatePointFont(200, L"Tahoma");
    const int before = grid.GetRowHeight();
    grid.SetFont(&large);
    EXPECT_GT(grid.GetRowHeight(), before);
    EXPECT_EQ(grid.GetFont()->m_hObject, large.m_hObject);
    EXPECT_EQ(title->GetRect().Height(), grid.GetRowHeight());
    grid.SetFont(NULL);
    EXPECT_EQ(grid.GetRowHeight(), before);
}

TEST_F(PropertyGridLayout, HitTestTellsThePartsApart)
{
    EXPECT_EQ(Area(BoxPoint(texts)), L"Texts box");
    EXPECT_EQ(Area(NamePoint(texts)), L"Texts name");
    EXPECT_EQ(Area(ValuePoint(texts)), L"Texts name") << "a group has no value";
    EXPECT_EQ(Area(BoxPoint(title)), L"Title name") << "nothing to fold";
    EXPECT_EQ(Area(NamePoint(title)), L"Title name");
    EXPECT_EQ(Area(ValuePoint(title)), L"Title value");
    EXPECT_EQ(Area(BoxPoint(size)), L"Size box");
    EXPECT_EQ(Area(ValuePoint(size)), L"Size value");
    EXPECT_EQ(grid.HitTest(CPoint(30, 2)), nullptr) << "the header";
    grid.EnableDescriptionArea();
    const CPoint description(30, 299);
    EXPECT_EQ(Area(description), L"- description");
    Property::ClickArea untouched = Property::ClickValue;
    EXPECT_EQ(grid.HitTest(description, &untouched, TRUE), nullptr);
    EXPECT_EQ(untouched, Property::ClickValue);
}

TEST_F(PropertyGridLayout, HeaderAndDescriptionTakeRoomOnDemand)
{
    const CRect list = grid.GetListRect();
    EXPECT_EQ(list.top, grid.GetHeaderHeight());
    EXPECT_GT(list.top, 0);
    EXPECT_TRUE(grid.GetHeaderCtrl().IsWindowVisible());
    EXPECT_EQ(list.bottom, 300);
    EXPECT_EQ(grid.GetDescriptionHeight(), 0);
    grid.EnableHeaderCtrl(FALSE);
    grid.EnableDescriptionArea();
    EXPECT_EQ(grid.GetListRect().top, 0);
    EXPECT_FALSE(grid.GetHeaderCtrl().IsWindowVisible());
    EXPECT_EQ(grid.GetListRect().bottom, 300 - grid.GetDescriptionHeight());
    const int three = grid.GetDescriptionHeight();
    grid.SetDescriptionRows(5);
    EXPECT_EQ(grid.GetDescriptionHeight(), three + 2 * grid.GetRowHeight());
}

TEST_F(PropertyGridLayout, TheScrollBarComesWithTheRowsThatDoNotFit)
{
    ASSERT_NE(grid.GetScrollBarCtrl(SB_VERT), nullptr);
    EXPECT_EQ(grid.GetScrollBarCtrl(SB_HORZ), nullptr);
    EXPECT_FALSE(grid.GetScrollBarCtrl(SB_VERT)->IsWindowVisible());
    grid.SetWindowPos(NULL, 0, 0, 400, 150, SWP_NOMOVE | SWP_NOZORDER);
    const CRect list = grid.GetListRect();
    EXPECT_TRUE(grid.GetScrollBarCtrl(SB_VERT)->IsWindowVisible());
    EXPECT_EQ(list.right, 400 - ::GetSystemMetrics(SM_CXVSCROLL));
    SCROLLINFO info = {};
    grid.GetScrollBarCtrl(SB_VERT)->GetScrollInfo(&info);
    EXPECT_EQ(info.nMax, 13);
    EXPECT_EQ(static_cast<int>(info.nPage), list.Height() / grid.GetRowHeight());
}

TEST_F(PropertyGridLayout, EnsureVisibleScrollsAndUnfoldsOnDemand)
{
    grid.SetWindowPos(NULL, 0, 0, 400, 150, SWP_NOMOVE | SWP_NOZORDER);
    grid.EnsureVisible(height);
    EXPECT_FALSE(size->IsExpanded());
    grid.EnsureVisible(height, TRUE);
    EXPECT_TRUE(size->IsExpanded());
    const CRect list = grid.GetListRect();
    EXPECT_LE(height->GetRect().bottom, list.bottom);
    EXPECT_GT(height->GetRect().bottom, list.bottom - grid.GetRowHeight());
    grid.EnsureVisible(texts);
    EXPECT_EQ(texts->GetRect().top, list.top);
    // Folding what is scrolled to leaves no room below the last row.
    grid.EnsureVisible(height);
    grid.ExpandAll(FALSE);
    EXPECT_EQ(texts->GetRect().top, list.top);
}

TEST_F(PropertyGridLayout, ScrollBarMessagesScrollByRowsAndPages)
{
    grid.SetWindowPos(NULL, 0, 0, 400, 100, SWP_NOMOVE | SWP_NOZORDER);
    const CRect list = grid.GetListRect();
    const int rowHeight = grid.GetRowHeight();
    const int page = list.Height() / rowHeight;
    const HWND bar = grid.GetScrollBarCtrl(SB_VERT)->m_hWnd;
    const auto scroll = [&](UINT scrollCode) {
        grid.SendMessage(WM_VSCROLL, scrollCode, reinterpret_cast<LPARAM>(bar));
        return (list.top - texts->GetRect().top) / rowHeight;
    };
    EXPECT_EQ(scroll(SB_LINEDOWN), 1);
    EXPECT_EQ(scroll(SB_PAGEDOWN), 1 + page);
    EXPECT_EQ(scroll(SB_BOTTOM), 14 - page);
    EXPECT_EQ(scroll(SB_LINEDOWN), 14 - page);
    EXPECT_EQ(scroll(SB_LINEUP), 13 - page);
    EXPECT_EQ(scroll(SB_TOP), 0);
}

TEST_F(PropertyGridLayout, AlphabeticModeDissolvesTheGroups)
{
    grid.SetAlphabeticMode();
    EXPECT_EQ(Rows(), L"Code Count Fixed Level Off Ratio Shape Size Title Unit Visible");
    size->Expand();
    EXPECT_EQ(Rows(), L"Code Count Fixed Level Off Ratio Shape Size Width Height Title Unit Visible");
    code->SetName(L"zeta");
    texts->AddSubItem(new Property(L"alpha", _variant_t(1L)));
    EXPECT_EQ(Rows(), L"alpha Count Fixed Level Off Ratio Shape Size Width Height Title Unit Visible zeta");
    texts->Expand(FALSE);
    EXPECT_FALSE(title->GetRect().IsRectEmpty()) << "a folded group hides nothing here";
    grid.SetAlphabeticMode(FALSE);
    EXPECT_EQ(Rows(), L"Texts Numbers Count Level Ratio Choices Visible Shape Unit Size Width Height");
}

TEST_F(PropertyGridLayout, TheColumnsKeepTheirShareWhenTheWidthChanges)
{
    EXPECT_EQ(grid.GetLeftColumnWidth(), 200);
    grid.SetWindowPos(NULL, 0, 0, 300, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(grid.GetLeftColumnWidth(), 150);
    EXPECT_EQ(grid.GetPropertyColumnWidth(), grid.GetListRect().Width() - 150);
    HDITEM item = {};
    item.mask = HDI_WIDTH;
    grid.GetHeaderCtrl().GetItem(0, &item);
    EXPECT_EQ(item.cxy, 150);
    grid.SetWindowPos(NULL, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
    grid.SetWindowPos(NULL, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(grid.GetLeftColumnWidth(), 200) << "a width of nothing in between changes nothing";
}

TEST_F(PropertyGridLayout, FoldingAboveTheSelectionSelectsTheGroup)
{
    grid.SetCurSel(count);
    numbers->Expand(FALSE);
    EXPECT_EQ(Selected(), L"Numbers");
    grid.SetCurSel(title);
    numbers->Expand();
    choices->Expand(FALSE);
    EXPECT_EQ(Selected(), L"Title");
}

TEST_F(PropertyGridLayout, DeletingTheSelectionSelectsNothing)
{
    grid.SetCurSel(count);
    grid.DeleteProperty(numbers);
    EXPECT_EQ(grid.GetCurSel(), nullptr);
    grid.SetCurSel(title);
    grid.RemoveAll();
    EXPECT_EQ(grid.GetCurSel(), nullptr);
    EXPECT_EQ(Rows(), L"");
}

TEST_F(PropertyGridLayout, ToolTipsAreForCutTextsUnlessWantedAlways)
{
    grid.UpdateWindow();
    EXPECT_EQ(grid.OnToolHitTest(NamePoint(title), NULL), -1);
    EXPECT_EQ(grid.OnToolHitTest(ValuePoint(title), NULL), -1);
    title->SetValue(_variant_t(std::wstring(200, L'w').c_str()));
    grid.UpdateWindow();
    EXPECT_EQ(grid.OnToolHitTest(NamePoint(title), NULL), -1);
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    const INT_PTR hit = grid.OnToolHitTest(ValuePoint(title), &tool);
    EXPECT_NE(hit, -1);
    EXPECT_EQ(std::wstring(tool.lpszText), std::wstring(200, L'w'));
    EXPECT_TRUE(CRect(tool.rect).PtInRect(ValuePoint(title)));
    free(tool.lpszText);
    grid.AlwaysShowUserToolTip();
    EXPECT_NE(grid.OnToolHitTest(NamePoint(title), NULL), -1);
    EXPECT_NE(grid.OnToolHitTest(ValuePoint(code), NULL), hit) << "another tool";
}

// ---- Painting.

TEST_F(PropertyGridLayout, GroupsSelectionAndLinesAreSeen)
{
    const COLORREF back = RGB(250, 250, 200);
    const COLORREF group = RGB(10, 120, 60);
    const COLORREF line = RGB(200, 10, 10);
    grid.SetCustomColors(back, RGB(0, 0, 90), group, RGB(255, 255, 255), RGB(1, 2, 3), RGB(255, 255, 0),
                         line);
    grid.EnableDescriptionArea();
    grid.SetFocus();
    grid.SetCurSel(title);
    const Snapshot picture(grid);
    const CRect groupRow = texts->GetRect();
    EXPECT_EQ(picture.At(groupRow.right - 5, groupRow.top + 2), group);
    const CRect row = title->GetRect();
    EXPECT_EQ(picture.At(grid.GetLeftColumnWidth() - 5, row.top + 2), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(picture.At(row.right - 5, row.top + 2), back);
    EXPECT_EQ(picture.At(row.right - 5, row.bottom - 1), line);
    EXPECT_EQ(picture.At(grid.GetLeftColumnWidth(), row.top + 2), line);
    EXPECT_EQ(picture.At(390, 290), RGB(1, 2, 3));
    EXPECT_GT(picture.CountColour(row, RGB(0, 0, 90)), 10) << "the value's text";
    const CRect offRow = off->GetRect();
    EXPECT_EQ(picture.CountColour(offRow, RGB(0, 0, 90)), 0);
    EXPECT_GT(picture.CountColour(offRow, ::GetSysColor(COLOR_GRAYTEXT)), 3);
    const CRect fixedRow = fixed->GetRect();
    EXPECT_GT(picture.CountColour(fixedRow, ::GetSysColor(COLOR_GRAYTEXT)), 3) << "a read-only value is grey";
}

TEST_F(PropertyGridLayout, AModifiedValueIsBoldWhenMarked)
{
    const auto ink = [&] {
        const Snapshot picture(grid);
        const CRect row = title->GetRect();
        const CRect value(grid.GetLeftColumnWidth() + 1, row.top, row.right, row.bottom - 1);
        return value.Width() * value.Height() - picture.CountColour(value, grid.GetBkColor());
    };
    const int plain = ink();
    EXPECT_FALSE(grid.IsMarkModifiedProperties());
    grid.MarkModifiedProperties();
    EXPECT_TRUE(grid.IsMarkModifiedProperties());
    EXPECT_EQ(ink(), plain);
    title->SetOriginalValue(COleVariant(L"other"));
    EXPECT_GT(ink(), plain);
    title->SetOriginalValue(COleVariant(L"Draft"));
    EXPECT_EQ(ink(), plain);
}

// Counts how often it is drawn.
class DrawnProperty : public CMFCPropertyGridProperty
{
public:
    explicit DrawnProperty(const wchar_t* name) : CMFCPropertyGridProperty(name, _variant_t(1L)) {}
    void OnDrawName(CDC* dc, CRect rect) override
    {
        ++drawn;
        CMFCPropertyGridProperty::OnDrawName(dc, rect);
    }

    static inline int drawn = 0;
};

TEST_F(PropertyGridLayout, OnlyTheRowsInTheUpdateRegionAreDrawn)
{
    for (int i = 0; i < 1000; ++i)
        grid.AddProperty(new DrawnProperty(L"row"));
    grid.EnsureVisible(grid.GetProperty(500));
    grid.UpdateWindow();
    DrawnProperty::drawn = 0;
    grid.Invalidate();
    grid.UpdateWindow();
    const int inView = (grid.GetListRect().Height() + grid.GetRowHeight() - 1) / grid.GetRowHeight();
    EXPECT_GE(DrawnProperty::drawn, inView - 1);
    EXPECT_LE(DrawnProperty::drawn, inView + 1);
    DrawnProperty::drawn = 0;
    grid.GetProperty(500)->SetValue(_variant_t(2L));
    grid.UpdateWindow();
    EXPECT_EQ(DrawnProperty::drawn, 1);
}

TEST_F(PropertyGridLayout, TheWindowIsNotErasedBeforePainting)
{
    grid.UpdateWindow();
    CClientDC dc(&grid);
    EXPECT_TRUE(grid.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)));
    const CPoint below(grid.GetLeftColumnWidth() / 2, size->GetRect().top + 2);
    dc.SetPixel(below, RGB(255, 0, 255));
    EXPECT_EQ(dc.GetPixel(below), RGB(255, 0, 255));
    grid.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC));
    EXPECT_EQ(dc.GetPixel(below), RGB(255, 0, 255));
}

TEST_F(PropertyGridLayout, AnEmptyGridWorks)
{
    grid.RemoveAll();
    grid.EnableDescriptionArea();
    for (UINT key : {VK_DOWN, VK_END, VK_NEXT, VK_RIGHT, VK_RETURN, VK_F2, VK_F4})
        grid.SendMessage(WM_KEYDOWN, key, 0);
    grid.SendMessage(WM_CHAR, 'a', 0);
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 60));
    grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(50, 60));
    grid.SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(50, 60));
    grid.SetAlphabeticMode();
    grid.ExpandAll();
    grid.EnsureVisible(NULL);
    grid.Invalidate();
    grid.UpdateWindow();
    EXPECT_TRUE(grid.EndEditItem());
    EXPECT_FALSE(grid.EditItem(NULL));
    EXPECT_EQ(grid.GetCurSel(), nullptr);
    EXPECT_EQ(Rows(), L"");
}

TEST_F(PropertyGridLayout, TheWindowCanBeDestroyedAndCreatedAgain)
{
    grid.SetCurSel(title);
    grid.DestroyWindow();
    EXPECT_EQ(grid.HitTest(CPoint(30, 60)), nullptr);
    EXPECT_TRUE(title->GetRect().IsRectEmpty() || title->GetRect().Width() == 0);
    ASSERT_TRUE(grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 300), &host, GridId));
    EXPECT_EQ(Rows(),
              L"Texts Title Code Fixed Off Numbers Count Level Ratio Choices Visible Shape Unit Size");
}

TEST_F(PropertyGridLayout, AttachesToAPlaceholder)
{
    CStatic placeholder;
    placeholder.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 300, 400, 400), &host, 9);
    const HWND window = placeholder.Detach();
    CMFCPropertyGridCtrl second;
    ASSERT_TRUE(second.SubclassWindow(window));
    auto* const property = new Property(L"Only", _variant_t(1L));
    second.AddProperty(property);
    EXPECT_EQ(property->GetRect().top, second.GetListRect().top);
    CPoint inside(20, 40);
    second.ClientToScreen(&inside);
    EXPECT_EQ(second.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(inside.x, inside.y)), HTCLIENT);
    const Snapshot picture(second);
    EXPECT_EQ(picture.At(390, 90), second.GetBkColor());
}

} // namespace
