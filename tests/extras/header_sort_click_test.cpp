// Sorting by clicks of a real mouse: what is a click, what a drag, and the arrows in the captions.
#include "grid/extras/TGHeaderSort.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/HeaderFixture.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class SortClick : public HeaderFixture
{
protected:
    void MakeSorted()
    {
        Make(grid, "bca", 4);
        for (long row = 0; row < 3; ++row)
            grid.GetCell(row, 1).SetText(row == 0 ? L"2" : L"1");
        sorting.AttachTo(grid);
        ASSERT_TRUE(Activate(host));
    }
    CWnd& Header() { return ColHeader(grid); }
    void ClickOn(long col, Modifiers modifiers = Modifiers::None)
    {
        quor::test::Click(Header(), ColBox(grid, col), modifiers);
    }
    // "0+ 1-": the columns that rows are sorted by.
    std::string Keys()
    {
        std::string keys;
        for (const TGSortKey& key : sorting.GetKeys())
            keys += (keys.empty() ? "" : " ") + std::to_string(key.col) + (key.ascending ? "+" : "-");
        return keys;
    }

    CommandGrid grid;
    TGHeaderSort sorting;
};

TEST_F(SortClick, SortsUp_Down_AndNotAtAll)
{
    MakeSorted();
    ClickOn(0);
    EXPECT_EQ(grid.Rows(), "a b c");
    EXPECT_EQ(Keys(), "0+");
    ClickOn(0);
    EXPECT_EQ(grid.Rows(), "c b a");
    EXPECT_EQ(Keys(), "0-");
    ClickOn(0);
    EXPECT_EQ(grid.Rows(), "b c a");
    EXPECT_EQ(Keys(), "");
    EXPECT_FALSE(grid.IsColSelected());
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_EQ(::GetCapture(), nullptr);
}

// The second click of two that follow quickly is a click as well.
TEST_F(SortClick, ADoubleClick_IsTwoClicks)
{
    MakeSorted();
    DoubleClick(Header(), ColBox(grid, 0));
    EXPECT_EQ(Keys(), "0-");
    EXPECT_EQ(grid.Rows(), "c b a");
}

TEST_F(SortClick, AnotherColumn_BecomesTheOnlyKey)
{
    MakeSorted();
    ClickOn(0);
    ClickOn(1);
    EXPECT_EQ(Keys(), "1+");
    EXPECT_EQ(grid.Rows(), "a c b");
}

TEST_F(SortClick, Shift_AddsKeys_TurnsThem_AndTakesThemOut)
{
    MakeSorted();
    ClickOn(1);
    ClickOn(0, Modifiers::Shift);
    EXPECT_EQ(Keys(), "1+ 0+");
    EXPECT_EQ(grid.Rows(), "a c b");
    ClickOn(0, Modifiers::Shift);
    EXPECT_EQ(Keys(), "1+ 0-");
    EXPECT_EQ(grid.Rows(), "c a b");
    ClickOn(1, Modifiers::Shift);
    EXPECT_EQ(Keys(), "1- 0-");
    EXPECT_EQ(grid.Rows(), "b c a");
    ClickOn(0, Modifiers::Shift);
    EXPECT_EQ(Keys(), "1-");
    ClickOn(1, Modifiers::Shift);
    EXPECT_EQ(Keys(), "");
    ClickOn(2, Modifiers::Shift);
    EXPECT_EQ(Keys(), "2+");
}

// ---- What selects

TEST_F(SortClick, Control_SelectsColumns)
{
    MakeSorted();
    ClickOn(0, Modifiers::Control);
    ClickOn(2, Modifiers::Control);
    EXPECT_EQ(grid.Cols(), "A* B C* D");
    EXPECT_EQ(Keys(), "");
    ClickOn(0, Modifiers::Control);
    EXPECT_EQ(grid.Cols(), "A B C* D");
}

