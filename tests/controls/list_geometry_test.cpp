// The rules of where columns and editors go, without windows.
#include "controls/ListGeometry.h"

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
    CSize needed;
    CRect expected;
    bool needsRoom;
    bool needsScrollBar;
};

TEST(ListGeometry, GrowEditor_GrowsOnlyAndStopsTwoPixelsBeforeTheEdges)
{
    const CRect editor(104, 20, 164, 36);
    const CRect list(0, 0, 300, 200);
    const Growth cases[] = {
        {CSize(60, 16), editor, false, false},
        {CSize(10, 5), editor, false, false},
        {CSize(61, 16), CRect(104, 20, 165, 36), true, false},
        {CSize(194, 16), CRect(104, 20, 298, 36), true, false},
        {CSize(900, 16), CRect(104, 20, 298, 36), true, false},
        {CSize(60, 17), CRect(104, 20, 164, 37), true, false},
        {CSize(60, 177), CRect(104, 20, 164, 197), true, false},
        {CSize(60, 178), CRect(104, 20, 164, 198), true, true},
        {CSize(60, 900), CRect(104, 20, 164, 198), true, true},
        {CSize(90, 50), CRect(104, 20, 194, 70), true, false},
    };
    for (const Growth& growth : cases)
    {
        SCOPED_TRACE(testing::Message() << growth.needed.cx << " x " << growth.needed.cy);
        const GrownEditor grown = GrowEditor(editor, growth.needed, list);
        EXPECT_EQ(grown.rectangle, growth.expected);
        EXPECT_EQ(grown.needsRoom, growth.needsRoom);
        EXPECT_EQ(grown.needsScrollBar, growth.needsScrollBar);
    }
}

TEST(ListGeometry, GrowEditor_DrawsAnEdgeBackThatLayBeyond)
{
    const CRect list(0, 0, 300, 200);
    EXPECT_EQ(GrowEditor(CRect(104, 20, 300, 36), CSize(900, 16), list).rectangle, CRect(104, 20, 298, 36));
    EXPECT_EQ(GrowEditor(CRect(104, 20, 164, 200), CSize(60, 900), list).rectangle, CRect(104, 20, 164, 198));
}

} // namespace
