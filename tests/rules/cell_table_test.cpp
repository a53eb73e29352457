// Tables of texts: cells in few buffers.
#include "rules/CellTable.h"

#include "tests/rules/CellTables.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

CellTable Tree()
{
    CellTable table;
    table.BeginCaptions();
    table.Cell(L"A");
    table.Cell(L"B");
    table.EndRow();
    table.BeginRow();
    table.Cell(L"one");
    table.EndRow();
    table.BeginRow({1, true, 7});
    table.Cell(L"");
    table.Cell(L"two");
    table.Cell(L"three");
    table.EndRow();
    table.BeginRow();
    table.EndRow();
    return table;
}

TEST(CellTable, KnowsItsCells_AndAnswersForThoseThatThereAreNot)
{
    const CellTable table = Tree();
    EXPECT_EQ(table.GetRowNum(), 3U);
    EXPECT_EQ(table.GetColNum(), 3U);
    EXPECT_EQ(table.GetAllCellNum(), 6U);
    EXPECT_EQ(table.GetCharacterNum(), 13U);
    EXPECT_EQ(table.GetText(1, 2), L"three");
    EXPECT_EQ(table.GetText(0, 1), L"");
    EXPECT_EQ(table.GetText(3, 0), L"");
    EXPECT_EQ(table.GetCellNum(2), 0U);
    EXPECT_EQ(table.GetCellNum(9), 0U);
    EXPECT_EQ(table.GetCaption(1), L"B");
    EXPECT_EQ(table.GetCaption(2), L"");
    EXPECT_EQ(table.GetMark(1), (RowMark{1, true, 7}));
    EXPECT_EQ(table.GetMark(2), RowMark());
    EXPECT_TRUE(CellTable().IsEmpty());
    EXPECT_FALSE(table.IsEmpty());
}

TEST(CellTable, CaptionsBecomeARow)
{
    CellTable table = Tree();
    table.MakeCaptionsARow();
    EXPECT_EQ(Shown(table), "A|B|\none|\n1+7:|two|three|\n\n");
    table.MakeCaptionsARow();
    EXPECT_EQ(table.GetRowNum(), 4U);
}

TEST(CellTable, TakesTheRowsOfAnother)
{
    CellTable table;
    table.BeginRow();
    table.Cell(L"first");
    table.EndRow();
    table.Append(Tree());
    table.Append(CellTable());
    EXPECT_EQ(Shown(table), "first|\nA|B|\none|\n1+7:|two|three|\n\n");
    EXPECT_EQ(table.GetColNum(), 3U);
    EXPECT_EQ(table.GetText(3, 2), L"three");
}

TEST(CellTable, HandsItselfToAnotherSink)
{
    CellTable copy;
    Tree().WriteTo(copy);
    EXPECT_EQ(copy, Tree());
    EXPECT_EQ(Shown(copy), "^A|B|\none|\n1+7:|two|three|\n\n");
    copy.BeginRow({2, false, 0});
    copy.EndRow();
    EXPECT_NE(copy, Tree());
}

} // namespace
} // namespace quor::test
