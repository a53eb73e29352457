// The look of the current cell: the answers to each stage of drawing, and the drawn cell.
#include "tests/controls/OwnedList.h"
#include "tests/support/Snapshot.h"

using namespace quor::test;

namespace
{

constexpr UINT BeforeSubItem = CDDS_ITEMPREPAINT | CDDS_SUBITEM;
constexpr UINT AfterSubItem = CDDS_ITEMPOSTPAINT | CDDS_SUBITEM;

class ListPaint : public ListTest
{
protected:
    ListPaint()
    {
        MakeColumns(3);
        MakeRows(5);
    }

    // What the list answers in a stage; it draws into its own window.
    LRESULT Answer(DWORD stage, UINT itemState, int row = 1, int subItem = 0, CRect rectangle = CRect())
    {
        CClientDC context(&list);
        CFont* previous = context.SelectObject(list.GetFont());
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdr.hwndFrom = list.m_hWnd;
        draw.nmcd.hdr.code = static_cast<UINT>(NM_CUSTOMDRAW);
        draw.nmcd.dwDrawStage = stage;
        draw.nmcd.hdc = context.m_hDC;
        draw.nmcd.rc = rectangle;
        draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
        draw.nmcd.uItemState = itemState;
        draw.iSubItem = subItem;
        LRESULT result = -1;
        list.OnCustomDraw(&draw.nmcd.hdr, &result);
        context.SelectObject(previous);
        return result;
    }

    // The outer and inner edges and the face of a drawn cell.
    static void ExpectSunken(const Snapshot& picture, const CRect& cell)
    {
        EXPECT_EQ(picture.At(cell.left, cell.top), ::GetSysColor(COLOR_3DSHADOW));
        EXPECT_EQ(picture.At(cell.left, cell.bottom - 2), ::GetSysColor(COLOR_3DSHADOW));
        EXPECT_EQ(picture.At(cell.right - 1, cell.bottom - 1), ::GetSysColor(COLOR_3DFACE));
        EXPECT_EQ(picture.At(cell.left + 1, cell.top + 1), ::GetSysColor(COLOR_3DDKSHADOW));
        EXPECT_EQ(picture.At(cell.right - 2, cell.bottom - 2), ::GetSysColor(COLOR_3DHIGHLIGHT));
        EXPECT_EQ(picture.At(cell.left + 3, cell.top + 3), ::GetSysColor(COLOR_3DFACE));
    }
};

TEST_F(ListPaint, EachStage_HasItsAnswer)
{
    list.curColumn = 0;
    EXPECT_EQ(Answer(CDDS_PREPAINT, 0), CDRF_NOTIFYITEMDRAW);
    EXPECT_EQ(Answer(CDDS_ITEMPREPAINT, CDIS_FOCUS), CDRF_NOTIFYSUBITEMDRAW);
    EXPECT_EQ(Answer(CDDS_ITEMPREPAINT, CDIS_FOCUS | CDIS_SELECTED), CDRF_NOTIFYSUBITEMDRAW);
    EXPECT_EQ(Answer(CDDS_ITEMPREPAINT, CDIS_SELECTED), 0);
    EXPECT_EQ(Answer(BeforeSubItem, 0), CDRF_NOTIFYSUBITEMDRAW | CDRF_NOTIFYPOSTPAINT);
    EXPECT_EQ(Answer(AfterSubItem, CDIS_FOCUS), CDRF_SKIPDEFAULT);
    EXPECT_EQ(Answer(AfterSubItem, 0), 0);
    EXPECT_EQ(Answer(AfterSubItem, CDIS_FOCUS, 1, 1), 0) << "another column";
    EXPECT_EQ(Answer(CDDS_POSTPAINT, 0), 0);
    EXPECT_EQ(Answer(CDDS_POSTPAINT, CDIS_FOCUS), CDRF_NOTIFYSUBITEMDRAW) << "as any other stage";
    EXPECT_EQ(Answer(CDDS_ITEMPOSTPAINT, CDIS_FOCUS), CDRF_NOTIFYSUBITEMDRAW) << "as any other stage";
}

TEST_F(ListPaint, NoCurrentColumn_DrawsNothing)
{
    list.curColumn = -1;
    for (const int subItem : {-1, 0, 1})
        EXPECT_EQ(Answer(AfterSubItem, CDIS_FOCUS, 1, subItem), 0);
}

TEST_F(ListPaint, CurrentCell_IsTheColumnAtTheDisplayPosition)
{
    list.Order({2, 0, 1});
    list.curColumn = 0;
    EXPECT_EQ(Answer(AfterSubItem, CDIS_FOCUS, 1, 2), CDRF_SKIPDEFAULT);
    EXPECT_EQ(Answer(AfterSubItem, CDIS_FOCUS, 1, 0), 0);
}

TEST_F(ListPaint, CellOfASubItem_TakesItsEdgesFromTheNotification)
{
    list.curColumn = 1;
    list.UpdateWindow();
    Answer(AfterSubItem, CDIS_FOCUS, 1, 1, CRect(120, 0, 180, 3));
    const CRect bounds = list.Bounds(1);
    ExpectSunken(Snapshot(list.m_hWnd), CRect(120, bounds.top, 180, bounds.bottom));
}

TEST_F(ListPaint, CellOfASubItem_MovesWithTheScrolledRow)
{
    list.SetColumnWidth(2, 400);
    list.curColumn = 1;
    list.Scroll(CSize(50, 0));
    list.UpdateWindow();
    Answer(AfterSubItem, CDIS_FOCUS, 1, 1, CRect(120, 0, 180, 3));
    const CRect bounds = list.Bounds(1);
    ExpectSunken(Snapshot(list.m_hWnd), CRect(70, bounds.top, 130, bounds.bottom));
}

TEST_F(ListPaint, CellOfTheItem_TakesItsEdgesFromTheLabel)
{
    list.curColumn = 0;
    list.UpdateWindow();
    Answer(AfterSubItem, CDIS_FOCUS, 1, 0, CRect(120, 0, 180, 3));
    CRect label;
    list.GetItemRect(1, label, LVIR_LABEL);
    const CRect bounds = list.Bounds(1);
    ExpectSunken(Snapshot(list.m_hWnd), CRect(label.left, bounds.top, label.right, bounds.bottom));
}

TEST_F(ListPaint, Text_KeepsTwoBlanksFromBothEdges)
{
    list.SetItemText(1, 1, CString(L'W', 80));
    list.curColumn = 1;
    list.UpdateWindow();
    Answer(AfterSubItem, CDIS_FOCUS, 1, 1, CRect(100, 0, 200, 3));
    CClientDC context(&list);
    CFont* previous = context.SelectObject(list.GetFont());
    const int margin = 2 * context.GetTextExtent(L" ", 1).cx;
    context.SelectObject(previous);
    const CRect bounds = list.Bounds(1);
    const Snapshot picture(list.m_hWnd);
    const COLORREF face = ::GetSysColor(COLOR_3DFACE);
    EXPECT_TRUE(picture.IsAll(CRect(103, bounds.top + 2, 100 + margin, bounds.bottom - 2), face));
    EXPECT_TRUE(picture.IsAll(CRect(200 - margin, bounds.top + 2, 197, bounds.bottom - 2), face));
    EXPECT_FALSE(picture.IsAll(CRect(100 + margin, bounds.top + 2, 200 - margin, bounds.bottom - 2), face));
}

TEST_F(ListPaint, FocusedRow_ShowsTheCurrentCell)
{
    SetCurrent(1, 1);
    list.Invalidate();
    const Snapshot picture(list.m_hWnd);
    ExpectSunken(picture, list.Cell(1, 1));
    EXPECT_NE(picture.At(list.Cell(1, 2).left + 3, list.Cell(1, 2).top + 3), ::GetSysColor(COLOR_3DFACE));
}

TEST_F(ListPaint, ScrolledList_ShowsTheCurrentCellWhereItIs)
{
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW);
    const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT);
    const COLORREF face = ::GetSysColor(COLOR_3DFACE);
    list.SetColumnWidth(2, 400);
    for (const std::vector<int>& order : {std::vector<int>{0, 1, 2}, {1, 0, 2}})
    {
        list.Order(order);
        for (int position = 0; position < 3; ++position)
        {
            const int column = order[static_cast<size_t>(position)];
            list.Scroll(CSize(-1000, 0));
            SetCurrent(1, position);
            list.Scroll(CSize(50, 0));
            list.Invalidate();
            CRect cell = list.Cell(1, column);
            if (column == 0)
            {
                CRect label;
                list.GetItemRect(1, label, LVIR_LABEL);
                EXPECT_GE(label.left, cell.left);
                EXPECT_LE(label.right, cell.right);
                cell.left = label.left;
                cell.right = label.right;
            }
            SCOPED_TRACE("column " + std::to_string(column) + " at " + std::to_string(position));
            const Snapshot picture(list.m_hWnd);
            // The edges that the scrolling leaves in sight.
            const bool leftShown = cell.left >= 0;
            const bool rightShown = cell.right <= picture.Width();
            EXPECT_TRUE(leftShown || rightShown);
            EXPECT_TRUE(!leftShown || picture.At(cell.left + 1, cell.top + 1) == dark);
            EXPECT_TRUE(!rightShown || picture.At(cell.right - 2, cell.bottom - 2) == light);
            // Nothing of the frame stands beside the cell.
            EXPECT_TRUE(cell.left < 10 || picture.At(cell.left - 3, cell.top + 3) != face);
        }
    }
}

