// Filling, emptying and cutting cells.
#include "tests/clipboard/ClipboardTest.h"

#include <clocale>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class Filling : public ClipboardTest
{
};

TEST_F(Filling, Down_CopiesTheFirstRow)
{
    Make();
    Select(0, 1, 2, 2);
    EXPECT_EQ(Text(clipboard.FillDown()), "done 4");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|0,1|0,2 / 2,0|0,1|0,2");
}

TEST_F(Filling, Right_CopiesTheFirstColumn)
{
    Make();
    Select(1, 0, 2, 2);
    EXPECT_EQ(Text(clipboard.FillRight()), "done 4");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|1,0|1,0 / 2,0|2,0|2,0");
}

TEST_F(Filling, OneLine_TakesTheOneBefore)
{
    Make();
    Select(1, 0, 1, 1);
    EXPECT_EQ(Text(clipboard.FillDown()), "done 2");
    Select(0, 2, 1, 2);
    EXPECT_EQ(Text(clipboard.FillRight()), "done 2");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,1 / 0,0|0,1|0,1 / 2,0|2,1|2,2");
    cursor.MoveTo(0, 0);
    EXPECT_EQ(Text(clipboard.FillDown()), "done 0");
    EXPECT_EQ(Text(clipboard.FillRight()), "done 0");
}

TEST_F(Filling, WithOneText_InAllRanges)
{
    Make();
    Select(0, 0, 0, 0);
    cursor.SelectRange({2, 1, 2, 2}, true);
    EXPECT_EQ(Text(clipboard.FillWith(L"x")), "done 3");
    EXPECT_EQ(AllTexts(grid), "x|0,1|0,2 / 1,0|1,1|1,2 / 2,0|x|x");
    EXPECT_EQ(Text(clipboard.FillWith(nullptr)), "done 3");
    EXPECT_EQ(AllTexts(grid), "|0,1|0,2 / 1,0|1,1|1,2 / 2,0||");
}

TEST_F(Filling, Series_GoOnInEachColumn)
{
    Make(4);
    grid.GetCell(0, 0).SetText(L"1");
    grid.GetCell(0, 1).SetText(L"1.5");
    grid.GetCell(1, 1).SetText(L"1.25");
    grid.GetCell(1, 0).SetText(L"");
    grid.GetCell(0, 2).SetText(L"text");
    Select(0, 0, 3, 2);
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Down)), "done 6");
    EXPECT_EQ(AllTexts(grid), "1|1.5|text / 2|1.25|1,2 / 3|1.00|2,2 / 4|0.75|3,2");
    Select(0, 0, 3, 0);
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Down, -0.5)), "done 3");
    EXPECT_EQ(AllTexts(grid), "1|1.5|text / 0.5|1.25|1,2 / 0.0|1.00|2,2 / -0.5|0.75|3,2");
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Down, 1e300)), "refused: no numbers, done 0");
    Select(0, 0, 0, 2);
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Right)), "done 2");
    EXPECT_EQ(Cells(grid, grid.GetRow(0)), "1|1.5|2.0");
    Select(0, 2, 3, 2);
    grid.GetCell(0, 2).SetText(L"text");
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Down)), "refused: no numbers, done 0");
    grid.GetCell(0, 2).SetText(L"Item 9");
    grid.GetCell(1, 2).SetText(L"");
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Down)), "done 3");
    EXPECT_EQ(grid.GetCell(3, 2).GetText(), L"Item 12");
}

// A comma for the numbers of the C runtime, as after setlocale in German.
class GermanNumbers
{
public:
    GermanNumbers() : isSet(std::setlocale(LC_NUMERIC, "German") != nullptr) {}
    ~GermanNumbers() { std::setlocale(LC_NUMERIC, "C"); }
    GermanNumbers(const GermanNumbers&) = delete;
    GermanNumbers& operator=(const GermanNumbers&) = delete;

    const bool isSet;
};

TEST_F(Filling, Series_HaveTheStepThatIsGiven_InEveryLocale)
{
    Make(3, 1);
    grid.GetCell(0, 0).SetText(L"1");
    Select(0, 0, 2, 0);
    const GermanNumbers german;
    ASSERT_TRUE(german.isSet);
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Down, 0.1)), "done 2");
    EXPECT_EQ(AllTexts(grid), "1 / 1.1 / 1.2");
    EXPECT_EQ(Text(clipboard.FillSeries(TGClipboard::Direction::Down, 0.00002)), "done 2");
    EXPECT_EQ(AllTexts(grid), "1 / 1.00002 / 1.00004");
}

