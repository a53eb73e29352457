// The geometry of a property grid.
#include "propertyrules/PropertyGridGeometry.h"

#include <gtest/gtest.h>

#include <string>

using namespace quorfx;

namespace
{

std::string Text(const Box& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "-" + std::to_string(rect.right) +
           "," + std::to_string(rect.bottom);
}

const Box List(0, 20, 200, 120);

TEST(PropertyGridGeometry, TheListTakesAllThatTheOthersLeave)
{
    const PropertyGridAreas areas = ComputeAreas(200, 300, {20, 24, 0, 16}, 5);
    EXPECT_EQ(Text(areas.header), "0,0-200,24");
    EXPECT_EQ(Text(areas.list), "0,24-200,300");
    EXPECT_TRUE(areas.scrollBar.IsEmpty());
    EXPECT_TRUE(areas.description.IsEmpty());
}

TEST(PropertyGridGeometry, TheScrollBarStandsBesideTheListOnlyWhenRowsDoNotFit)
{
    EXPECT_EQ(Text(ComputeAreas(200, 100, {20, 0, 0, 16}, 5).list), "0,0-200,100");
    const PropertyGridAreas areas = ComputeAreas(200, 100, {20, 0, 0, 16}, 6);
    EXPECT_EQ(Text(areas.list), "0,0-184,100");
    EXPECT_EQ(Text(areas.scrollBar), "184,0-200,100");
}

TEST(PropertyGridGeometry, TheDescriptionGivesWayToTheFirstRow)
{
    const PropertyGridAreas roomy = ComputeAreas(200, 300, {20, 24, 3, 16}, 5);
    EXPECT_EQ(roomy.description.Height(), 3 * 20 + 12);
    EXPECT_EQ(roomy.list.bottom, roomy.description.top);
    const PropertyGridAreas narrow = ComputeAreas(200, 60, {20, 24, 3, 16}, 5);
    EXPECT_EQ(narrow.list.Height(), 20);
    EXPECT_EQ(narrow.description.Height(), 16);
}

TEST(PropertyGridGeometry, AClientAreaOfNothingGivesEmptyParts)
{
    const PropertyGridAreas areas = ComputeAreas(0, 0, {20, 24, 3, 16}, 5);
    EXPECT_TRUE(areas.header.IsEmpty());
    EXPECT_TRUE(areas.list.IsEmpty());
    EXPECT_TRUE(areas.scrollBar.IsEmpty());
    EXPECT_TRUE(areas.description.IsEmpty());
}

TEST(PropertyGridGeometry, RowsAndPointsFitTogether)
{
    EXPECT_EQ(Text(RowRectangle(List, 20, 3, 3)), "0,20-200,40");
    EXPECT_EQ(Text(RowRectangle(List, 20, 3, 1)), "0,-20-200,0");
    for (int row = 3; row < 8; ++row)
    {
        const Box rect = RowRectangle(List, 20, 3, row);
        EXPECT_EQ(RowAtY(List, 20, 3, 100, rect.top), row);
        EXPECT_EQ(RowAtY(List, 20, 3, 100, rect.bottom - 1), row);
    }
    EXPECT_EQ(RowAtY(List, 20, 3, 100, 19), -1);
    EXPECT_EQ(RowAtY(List, 20, 3, 100, 120), -1);
    EXPECT_EQ(RowAtY(List, 20, 3, 5, 60), -1) << "below the last row";
    EXPECT_EQ(RowAtY(List, 0, 0, 5, 60), -1) << "no font yet";
}

TEST(PropertyGridGeometry, ScrollingKeepsTheListFull)
{
    EXPECT_EQ(FullRows(List, 20), 5);
    EXPECT_EQ(FullRows(List, 21), 4);
    EXPECT_EQ(FullRows(List, 300), 1);
    EXPECT_EQ(ClampFirstRow(-4, 20, 5), 0);
    EXPECT_EQ(ClampFirstRow(18, 20, 5), 15);
    EXPECT_EQ(ClampFirstRow(3, 4, 5), 0);
}

TEST(PropertyGridGeometry, ShowingARowScrollsTheLeast)
{
    EXPECT_EQ(FirstRowShowing(2, 6, 5), 2);
    EXPECT_EQ(FirstRowShowing(6, 6, 5), 6);
    EXPECT_EQ(FirstRowShowing(10, 6, 5), 6);
    EXPECT_EQ(FirstRowShowing(11, 6, 5), 7);
}

TEST(PropertyGridGeometry, NavigationKeys)
{
    EXPECT_EQ(RowAfterKey(NavigationKey::Down, -1, 10, 4), 0);
    EXPECT_EQ(RowAfterKey(NavigationKey::Up, -1, 10, 4), 0);
    EXPECT_EQ(RowAfterKey(NavigationKey::Up, 0, 10, 4), 0);
    EXPECT_EQ(RowAfterKey(NavigationKey::Down, 9, 10, 4), 9);
    EXPECT_EQ(RowAfterKey(NavigationKey::PageDown, 3, 10, 4), 7);
    EXPECT_EQ(RowAfterKey(NavigationKey::PageDown, 7, 10, 4), 9);
    EXPECT_EQ(RowAfterKey(NavigationKey::PageUp, 3, 10, 4), 0);
    EXPECT_EQ(RowAfterKey(NavigationKey::Home, 3, 10, 4), 0);
    EXPECT_EQ(RowAfterKey(NavigationKey::End, 3, 10, 4), 9);
    EXPECT_EQ(RowAfterKey(NavigationKey{9}, 3, 10, 4), -1);
    EXPECT_EQ(RowAfterKey(NavigationKey::Down, -1, 0, 4), -1) << "an empty grid";
}

TEST(PropertyGridGeometry, BothColumnsKeepSomeWidth)
{
    EXPECT_EQ(ClampColumn(0, 200, 20), 40);
    EXPECT_EQ(ClampColumn(500, 200, 20), 160);
    EXPECT_EQ(ClampColumn(90, 200, 20), 90);
    EXPECT_EQ(ClampColumn(90, 30, 20), 15) << "a list that has no room for both";
    EXPECT_EQ(ScaleColumn(50, 200, 400), 100);
    EXPECT_EQ(ScaleColumn(50, 0, 400), 200);
    EXPECT_EQ(ScaleColumn(5, 10, 13), 7) << "halves are rounded up";
    EXPECT_EQ(ScaleColumn(-5, 10, 13), -7);
    EXPECT_EQ(ScaleColumn(1, 3, 4), 1);
}

TEST(PropertyGridGeometry, TheCellsOfARowLieSideBySide)
{
    const Box row(0, 20, 200, 40);
    EXPECT_EQ(Text(NameRectangle(row, 20, 0, 90)), "20,20-90,39");
    EXPECT_EQ(Text(NameRectangle(row, 20, 2, 90)), "60,20-90,39");
    EXPECT_EQ(NameRectangle(row, 20, 9, 90).Width(), 0);
    EXPECT_EQ(Text(ValueRectangle(row, 90)), "91,20-200,39");
    EXPECT_EQ(Text(ButtonRectangle(Box(91, 20, 200, 39))), "181,20-200,39");
    EXPECT_EQ(Text(ButtonRectangle(Box(191, 20, 200, 39))), "191,20-200,39") << "no wider than the value";
    const Box box = FoldBoxRectangle(row, 20, 1, 90);
    EXPECT_EQ(Text(box), "24,24-35,35");
    EXPECT_EQ(box.Width() % 2, 1) << "the plus has a middle";
}

TEST(PropertyGridGeometry, AnEditorStandsWhereTheTextStood)
{
    const Box value(91, 20, 200, 39);
    EXPECT_EQ(Text(TextRectangle(value)), "95,20-200,39");
    EXPECT_EQ(Text(EditorRectangle(value, 15)), "95,22-200,39");
}

TEST(PropertyGridGeometry, TheDescriptionFollowsItsEdgeLineByLine)
{
    const PropertyGridMetrics metrics = {20, 24, 3, 16};
    EXPECT_EQ(DescriptionRowsAt(300 - 72, 300, metrics), 3);
    EXPECT_EQ(DescriptionRowsAt(300 - 72 - 9, 300, metrics), 3);
    EXPECT_EQ(DescriptionRowsAt(300 - 72 - 10, 300, metrics), 4);
    EXPECT_EQ(DescriptionRowsAt(299, 300, metrics), 1);
    EXPECT_EQ(DescriptionRowsAt(-100, 300, metrics), 12) << "the header and one row stay";
}

} // namespace
