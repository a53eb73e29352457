// The list's preparation, the places it gives to editors, and how it shows columns.
#include "tests/controls/OwnedList.h"

using namespace quor::test;

namespace
{

class ListColumns : public ListTest
{
protected:
    int Left(int column) { return list.Cell(0, column).left; }
};

TEST_F(ListColumns, NewList_HasNoCurrentColumn)
{
    TestList fresh;
    EXPECT_EQ(fresh.curColumn, -1);
}

TEST_F(ListColumns, PrepareControl_MakesAReportWithoutLabelEditing)
{
    CGridListCtrl plain;
    ASSERT_TRUE(plain.Create(WS_CHILD | LVS_SMALLICON | LVS_EDITLABELS | LVS_SINGLESEL, CRect(0, 0, 9, 9),
                             &owner, 5));
    plain.SetExtendedStyle(LVS_EX_GRIDLINES);
    EXPECT_EQ(plain.PrepareControl(0xABCD), 1);
    EXPECT_EQ(plain.GetStyle() & (LVS_TYPEMASK | LVS_EDITLABELS | LVS_SINGLESEL),
              static_cast<DWORD>(LVS_REPORT | LVS_SINGLESEL));
    EXPECT_EQ(plain.GetExtendedStyle(),
              static_cast<DWORD>(LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP | LVS_EX_GRIDLINES));
}

TEST_F(ListColumns, PrepareControl_StoresTheFlags)
{
    EXPECT_EQ(list.editFlags, 7);
    list.PrepareControl(0xFFFF);
    EXPECT_EQ(list.editFlags, 0xFFFF);
}

TEST_F(ListColumns, PositionControl_PutsTheControlIntoTheCell)
{
    MakeColumns(3);
    MakeRows(3);
    EXPECT_TRUE(owner.Edit(1, 2, L"x"));
    const CRect bounds = list.Bounds(1);
    EXPECT_EQ(owner.editor->Place(), CRect(204, bounds.top, 301, bounds.bottom));
}

TEST_F(ListColumns, PositionControl_UsesTheDisplayedPlaceOfTheColumn)
{
    MakeColumns(3);
    list.SetColumnWidth(0, 60);
    list.Order({2, 0, 1});
    MakeRows(3);
    EXPECT_TRUE(owner.Edit(0, 1, L"x"));
    EXPECT_EQ(owner.editor->Place().left, 164);
    EXPECT_EQ(owner.editor->Place().right, 261);
}

TEST_F(ListColumns, PositionControl_EndsWithTheClientArea)
{
    MakeColumns(1, 900);
    MakeRows(1);
    EXPECT_TRUE(owner.Edit(0, 0, L"x"));
    EXPECT_EQ(owner.editor->Place().left, 4);
    EXPECT_EQ(owner.editor->Place().right, 320);
}

TEST_F(ListColumns, PositionControl_ScrollsTheColumnToTheLeft)
{
    MakeColumns(9);
    MakeRows(3);
    EXPECT_TRUE(owner.Edit(0, 4, L"x"));
    EXPECT_EQ(Left(4), 0);
    EXPECT_EQ(owner.editor->Place().left, 4);
    EXPECT_EQ(owner.editor->Place().right, 101);
    owner.CloseEditor();
    EXPECT_TRUE(owner.Edit(0, 2, L"x"));
    EXPECT_EQ(Left(2), 0) << "also back to the left";
}

TEST_F(ListColumns, PositionControl_WhereScrollingStopsAtTheEnd_StillTakesTheLeftEdge)
{
    MakeColumns(9);
    MakeRows(3);
    EXPECT_TRUE(owner.Edit(0, 8, L"x"));
    EXPECT_GT(Left(8), 0);
    EXPECT_EQ(owner.editor->Place().left, 4);
    EXPECT_EQ(owner.editor->Place().right, 101);
}

TEST_F(ListColumns, PositionControl_LeavesAPartlyVisibleRowWhereItIs)
{
    MakeColumns(2);
    MakeRows(100);
    CRect client;
    list.GetClientRect(client);
    const int partlyVisible = list.GetTopIndex() + list.GetCountPerPage();
    ASSERT_LT(list.Bounds(partlyVisible).top, client.bottom);
    ASSERT_GT(list.Bounds(partlyVisible).bottom, client.bottom);
    EXPECT_TRUE(owner.Edit(partlyVisible, 1, L"x"));
    EXPECT_EQ(list.GetTopIndex(), 0);
}

TEST_F(ListColumns, PositionControl_ScrollsTheRowIntoView)
{
    MakeColumns(2);
    MakeRows(100);
    EXPECT_TRUE(owner.Edit(90, 1, L"x"));
    EXPECT_GT(list.GetTopIndex(), 0);
    EXPECT_EQ(owner.editor->Place().top, list.Bounds(90).top);
}

TEST_F(ListColumns, PositionControl_RefusesNarrowColumns)
{
    MakeColumns(3);
    MakeRows(2);
    CStatic control;
    control.Create(L"", WS_CHILD, CRect(1, 2, 3, 4), &list, 77);
    list.SetColumnWidth(1, 4);
    EXPECT_EQ(list.PositionControl(&control, 0, 1), 0);
    CRect place;
    control.GetWindowRect(place);
    list.ScreenToClient(place);
    EXPECT_EQ(place, CRect(1, 2, 3, 4)) << "left alone";
    list.SetColumnWidth(1, 5);
    EXPECT_EQ(list.PositionControl(&control, 0, 1), 1);
}

TEST_F(ListColumns, PositionControl_LooksForNarrowColumnsAtTheDisplayPosition)
{
    MakeColumns(3);
    MakeRows(2);
    CStatic control;
    control.Create(L"", WS_CHILD, CRect(1, 2, 3, 4), &list, 77);
    list.SetColumnWidth(2, 4);
    list.Order({2, 0, 1});
    EXPECT_EQ(list.PositionControl(&control, 0, 0), 0) << "position 0 shows the narrow column";
    EXPECT_EQ(list.PositionControl(&control, 0, 2), 1) << "position 2 shows a wide one";
}

TEST_F(ListColumns, PositionControl_RefusesWhatIsNotThere)
{
    CStatic control;
    control.Create(L"", WS_CHILD, CRect(1, 2, 3, 4), &list, 77);
    EXPECT_EQ(list.PositionControl(&control, 0, 0), 0) << "no columns, no rows";
    MakeColumns(3);
    EXPECT_EQ(list.PositionControl(&control, 0, 0), 0) << "no rows";
    MakeRows(2);
    for (const int row : {-1, 2, 1000})
        EXPECT_EQ(list.PositionControl(&control, row, 0), 0) << "row " << row;
    for (const int column : {-1, 3, 1000})
        EXPECT_EQ(list.PositionControl(&control, 0, column), 0) << "column " << column;
    EXPECT_EQ(list.PositionControl(nullptr, 0, 0), 0);
}

TEST_F(ListColumns, MakeColumnVisible_LeavesAVisibleColumnAlone)
{
    MakeColumns(9);
    MakeRows(2);
    list.Scroll(CSize(150, 0));
    list.MakeColumnVisible(2);
    list.MakeColumnVisible(3);
    EXPECT_EQ(Left(0), -150);
}

TEST_F(ListColumns, MakeColumnVisible_BringsTheColumnToTheLeftEdge)
{
    MakeColumns(9);
    MakeRows(2);
    list.MakeColumnVisible(3);
    EXPECT_EQ(Left(3), 0) << "partly hidden at the right";
    list.Scroll(CSize(50, 0));
    list.MakeColumnVisible(3);
    EXPECT_EQ(Left(3), 0) << "partly hidden at the left";
}

TEST_F(ListColumns, MakeColumnVisible_FollowsTheDisplayedOrder)
{
    MakeColumns(9);
    list.Order({8, 0, 1, 2, 3, 4, 5, 6, 7});
    MakeRows(2);
    list.MakeColumnVisible(3);
    EXPECT_EQ(Left(3), 0);
    list.MakeColumnVisible(8);
    EXPECT_EQ(Left(8), 0);
}

TEST_F(ListColumns, MakeColumnVisible_IgnoresWhatIsNotThere)
{
    list.MakeColumnVisible(0);
    MakeColumns(9);
    list.MakeColumnVisible(8);
    MakeRows(2);
    list.MakeColumnVisible(-1);
    EXPECT_EQ(Left(0), 0);
}

TEST_F(ListColumns, MakeColumnVisible_BehindTheLastColumn_ShowsTheEnd)
{
    MakeColumns(9);
    MakeRows(2);
    list.MakeColumnVisible(1000);
    CRect client;
    list.GetClientRect(client);
    EXPECT_EQ(list.Cell(0, 8).right, client.right);
}

} // namespace