TEST_F(Filling, AsksTheHooksOfTyping_AndTellsOnce)
{
    Make();
    grid.GetCell(1, 0).SetReadOnly(true);
    grid.modifiedText = [](TGGridCell& cell, CString&) { return cell.GetRowIndex() != 2; };
    Select(0, 0, 2, 1);
    host.TakeLog();
    EXPECT_EQ(Text(clipboard.FillDown()), "done 1 left 3: 1,0 ReadOnly 2,0 Rejected 2,1 Rejected");
    EXPECT_EQ(Changes(), 1);
}

TEST_F(Filling, WithoutCells_IsRefused)
{
    Make(0);
    EXPECT_EQ(Text(clipboard.FillDown()), "refused: nothing selected, done 0");
    EXPECT_EQ(Text(clipboard.Empty()), "refused: nothing selected, done 0");
}

// The new-row line is no row.
TEST_F(Filling, TheNewRowLine_IsLeftOut)
{
    Make(1);
    Select(0, 0, 1, 0);
    EXPECT_EQ(Text(clipboard.FillWith(L"x")), "done 1");
    EXPECT_EQ(grid.GetRowNum(), 1);
}

// ---- Emptying and cutting

TEST_F(Filling, Emptying_LeavesEmptyCellsAlone)
{
    Make();
    grid.GetCell(0, 0).SetText(L"");
    grid.GetCell(1, 1).SetReadOnly(true);
    Select(0, 0, 1, 1);
    EXPECT_EQ(Text(clipboard.Empty()), "done 2 left 1: 1,1 ReadOnly");
    EXPECT_EQ(AllTexts(grid), "||0,2 / |1,1|1,2 / 2,0|2,1|2,2");
}

class Cutting : public Filling
{
};

TEST_F(Cutting, Cells_AreCopiedAndEmptied)
{
    Make();
    grid.GetCell(0, 0).SetReadOnly(true);
    Select(0, 0, 0, 1);
    host.TakeLog();
    EXPECT_EQ(Text(clipboard.Cut()), "done 1 left 1: 0,0 ReadOnly");
    EXPECT_EQ(TextOnClipboard(), L"0,0\t0,1\r\n");
    EXPECT_EQ(AllTexts(grid), "0,0||0,2 / 1,0|1,1|1,2 / 2,0|2,1|2,2");
    EXPECT_EQ(Changes(), 1);
}

TEST_F(Cutting, SelectedRows_AreDeleted_ByTheirHooks)
{
    Make(4);
    grid.GetRow(2).SetDelUnable(true);
    for (const long row : {0L, 2L, 3L})
        grid.SelectRow(row, true);
    grid.recording = true;
    grid.TakeLog();
    host.TakeLog();
    EXPECT_EQ(Text(clipboard.Cut()), "done 0 -2 rows left 3: 2,0 ReadOnly 2,1 ReadOnly 2,2 ReadOnly");
    EXPECT_EQ(TextOnClipboard(), L"0,0\t0,1\t0,2\r\n2,0\t2,1\t2,2\r\n3,0\t3,1\t3,2\r\n");
    EXPECT_EQ(AllTexts(grid), "1,0|1,1|1,2 / 2,0|2,1|2,2");
    const std::string log = grid.TakeEditText();
    EXPECT_NE(log.find("OnBeforeDeleteRow"), std::string::npos) << log;
    EXPECT_NE(log.find("OnEndDeleteRow"), std::string::npos);
    EXPECT_EQ(Changes(), 1);
    EXPECT_EQ(grid.GetRowPaste().GetNum(), 0) << "the row buffer is another thing";
}

TEST_F(Cutting, RowsThatAHookKeeps_Stay_ButAreCopied)
{
    Make();
    grid.SelectRow(1, true);
    grid.recording = true;
    grid.vetoes.insert("OnBeforeDeleteRow");
    EXPECT_EQ(Text(clipboard.Cut()), "refused: not allowed, done 0");
    EXPECT_EQ(grid.GetRowNum(), 3);
    EXPECT_EQ(TextOnClipboard(), L"1,0\t1,1\t1,2\r\n");
}

TEST_F(Cutting, RowsOfAFixedNumber_AreEmptied)
{
    Make();
    grid.SetRowFixLength(true);
    grid.SelectRow(1, true);
    EXPECT_EQ(Text(clipboard.Cut()), "done 3");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / || / 2,0|2,1|2,2");
}

TEST_F(Cutting, WithoutTheClipboard_ChangesNothing)
{
    Make();
    clipboard.SetPatience(30);
    HeldClipboard held;
    EXPECT_EQ(Text(clipboard.Cut()), "refused: busy, done 0");
    EXPECT_EQ(AllTexts(grid), "0,0|0,1|0,2 / 1,0|1,1|1,2 / 2,0|2,1|2,2");
}

} // namespace
} // namespace quor::test
