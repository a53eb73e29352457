// The rules of where columns and editors go.
#include "rules/ListGeometry.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace
{

TEST(ListGeometry, PositionInOrder_FindsTheIndexOrNone)
{
    EXPECT_EQ(PositionInOrder({2, 0, 1}, 2), 0);
    EXPECT_EQ(PositionInOrder({2, 0, 1}, 1), 2);
    EXPECT_EQ(PositionInOrder({2, 0, 1}, 3), -1);
    EXPECT_EQ(PositionInOrder({2, 0, 1}, -1), -1);
    EXPECT_EQ(PositionInOrder({}, 0), -1);
}

TEST(ListGeometry, ColumnIsInside_UpToBothEdges)
{
    EXPECT_TRUE(IsColumnInside(0, 100, 100));
    EXPECT_FALSE(IsColumnInside(-1, 50, 100));
    EXPECT_FALSE(IsColumnInside(1, 100, 100));
}

TEST(ListGeometry, EditorSpan_LeavesRoomAndEndsWithTheClientArea)
{
    EXPECT_EQ(EditorSpan(100, 80, 300).left, 104);
    EXPECT_EQ(EditorSpan(100, 80, 300).right, 181);
    EXPECT_EQ(EditorSpan(0, 400, 300).left, 4);
    EXPECT_EQ(EditorSpan(0, 400, 300).right, 300);
}

struct Growth
{
    Extent needed;
    Box expected;
    bool needsRoom;
    bool needsScrollBar;
};

TEST(ListGeometry, GrowEditor_GrowsOnlyAndStopsTwoPixelsBeforeTheEdges)
{
    const Box editor(104, 20, 164, 36);
    const Box list(0, 0, 300, 200);
    const Growth cases[] = {
        {Extent(60, 16), editor, false, false},
        {Extent(10, 5), editor, false, false},
        {Extent(61, 16), Box(104, 20, 165, 36), true, false},
        {Extent(194, 16), Box(104, 20, 298, 36), true, false},
        {Extent(900, 16), Box(104, 20, 298, 36), true, false},
        {Extent(60, 17), Box(104, 20, 164, 37), true, false},
        {Extent(60, 177), Box(104, 20, 164, 197), true, false},
        {Extent(60, 178), Box(104, 20, 164, 198), true, true},
        {Extent(60, 900), Box(104, 20, 164, 198), true, true},
        {Extent(90, 50), Box(104, 20, 194, 70), true, false},
    };
    for (const Growth& growth : cases)
    {
        SCOPED_TRACE(testing::Message() << growth.needed.width << " x " << growth.needed.height);
        const GrownEditor grown = GrowEditor(editor, growth.needed, list);
        EXPECT_EQ(grown.rectangle, growth.expected);
        EXPECT_EQ(grown.needsRoom, growth.needsRoom);
        EXPECT_EQ(grown.needsScrollBar, growth.needsScrollBar);
    }
}

TEST(ListGeometry, GrowEditor_DrawsAnEdgeBackThatLayBeyond)
{
    const Box list(0, 0, 300, 200);
    EXPECT_EQ(GrowEditor(Box(104, 20, 300, 36), Extent(900, 16), list).rectangle, Box(104, 20, 298, 36));
    EXPECT_EQ(GrowEditor(Box(104, 20, 164, 200), Extent(60, 900), list).rectangle, Box(104, 20, 164, 198));
}

} // namespace
