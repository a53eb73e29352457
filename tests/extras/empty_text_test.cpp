// The text of a grid without rows: when it shows, where, and what it leaves behind.
#include "grid/extras/TGEmptyText.h"
#include "tests/grid/ModelGrid.h"
#include "tests/grid/WindowGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

constexpr COLORREF red = RGB(255, 0, 0);

class EmptyText : public GridWindowTest
{
protected:
    void Make(int width = 400, int height = 300)
    {
        Create(grid, width, height);
        grid.AppendCol(L"A", 100);
        empty.AttachTo(grid);
        // What has a pure colour is a letter, also where edges are smoothed.
        empty.SetColor(red);
    }
    // The rectangle of the data area that has text in it, in client coordinates; empty without any.
    CRect Written()
    {
        const Snapshot picture(grid);
        const CRect area = grid.Area();
        CRect written(0, 0, 0, 0);
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (IsReddish(picture.At(x, y)))
                    written.UnionRect(&written, CRect(x, y, x + 1, y + 1));
        return written;
    }
    static bool IsReddish(COLORREF colour)
    {
        return GetRValue(colour) > 200 && GetGValue(colour) < 120 && GetBValue(colour) < 120;
    }

    WindowGrid grid;
    TGEmptyText empty;
};

TEST_F(EmptyText, StandsInTheMiddleOfTheCellArea)
{
    Make();
    EXPECT_TRUE(Written().IsRectEmpty());
    empty.SetText(L"no rows yet");
    const CRect written = Written();
    ASSERT_FALSE(written.IsRectEmpty());
    CRect area = grid.Area();
    area.top += rowHeight;
    EXPECT_NEAR(written.CenterPoint().x, area.CenterPoint().x, 3);
    EXPECT_NEAR(written.CenterPoint().y, area.CenterPoint().y, 5);
    EXPECT_LT(written.Height(), 20);
}

TEST_F(EmptyText, WithoutANewRowLine_TheWholeAreaCounts)
{
    Make();
    empty.SetText(L"no rows yet");
    const int before = Written().CenterPoint().y;
    grid.SetNoAppendButton(true);
    grid.RecalcLayout(1);
    EXPECT_NEAR(Written().CenterPoint().y, before - rowHeight / 2, 2);
}

TEST_F(EmptyText, IsBrokenIntoLinesThatFit)
{
    Make(130);
    empty.SetText(L"There are no rows here yet.");
    const CRect written = Written();
    EXPECT_GT(written.Height(), 30);
    EXPECT_GE(written.left, grid.Area().left + 6);
    EXPECT_LE(written.right, grid.Area().right - 6);
    empty.SetText(L"a\nb");
    EXPECT_GT(Written().Height(), 20);
}

TEST_F(EmptyText, GoesWithTheFirstRow_AndComesBackAfterTheLast)
{
    Make();
    empty.SetText(L"no rows yet");
    const CRect written = Written();
    grid.AppendRow(nullptr);
    EXPECT_TRUE(Written().IsRectEmpty());
    grid.DelRow(0);
    EXPECT_EQ(Text(Written()), Text(written));
    grid.SetRowNum(100);
    EXPECT_TRUE(Written().IsRectEmpty());
    grid.Clear();
    EXPECT_EQ(Text(Written()), Text(written));
    {
        const TGGridUpdate update(grid);
        grid.SetRowNum(3);
    }
    EXPECT_TRUE(Written().IsRectEmpty());
}

TEST_F(EmptyText, FollowsTheSize_AndLeavesNoTrace)
{
    Make();
    empty.SetText(L"no rows yet");
    Written();
    grid.MoveWindow(10, 10, 250, 180);
    const CRect written = Written();
    EXPECT_NEAR(written.CenterPoint().x, grid.Area().CenterPoint().x, 3);
    const Snapshot first(grid);
    // Drawn over itself it is the same.
    grid.Refresh();
    const Snapshot second(grid);
    for (int y = 0; y < first.Height(); ++y)
        for (int x = 0; x < first.Width(); ++x)
            ASSERT_EQ(first.At(x, y), second.At(x, y)) << x << "," << y;
}

TEST_F(EmptyText, OtherTexts_AndNone)
{
    Make();
    empty.SetText(L"WWWWWWWWWW");
    const int wide = Written().Width();
    empty.SetText(L"i");
    EXPECT_LT(Written().Width(), wide);
    empty.SetText(nullptr);
    EXPECT_TRUE(Written().IsRectEmpty());
    EXPECT_EQ(empty.GetText(), L"");
    EXPECT_EQ(empty.GetColor(), red);
}

TEST_F(EmptyText, GoesWithTheExtension)
{
    Make();
    empty.SetText(L"no rows yet");
    ASSERT_FALSE(Written().IsRectEmpty());
    empty.Detach();
    EXPECT_TRUE(Written().IsRectEmpty());
    empty.SetText(L"other");
}

TEST_F(EmptyText, AGridThatHasNoRoom)
{
    Make(30, 30);
    empty.SetText(L"no rows yet");
    Written();
    EXPECT_TRUE(grid.IsEmpty());
}

TEST(EmptyTextAttaching, TwiceOrToTwoGrids_WithoutAWindow_AndAfterTheGrid)
{
    TGEmptyText empty;
    empty.SetText(L"text");
    {
        ModelGrid grid;
        ModelGrid other;
        EXPECT_TRUE(empty.AttachTo(grid));
        EXPECT_FALSE(empty.AttachTo(grid));
        EXPECT_FALSE(empty.AttachTo(other));
        AddCols(grid, 1);
        grid.SetRowNum(1);
        grid.SetRowNum(0);
        empty.SetColor(red);
    }
    EXPECT_EQ(empty.GetGrid(), nullptr);
    empty.SetText(L"other");
}

} // namespace
} // namespace quor::test