// The platform leaves the colours of a selected row in the context.
TEST_F(ListPaint, CurrentCellOfASelectedRow_HasTheColoursOfAButton)
{
    CFont plain;
    ASSERT_TRUE(plain.CreateFont(-12, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                 OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, NONANTIALIASED_QUALITY,
                                 DEFAULT_PITCH, L"Tahoma"));
    list.SetFont(&plain);
    list.SetItemText(1, 1, CString(L'I', 8));
    SetCurrent(1, 1);
    list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetFocus();
    list.Invalidate();
    CRect inside = list.Cell(1, 1);
    inside.DeflateRect(3, 3);
    const Snapshot picture(list.m_hWnd);
    ASSERT_NE(::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_GT(picture.CountColour(inside, ::GetSysColor(COLOR_BTNTEXT)), 0);
    EXPECT_EQ(picture.CountColour(inside, ::GetSysColor(COLOR_HIGHLIGHTTEXT)), 0);
    EXPECT_EQ(picture.CountColour(inside, ::GetSysColor(COLOR_HIGHLIGHT)), 0);
}

TEST_F(ListPaint, FocusedRow_ShowsTheLabelAsTheCurrentCell)
{
    SetCurrent(1, 0);
    list.Invalidate();
    CRect label;
    list.GetItemRect(1, label, LVIR_LABEL);
    const Snapshot picture(list.m_hWnd);
    EXPECT_EQ(picture.At(label.left + 1, label.top + 1), ::GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(picture.At(label.right - 2, label.bottom - 2), ::GetSysColor(COLOR_3DHIGHLIGHT));
}

} // namespace
