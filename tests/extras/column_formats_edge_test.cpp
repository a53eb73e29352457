// Formats of columns and cells where several of them meet, and of grids that have gone or change.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGColumnFormats.h"
#include "grid/extras/TGTextTips.h"
#include "grid/TGGridUpdate.h"
#include "tests/extras/ExtraGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class FormatEdges : public ExtraTest<TGColumnFormats>
{
protected:
    bool CanEdit(long row, long col)
    {
        grid.BeginEditCell(row, col);
        const bool began = grid.IsEditing();
        grid.CancelEditCell();
        return began;
    }
};

TEST_F(FormatEdges, WithoutAGrid_NothingIsFormatted)
{
    EXPECT_FALSE(extra.SetFormat(0, {}));
    EXPECT_FALSE(extra.ClearFormat(0));
    EXPECT_EQ(extra.GetFormat(0).kind, TGValueKind::Text);
    EXPECT_FALSE(extra.SetCellFormat(0, 0, {}));
    EXPECT_EQ(extra.GetCellFormat(0, 0).textColor, CLR_INVALID);
    EXPECT_EQ(extra.GetShownText(0, 0), L"");
    EXPECT_FALSE(extra.IsCheckBox(0, 0));
    // These count for the grid that it is attached to later.
    extra.SetFullLines(true);
    extra.ClearCellFormats();
    Make();
    EXPECT_EQ(extra.GetShownText(0, 0), L"0,0");
    EXPECT_FALSE(extra.ClearFormat(0));
    EXPECT_FALSE(extra.ClearFormat(7));
    EXPECT_TRUE(extra.SetFormat(0, {.bold = true}));
    EXPECT_TRUE(extra.ClearFormat(0));
    EXPECT_FALSE(extra.GetFormat(0).bold);
}

TEST_F(FormatEdges, ShownTexts_OfColumnsWithoutAFormat_AreTheTexts)
{
    Make();
    extra.SetFormat(1, {.checkBox = true});
    grid.GetCell(0, 1).SetText(L"1");
    EXPECT_EQ(extra.GetShownText(0, 0), L"0,0");
    EXPECT_EQ(extra.GetShownText(0, 1), L"") << "a check box has no text";
    EXPECT_EQ(extra.GetShownText(1, 1), L"1,1");
    EXPECT_EQ(extra.GetShownText(9, 0), L"");
    EXPECT_EQ(extra.GetCellFormat(9, 0).textColor, CLR_INVALID);
    // Another cell of the row has a format of its own.
    extra.SetCellFormat(0, 0, {.bold = true});
    EXPECT_FALSE(extra.GetCellFormat(0, 1).bold);
    EXPECT_TRUE(extra.GetCellFormat(0, 0).bold);
}

TEST_F(FormatEdges, TheCellsOwnFormat_AddsToTheColumns)
{
    Make();
    constexpr COLORREF blue = RGB(0, 0, 255);
    constexpr COLORREF yellow = RGB(255, 255, 0);
    extra.SetFormat(0, {.textColor = blue, .backColor = yellow, .bold = true, .readOnly = true});
    // Says nothing about anything: all is the column's.
    extra.SetCellFormat(0, 0, {});
    const Snapshot picture = Picture();
    EXPECT_GT(picture.CountColour(grid.InsideOf(0, 0), yellow), 100);
    EXPECT_GT(picture.CountColour(grid.InsideOf(0, 0), blue), 5);
    EXPECT_FALSE(CanEdit(0, 0)) << "read-only as the column";
    // Bold and read-only by the cell alone.
    extra.SetFormat(0, {});
    const CRect plain = Ink(1, 0);
    extra.SetCellFormat(1, 0, {.bold = true, .readOnly = true});
    EXPECT_GT(Ink(1, 0).Width(), plain.Width());
    EXPECT_FALSE(CanEdit(1, 0));
    extra.SetCellFormat(1, 0, {.backColor = yellow});
    EXPECT_GT(Picture().CountColour(grid.InsideOf(1, 0), yellow), 100);
    EXPECT_TRUE(CanEdit(1, 0));
}

TEST_F(FormatEdges, Bold_FollowsTheFontOfTheGrid)
{
    Make();
    extra.SetFormat(0, {.bold = true});
    const long before = Ink(0, 0).Width();
    CFont larger;
    larger.CreatePointFont(180, L"Arial");
    grid.SetFont(&larger);
    EXPECT_GT(Ink(0, 0).Width(), before);
}

// The tip has what a number that does not fit hides.
TEST_F(FormatEdges, BoldNumbers_AreMeasuredBold)
{
    Make();
    TGTextTips tips(grid);
    CString digits;
    extra.SetFormat(0, {.kind = TGValueKind::Number, .grouping = false});
    extra.SetFormat(1, {.kind = TGValueKind::Number, .grouping = false, .bold = true});
    do
    {
        digits += L'8';
        grid.GetCell(0, 0).SetText(digits);
        grid.GetCell(0, 1).SetText(digits);
    } while (tips.GetTipText(0, 1).IsEmpty());
    EXPECT_EQ(tips.GetTipText(0, 1), digits);
    EXPECT_EQ(tips.GetTipText(0, 0), L"");
}