TEST_F(SortClick, EveryClick_SelectsAndSorts)
{
    MakeSorted();
    sorting.SetSelecting(TGHeaderSort::Selecting::EveryClick);
    ClickOn(0);
    EXPECT_EQ(grid.Cols(), "A* B C D");
    EXPECT_EQ(Keys(), "0+");
    EXPECT_EQ(grid.Rows(), "a b c");
    ClickOn(0);
    EXPECT_EQ(Keys(), "0-");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(SortClick, NoClickSelects_WhenTheHostSaysSo)
{
    MakeSorted();
    sorting.SetSelecting(TGHeaderSort::Selecting::None);
    ClickOn(0, Modifiers::Control);
    EXPECT_FALSE(grid.IsColSelected());
    EXPECT_EQ(Keys(), "0+");
}

TEST_F(SortClick, AColumnThatIsNotSortable_IsSelected)
{
    MakeSorted();
    sorting.SetSortable(0, false);
    ClickOn(0);
    EXPECT_EQ(grid.Cols(), "A* B C D");
    EXPECT_EQ(Keys(), "");
    EXPECT_TRUE(sorting.Sort({{0, true}}));
}

// ---- Drags

TEST_F(SortClick, ADragOfAnEdge_Resizes)
{
    MakeSorted();
    const CPoint edge(ColBox(grid, 0).x + colWidth / 2 - 1, 10);
    DragPath(Header(), {edge, edge + CPoint(15, 0), edge + CPoint(30, 0)});
    EXPECT_EQ(grid.GetCol(0).GetWidth(), colWidth + 30);
    EXPECT_EQ(Keys(), "");
}

// Also a press on an edge that does not move.
TEST_F(SortClick, AClickOnAnEdge_DoesNotSort)
{
    MakeSorted();
    const CPoint edge(ColBox(grid, 0).x + colWidth / 2 - 1, 10);
    quor::test::Click(Header(), edge);
    EXPECT_EQ(Keys(), "");
    // The pixel is the first one of the next column.
    grid.SetColFixWidth(true);
    quor::test::Click(Header(), edge);
    EXPECT_EQ(Keys(), "1+");
}

TEST_F(SortClick, ADragOfAColumn_MovesIt_SelectedOrNot)
{
    MakeSorted();
    ClickOn(0);
    DragPath(Header(), {ColBox(grid, 0), ColBox(grid, 1), ColBox(grid, 2)});
    EXPECT_EQ(grid.Cols(), "B A* C D");
    EXPECT_EQ(Keys(), "1+");
    DragPath(Header(), {ColBox(grid, 1), ColBox(grid, 2), ColBox(grid, 3)});
    EXPECT_EQ(grid.Cols(), "B C A* D");
    EXPECT_EQ(Keys(), "2+");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(SortClick, ADragOfColumnsThatAreFixed_DoesNothing)
{
    MakeSorted();
    grid.SetColPosFix(true);
    DragPath(Header(), {ColBox(grid, 0), ColBox(grid, 1), ColBox(grid, 0)});
    EXPECT_EQ(grid.Cols(), "A B C D");
    EXPECT_EQ(Keys(), "");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(SortClick, AShakingHand_StillClicks)
{
    MakeSorted();
    const CPoint box = ColBox(grid, 0);
    DragPath(Header(), {box, box + CPoint(2, 1)});
    EXPECT_EQ(Keys(), "0+");
}

TEST_F(SortClick, ReleasedOutsideTheHeader_IsNoClick)
{
    MakeSorted();
    const CPoint box = ColBox(grid, 0);
    DragPath(Header(), {box, box + CPoint(0, 60)});
    EXPECT_EQ(Keys(), "");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(SortClick, TheLossOfTheMouse_EndsAPress)
{
    MakeSorted();
    PressMouse(Header(), ColBox(grid, 0));
    EXPECT_EQ(::GetCapture(), Header().m_hWnd);
    ::SetCapture(host);
    ::ReleaseCapture();
    ReleaseMouse(Header(), ColBox(grid, 0));
    EXPECT_EQ(Keys(), "");
}

// ---- Hostile hosts

TEST_F(SortClick, TheEndOfAnEditThatDeletesTheExtension)
{
    MakeSorted();
    sorting.Detach();
    auto own = std::make_unique<TGHeaderSort>(grid);
    grid.BeginEditCell(0, 0);
    TypeText(L"x");
    grid.actions["OnModified"] = [&] { own.reset(); };
    ClickOn(0);
    EXPECT_EQ(own, nullptr);
    EXPECT_EQ(grid.Rows(), "x c a");
}

TEST_F(SortClick, TheEndOfAnEditThatClosesTheWindow)
{
    MakeSorted();
    grid.BeginEditCell(0, 0);
    TypeText(L"x");
    grid.actions["OnModified"] = [&] { grid.DestroyWindow(); };
    const CPoint box = ColBox(grid, 0);
    SendMouse(Header(), WM_LBUTTONDOWN, box, MK_LBUTTON);
    EXPECT_EQ(grid.m_hWnd, nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(SortClick, ASelectionHookThatRemovesTheDraggedColumn)
{
    MakeSorted();
    grid.actions["OnCurChanged"] = [&] {
        grid.actions.clear();
        grid.DelCol(0);
    };
    DragPath(Header(), {ColBox(grid, 0), ColBox(grid, 1), ColBox(grid, 2)});
    EXPECT_EQ(grid.GetColNum(), 3);
    EXPECT_EQ(Keys(), "");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(SortClick, DetachedInAPress)
{
    MakeSorted();
    PressMouse(Header(), ColBox(grid, 0));
    sorting.Detach();
    ReleaseMouse(Header(), ColBox(grid, 0));
    EXPECT_EQ(grid.Rows(), "b c a");
    EXPECT_EQ(::GetCapture(), nullptr);
}

// ---- Arrows

class SortArrow : public SortClick
{
protected:
    // How many pixels of text colour each line of the right part of a caption has, lines without any left
    // out: "1 3 5 7" for an arrow that points up.
    std::string Lines(long col, int reach = 14)
    {
        const Snapshot picture(Header());
        const int right = ColBox(grid, col).x + colWidth / 2;
        std::string lines;
        for (int y = 2; y < 18; ++y)
            if (const int dark = picture.CountColour(CRect(right - reach, y, right - 2, y + 1),
                                                     ::GetSysColor(COLOR_BTNTEXT)))
                lines += (lines.empty() ? "" : " ") + std::to_string(dark);
        return lines;
    }
};

TEST_F(SortArrow, PointsUp_Down_AndIsNotThere)
{
    MakeSorted();
    EXPECT_EQ(Lines(0), "");
    sorting.Sort({{0, true}});
    EXPECT_EQ(Lines(0), "1 3 5 7");
    EXPECT_EQ(Lines(1), "");
    sorting.Sort({{0, false}});
    EXPECT_EQ(Lines(0), "7 5 3 1");
    sorting.Sort({});
    EXPECT_EQ(Lines(0), "");
}

TEST_F(SortArrow, HasANumberWhenThereAreSeveralKeys)
{
    MakeSorted();
    sorting.Sort({{0, true}});
    const std::string alone = Lines(0, 22);
    sorting.Sort({{0, true}, {1, false}});
    EXPECT_NE(Lines(0, 22), alone);
    EXPECT_NE(Lines(1, 22), "");
    const Snapshot picture(Header());
    // The numbers, 1 and 2, differ.
    bool differ = false;
    for (int x = -9; x < -2; ++x)
        for (int y = 2; y < 18; ++y)
            differ = differ || picture.At(ColBox(grid, 0).x + colWidth / 2 + x, y) !=
                                   picture.At(ColBox(grid, 1).x + colWidth / 2 + x, y);
    EXPECT_TRUE(differ);
}

TEST_F(SortArrow, HidesWhatOfTheCaptionIsBehindIt)
{
    Make(grid, "ab", 2);
    grid.GetCol(0).SetName(L"WWWWWWWWWWWW");
    grid.RecalcLayout(1);
    sorting.AttachTo(grid);
    sorting.Sort({{0, true}});
    EXPECT_EQ(Lines(0), "1 3 5 7");
}

// Beside the text, not on it, also of captions that are centred or end at the right.
class AligningExtension : public TGGridExtension
{
public:
    UINT format = 0;

protected:
    void OnCaptionLook(TGGridCol&, TGTextLook& look) override { look.format |= format; }
};

TEST_F(SortArrow, OfARightAlignedCaption_IsAtTheLeft)
{
    Make(grid, "ab", 2);
    AligningExtension aligning;
    aligning.format = DT_RIGHT;
    aligning.AttachTo(grid);
    sorting.AttachTo(grid);
    sorting.Sort({{0, true}});
    const Snapshot picture(Header());
    const int left = ColBox(grid, 0).x - colWidth / 2;
    int dark = 0;
    for (int y = 2; y < 18; ++y)
        dark += picture.CountColour(CRect(left + 3, y, left + 16, y + 1), ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(dark, 1 + 3 + 5 + 7);
}

TEST_F(SortArrow, KeepsACentredCaptionOnItsLeft)
{
    Make(grid, "ab", 2);
    grid.GetCol(0).SetCenterAlign(true);
    grid.Invalidate(TRUE);
    sorting.AttachTo(grid);
    // The column of pixels in which the first letter begins.
    const auto begin = [&] {
        const Snapshot picture(Header());
        const int left = ColBox(grid, 0).x - colWidth / 2;
        for (int x = left + 3; x < left + colWidth - 3; ++x)
            if (!picture.IsUniform(CRect(x, 3, x + 1, 17)))
                return x - left;
        return -1;
    };
    const int before = begin();
    sorting.Sort({{0, true}});
    EXPECT_LT(begin(), before - 4);
}

TEST_F(SortArrow, GoesWithTheExtension_AndWithItsColumn)
{
    MakeSorted();
    sorting.Sort({{0, true}});
    grid.MoveCol(0, 2);
    EXPECT_EQ(Lines(0), "");
    EXPECT_EQ(Lines(1), "1 3 5 7");
    sorting.Detach();
    EXPECT_EQ(Lines(1), "");
}

} // namespace
} // namespace quor::test