TEST_F(FormatEdges, DotsOfABoldText_ComeWhereItIsCut)
{
    Make();
    extra.SetFormat(0, {.ellipsis = TGEllipsis::End, .bold = true});
    grid.GetCell(0, 0).SetText(L"MMMMMMMMMMMMMMMMMMMMMMMMMMM");
    const CRect inside = grid.InsideOf(0, 0);
    EXPECT_LE(Ink(0, 0).right, inside.right);
    const Snapshot cut = Picture();
    extra.SetFormat(0, {.bold = true});
    // Without dots the letters go on to the line.
    int changed = 0;
    const Snapshot whole = Picture();
    for (int x = inside.right - 12; x < inside.right; ++x)
        for (int y = inside.top; y < inside.bottom; ++y)
            changed += cut.At(x, y) != whole.At(x, y) ? 1 : 0;
    EXPECT_GT(changed, 10);
}

TEST_F(FormatEdges, FullLines_OfAnotherRowSpaceWhileDetached_AreLeftAlone)
{
    Make();
    CFont high;
    high.CreatePointFont(120, L"Arial");
    grid.SetFont(&high);
    extra.SetFullLines(true);
    extra.SetFullLines(true);
    const long full = grid.GetRowHeight();
    // The host sets it anew: it is what comes back.
    grid.SetRowSpace(9);
    EXPECT_GE(grid.GetRowHeight(), full);
    extra.SetFullLines(false);
    EXPECT_EQ(grid.GetRowSpace(), 9);
    extra.SetFullLines(false);
    EXPECT_EQ(grid.GetRowSpace(), 9);
}

TEST_F(FormatEdges, ARuleThatDetaches_EndsTheLook)
{
    Make();
    extra.SetFormat(0, {.bold = true});
    extra.SetRule([this](const TGGridCell&, TGCellFormat&) { extra.Detach(); });
    Picture();
    EXPECT_EQ(extra.GetGrid(), nullptr);
    EXPECT_TRUE(CanEdit(0, 0));
}

TEST_F(FormatEdges, ARuleThatDetaches_WhenAnEditIsAskedFor)
{
    Make();
    extra.SetFormat(1, {.checkBox = true});
    grid.GetCell(0, 1).SetText(L"1");
    extra.SetRule([this](const TGGridCell&, TGCellFormat&) { extra.Detach(); });
    grid.BeginEditCell(0, 1);
    EXPECT_EQ(extra.GetGrid(), nullptr);
}

TEST_F(FormatEdges, FullLines_ThatEndBeforeANewRowSpaceIsLaidOut_LeaveIt)
{
    Make();
    CFont high;
    high.CreatePointFont(200, L"Arial");
    grid.SetFont(&high);
    extra.SetFullLines(true);
    {
        const TGGridUpdate update(grid);
        grid.SetRowSpace(11);
        extra.SetFullLines(false);
    }
    EXPECT_EQ(grid.GetRowSpace(), 11);
}

TEST_F(FormatEdges, DatesThatTheSystemCannotShow_AreShownAsTheyAre)
{
    Make();
    extra.SetLocale(L"en-GB");
    extra.SetFormat(0, {.kind = TGValueKind::Date});
    extra.SetFormat(1, {.kind = TGValueKind::DateTime});
    grid.GetCell(0, 0).SetText(L"1066-10-14");
    EXPECT_EQ(extra.GetShownText(0, 0), L"1066-10-14");
    grid.GetCell(0, 1).SetText(L"2026-02-28 13:05:09");
    EXPECT_EQ(extra.GetShownText(0, 1), L"28/02/2026 13:05:09");
    Picture();
    EXPECT_GT(Ink(0, 0).Width(), 20);
}

TEST_F(FormatEdges, WordsForTruth_AndPercents_ArePainted)
{
    Make();
    extra.SetLocale(L"en-US");
    grid.GetCell(0, 0).SetText(L"1");
    const long narrow = Ink(0, 0).Width();
    extra.SetFormat(0, {.kind = TGValueKind::Truth, .trueText = L"certainly", .falseText = L"never"});
    EXPECT_GT(Ink(0, 0).Width(), narrow + 10);
    extra.SetFormat(0, {.kind = TGValueKind::Percent});
    const CRect inside = grid.InsideOf(0, 0);
    const CRect percent = Ink(0, 0);
    EXPECT_GT(percent.Width(), narrow + 5);
    EXPECT_GT(percent.left - inside.left, inside.right - percent.right) << "percents are at the right";
}

TEST_F(FormatEdges, AColourOfACellsOwn)
{
    Make();
    constexpr COLORREF red = RGB(255, 0, 0);
    extra.SetCellFormat(0, 0, {.textColor = red});
    const Snapshot picture = Picture();
    EXPECT_GT(picture.CountColour(grid.InsideOf(0, 0), red), 5);
    EXPECT_EQ(picture.CountColour(grid.InsideOf(1, 0), red), 0);
}

// ---- Check boxes

TEST_F(FormatEdges, ABox_StandsWhereTheColumnIsAligned_AndTakesClicksThere)
{
    Make();
    for (const TGAlign align : {TGAlign::Left, TGAlign::Center, TGAlign::Right})
    {
        extra.SetFormat(1, {.align = align, .checkBox = true});
        grid.GetCell(0, 1).SetText(L"0");
        const CRect cell = grid.InsideOf(0, 1);
        const CRect box = Ink(0, 1);
        const long left = box.left - cell.left;
        const long right = cell.right - box.right;
        EXPECT_EQ(left < right - 20, align == TGAlign::Left) << left << " " << right;
        EXPECT_EQ(right < left - 20, align == TGAlign::Right) << left << " " << right;
        SendMouse(grid, WM_LBUTTONDOWN, box.CenterPoint(), MK_LBUTTON);
        SendMouse(grid, WM_LBUTTONUP, box.CenterPoint());
        EXPECT_EQ(TextOf(grid, 0, 1), L"1");
    }
}

TEST_F(FormatEdges, AReleaseOverAnotherBox_OrWithoutAPress_DoesNothing)
{
    Make();
    for (const long col : {0L, 1L})
        extra.SetFormat(col, {.checkBox = true});
    for (const long row : {0L, 1L})
        for (const long col : {0L, 1L})
            grid.GetCell(row, col).SetText(L"0");
    const auto box = [&](long row, long col) { return grid.InsideOf(row, col).CenterPoint(); };
    const auto states = [&] {
        return TextOf(grid, 0, 0) + TextOf(grid, 0, 1) + TextOf(grid, 1, 0) + TextOf(grid, 1, 1);
    };
    SendMouse(grid, WM_LBUTTONUP, box(0, 0));
    EXPECT_EQ(states(), L"0000");
    for (const CPoint target : {box(1, 0), box(0, 1), CPoint(box(0, 0).x, box(0, 0).y + 9)})
    {
        SendMouse(grid, WM_LBUTTONDOWN, box(0, 0), MK_LBUTTON);
        SendMouse(grid, WM_LBUTTONUP, target);
        EXPECT_EQ(states(), L"0000");
    }
    // On the new-row line there is none, and beside the cells.
    SendMouse(grid, WM_LBUTTONDOWN, grid.ToClient(50, 4 * rowHeight + 10), MK_LBUTTON);
    SendMouse(grid, WM_LBUTTONUP, grid.ToClient(50, 4 * rowHeight + 10));
    EXPECT_FALSE(extra.IsCheckBox(4, 0));
    EXPECT_EQ(grid.GetRowNum(), 4);
}

TEST_F(FormatEdges, Space_WithoutBoxesOrInAnEditor_IsTyped)
{
    Make();
    grid.SelectRow(0, true);
    grid.SendMessage(WM_CHAR, VK_SPACE);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    grid.BeginEditCell(0, 0);
    extra.SetFormat(1, {.checkBox = true});
    grid.GetCell(0, 1).SetText(L"0");
    grid.SendMessage(WM_CHAR, VK_SPACE);
    EXPECT_EQ(TextOf(grid, 0, 1), L"0");
}

TEST_F(FormatEdges, SpaceOverSelectedRows_LeavesOutWhatHooksTookAway)
{
    Make();
    extra.SetFormat(1, {.checkBox = true});
    for (long row = 0; row < 4; ++row)
        grid.GetCell(row, 1).SetText(L"0");
    for (long row = 0; row < 3; ++row)
        grid.SelectRow(row, true);
    Changes();
    grid.modifiedText = [this](TGGridCell& cell, CString&) {
        if (cell.GetRowIndex() == 0)
            grid.GetCell(1, 1).SetText(L"no box");
        return true;
    };
    grid.SendMessage(WM_CHAR, VK_SPACE);
    EXPECT_EQ(TextOf(grid, 0, 1) + TextOf(grid, 1, 1) + TextOf(grid, 2, 1) + TextOf(grid, 3, 1),
              L"1no box10");
    // All refused: nothing is told.
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    Changes();
    grid.SendMessage(WM_CHAR, VK_SPACE);
    EXPECT_EQ(TextOf(grid, 0, 1), L"1");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(FormatEdges, SpaceOverSelectedRows_WithAHookThatDetaches)
{
    Make();
    extra.SetFormat(1, {.checkBox = true});
    for (long row = 0; row < 3; ++row)
    {
        grid.GetCell(row, 1).SetText(L"0");
        grid.SelectRow(row, true);
    }
    grid.modifiedText = [this](TGGridCell&, CString&) {
        extra.Detach();
        return true;
    };
    Changes();
    grid.SendMessage(WM_CHAR, VK_SPACE);
    EXPECT_EQ(TextOf(grid, 0, 1) + TextOf(grid, 1, 1), L"10");
    EXPECT_EQ(Changes(), 0);
}

} // namespace
} // namespace quor::test
