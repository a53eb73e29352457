// Columns, rows and cells by themselves: style bits, read-only rules, geometry, comparison, copies.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class GridParts : public testing::Test
{
protected:
    GridParts()
    {
        grid.AppendCol(new OpenCol(L"one", grid), 50);
        grid.AppendCol(new OpenCol(L"two", grid), 70);
        row = new OpenRow(grid);
        grid.AppendRow(nullptr);
        grid.AppendRow(row);
    }

    OpenCol& Col(long i) { return static_cast<OpenCol&>(grid.GetCol(i)); }

    ModelGrid grid;
    OpenRow* row;
};

// ---- Columns

TEST_F(GridParts, AColumnStartsWhiteOnBlackTextWithoutStyle)
{
    TGGridCol col(nullptr, grid);
    EXPECT_EQ(Narrow(col.GetName()), "");
    EXPECT_EQ(col.GetIndex(), 0);
    EXPECT_EQ(col.GetStyle(), 0);
    EXPECT_EQ(col.GetBackColor(), 0xFFFFFFu);
    EXPECT_EQ(col.GetTextColor(), 0u);
}

TEST_F(GridParts, ColumnFlagsSetAndClearTheirOwnBits)
{
    struct ColFlag
    {
        int bit;
        void (TGGridCol::*write)(bool);
        bool (TGGridCol::*read)() const;
    };
    const std::vector<ColFlag> flags = {
        {0x01, &TGGridCol::SetReadOnly, &TGGridCol::IsReadOnly},
        {0x02, &TGGridCol::SetComboEdit, &TGGridCol::IsComboEdit},
        {0x04, &TGGridCol::SetComboSel, &TGGridCol::IsComboSel},
        {0x08, &TGGridCol::SetRightButton, &TGGridCol::IsRightButton},
        {0x10, &TGGridCol::SetRightSpin, &TGGridCol::IsRightSpin},
        {0x20, &TGGridCol::SetCenterAlign, &TGGridCol::IsCenterAlign},
    };
    for (const ColFlag& flag : flags)
    {
        SCOPED_TRACE(flag.bit);
        TGGridCol col(L"", grid);
        EXPECT_FALSE((col.*flag.read)());
        (col.*flag.write)(true);
        EXPECT_EQ(col.GetStyle(), flag.bit);
        EXPECT_TRUE((col.*flag.read)());
        col.SetStyle(0x3F);
        (col.*flag.write)(false);
        EXPECT_EQ(col.GetStyle(), 0x3F & ~flag.bit);
        EXPECT_FALSE((col.*flag.read)());
    }
}

TEST_F(GridParts, AColumnOfAReadOnlyGridIsReadOnlyWithItsBitClear)
{
    grid.SetReadOnly(true);
    EXPECT_TRUE(Col(0).IsReadOnly());
    EXPECT_EQ(Col(0).GetStyle(), 0);
}

TEST_F(GridParts, SetBackColorReplacesTheBrushAndSetTextColorDoesNot)
{
    const HANDLE before = Col(0).GetBrush().GetSafeHandle();
    Col(0).SetTextColor(RGB(1, 2, 3));
    EXPECT_EQ(Col(0).GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(Col(0).GetBrush().GetSafeHandle(), before);
    Col(0).SetBackColor(RGB(4, 5, 6));
    EXPECT_EQ(Col(0).GetBackColor(), RGB(4, 5, 6));
    LOGBRUSH brush{};
    Col(0).GetBrush().GetLogBrush(&brush);
    EXPECT_EQ(brush.lbColor, RGB(4, 5, 6));
}

TEST_F(GridParts, AColumnsBandReachesDownBelowTheNewRowLineWhenThatIsShown)
{
    const long height = grid.GetRowHeight();
    EXPECT_EQ(Col(1).GetBottom(), 3 * height);
    CRect band;
    Col(1).GetRect(band);
    EXPECT_EQ(band, CRect(50, 0, 120, 3 * height));
    grid.SetNoAppendButton(true);
    EXPECT_EQ(Col(1).GetBottom(), 2 * height);
}

TEST_F(GridParts, ColumnsAreOrderedByIndex)
{
    EXPECT_TRUE(Col(0) < Col(1));
    EXPECT_TRUE(Col(1) > Col(0));
    EXPECT_FALSE(Col(0) < Col(0));
    EXPECT_FALSE(Col(0) > Col(0));
}

TEST_F(GridParts, AColumnCanBeRenamedAndMoved)
{
    Col(0).SetName(L"new");
    EXPECT_EQ(Narrow(Col(0).GetName()), "new");
    Col(0).Move(7);
    EXPECT_EQ(Col(0).GetLeft(), 7);
    EXPECT_EQ(Col(0).GetRight(), 57);
    EXPECT_EQ(Col(0).GetWidth(), 50);
}

// ---- Rows

TEST_F(GridParts, ANewRowHasNoDataIndexOrStyle)
{
    TGGridRow fresh(grid);
    EXPECT_EQ(fresh.GetExtendData(), nullptr);
    EXPECT_EQ(fresh.GetIndex(), -1);
    EXPECT_EQ(fresh.GetStyle(), 0);
    EXPECT_EQ(Cells(grid, fresh), "|");
    EXPECT_FALSE(fresh.IsParentRow());
    EXPECT_FALSE(fresh.IsChildRow());
    EXPECT_FALSE(fresh.IsTreeRow());
}

TEST_F(GridParts, ARowIsUndeletableByItsOwnFlagsOrTheGrids)
{
    row->SetDelUnable(true);
    EXPECT_EQ(row->GetStyle(), 0x02);
    EXPECT_TRUE(row->IsDelUnable());
    EXPECT_FALSE(row->IsReadOnly());
    row->SetDelUnable(false);
    EXPECT_FALSE(row->IsDelUnable());
    row->SetReadOnly(true);
    EXPECT_EQ(row->GetStyle(), 0x01);
    EXPECT_TRUE(row->IsDelUnable());
    row->SetReadOnly(false);
    grid.SetReadOnly(true);
    EXPECT_TRUE(row->IsReadOnly());
    EXPECT_TRUE(row->IsDelUnable());
    EXPECT_EQ(row->GetStyle(), 0);
}

TEST_F(GridParts, SetExtendDataDeletesThePreviousObject)
{
    row->SetExtendData(new CountedData);
    auto* second = new CountedData;
    row->SetExtendData(second);
    EXPECT_EQ(CountedData::alive, 1);
    EXPECT_EQ(row->GetExtendData(), second);
    row->SetExtendData(nullptr);
    EXPECT_EQ(CountedData::alive, 0);
}

TEST_F(GridParts, AssigningHostDataCopiesNothing)
{
    struct Data : TGRowData
    {
        int value = 0;
    };
    Data first;
    Data second;
    TGRowData& target = first;
    EXPECT_EQ(&(target = second), &target);
}

TEST_F(GridParts, AssigningARowCopiesTextsAndStylesOnly)
{
    TGGridRow& source = grid.GetRow(0);
    source[0].SetText(L"a");
    source[1].SetText(L"b");
    source[1].SetReadOnly(true);
    source.SetDelUnable(true);
    source.SetExtendData(new CountedData);
    TGGridRow& target = *row;
    target = source;
    EXPECT_EQ(Cells(grid, target), "a|b");
    EXPECT_FALSE(target[0].IsReadOnly());
    EXPECT_TRUE(target[1].IsReadOnly());
    EXPECT_EQ(target.GetStyle(), 0x02);
    EXPECT_EQ(target.GetIndex(), 1);
    EXPECT_EQ(target.GetExtendData(), nullptr);
}

TEST_F(GridParts, ACopiedRowShowsTheSourcesCellsAndDataAndDeletesNeither)
{
    row->SetExtendData(new CountedData);
    {
        TGGridRow copy(*row);
        EXPECT_EQ(&copy[1], &(*row)[1]);
        EXPECT_EQ(copy.GetExtendData(), row->GetExtendData());
        EXPECT_EQ(copy.GetIndex(), 1);
    }
    EXPECT_EQ(CountedData::alive, 1);
    EXPECT_EQ(Cells(grid, *row), "|");
}

TEST_F(GridParts, ARowsBandSpansTheColumns)
{
    const long height = grid.GetRowHeight();
    EXPECT_EQ(row->GetLeft(), 0);
    EXPECT_EQ(row->GetTop(), height);
    EXPECT_EQ(row->GetBottom(), 2 * height);
    EXPECT_EQ(row->GetRight(), 120);
    CRect band;
    row->GetRect(band);
    EXPECT_EQ(band, CRect(0, height, 120, 2 * height));
}

TEST_F(GridParts, TheRightEdgeOfARowWithoutColumnsIsZero)
{
    TGGrid empty;
    auto* only = new OpenRow(empty);
    empty.AppendRow(only);
    EXPECT_EQ(only->GetRight(), 0);
}

TEST_F(GridParts, SelectingAndRefreshingWithoutAWindowDoesNothing)
{
    row->Select(true);
    Col(0).Select(true);
    (*row)[0].Select(true);
    (*row)[0].Refresh();
    row->Refresh();
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
}

// ---- Order of rows

struct Comparison
{
    const wchar_t* first[2];
    const wchar_t* second[2];
    std::vector<long> keys;
    int expected; // sign of the comparison
};

TEST_F(GridParts, RowsAreComparedByTheirKeyColumnsOneAfterTheOther)
{
    const std::vector<Comparison> comparisons = {
        {{L"a", L"x"}, {L"b", L"x"}, {0}, -1},   {{L"b", L"x"}, {L"a", L"y"}, {0}, 1},
        {{L"a", L"x"}, {L"a", L"y"}, {0}, 0},    {{L"a", L"x"}, {L"a", L"y"}, {0, 1}, -1},
        {{L"a", L"y"}, {L"b", L"x"}, {1, 0}, 1}, {{L"a", L"x"}, {L"b", L"x"}, {1, 0}, -1},
        {{L"10", L""}, {L"9", L""}, {0}, -1},    {{L"B", L""}, {L"a", L""}, {0}, -1},
        {{L"a", L"x"}, {L"b", L"y"}, {}, 0},     {{L"a", L"x"}, {L"b", L"y"}, {7, 1}, -1},
    };
    for (const bool labelSort : {false, true})
        for (const Comparison& comparison : comparisons)
        {
            grid.SetLabelSort(labelSort);
            grid.ClearKey();
            for (const long key : comparison.keys)
                grid.AppendKey(key);
            TGGridRow& first = grid.GetRow(0);
            for (long i = 0; i < 2; ++i)
            {
                first[i].SetText(comparison.first[i]);
                (*row)[i].SetText(comparison.second[i]);
            }
            EXPECT_EQ(first < *row, comparison.expected < 0) << &comparison - comparisons.data();
            EXPECT_EQ(first > *row, comparison.expected > 0) << &comparison - comparisons.data();
        }
}

TEST_F(GridParts, WithoutKeysTheSelectedColumnsDecideTheOrder)
{
    TGGridRow& first = grid.GetRow(0);
    first[0].SetText(L"b");
    (*row)[0].SetText(L"a");
    first[1].SetText(L"x");
    (*row)[1].SetText(L"y");
    EXPECT_FALSE(first < *row || first > *row);
    grid.SelectCol(1, true);
    EXPECT_TRUE(first < *row);
    grid.SelectCol(0, true);
    EXPECT_TRUE(first > *row);
    grid.AppendKey(1);
    EXPECT_TRUE(first < *row);
}

// ---- Cells

TEST_F(GridParts, ACellConvertsItsText)
{
    TGGridCell& cell = (*row)[0];
    cell.SetText(L"42.5 apples");
    EXPECT_STREQ(static_cast<const wchar_t*>(cell), L"42.5 apples");
    EXPECT_EQ(static_cast<int>(cell), 42);
    EXPECT_EQ(static_cast<double>(cell), 42.5);
    cell.SetText(L"apples");
    EXPECT_EQ(static_cast<int>(cell), 0);
    EXPECT_EQ(static_cast<double>(cell), 0.0);
    cell.SetText(nullptr);
    EXPECT_TRUE(cell.GetText().IsEmpty());
}

TEST_F(GridParts, ACellKnowsItsPlace)
{
    TGGridCell& cell = (*row)[1];
    EXPECT_EQ(&cell.GetGrid(), &grid);
    EXPECT_EQ(&cell.GetRow(), row);
    EXPECT_EQ(&cell.GetCol(), &grid.GetCol(1));
    EXPECT_EQ(cell.GetRowIndex(), 1);
    EXPECT_EQ(cell.GetColIndex(), 1);
    const long height = grid.GetRowHeight();
    CRect rect;
    cell.GetRect(rect);
    EXPECT_EQ(rect, CRect(50, height, 120, 2 * height));
    cell.GetTextRect(rect);
    EXPECT_EQ(rect, CRect(51, height + 1, 120, 2 * height));
}

TEST_F(GridParts, ACellIsReadOnlyByItselfItsColumnItsRowOrTheGrid)
{
    TGGridCell& cell = (*row)[0];
    EXPECT_FALSE(cell.IsReadOnly());
    cell.SetReadOnly(true);
    EXPECT_TRUE(cell.IsReadOnly());
    cell.SetReadOnly(false);
    grid.GetCol(0).SetReadOnly(true);
    EXPECT_TRUE(cell.IsReadOnly());
    EXPECT_FALSE((*row)[1].IsReadOnly());
    grid.GetCol(0).SetReadOnly(false);
    row->SetReadOnly(true);
    EXPECT_TRUE(cell.IsReadOnly());
    row->SetReadOnly(false);
    grid.SetReadOnly(true);
    EXPECT_TRUE(cell.IsReadOnly());
    grid.SetReadOnly(false);
    EXPECT_FALSE(cell.IsReadOnly());
}

TEST_F(GridParts, CellsAreComparedCaseSensitively)
{
    TGGridCell& first = (*row)[0];
    TGGridCell& second = (*row)[1];
    first.SetText(L"B");
    second.SetText(L"a");
    EXPECT_TRUE(first < second);
    EXPECT_FALSE(first > second);
    second.SetText(L"B");
    EXPECT_FALSE(first < second);
    EXPECT_FALSE(first > second);
}

// A copy must not be taken for one of the cells that share memory.
TEST_F(GridParts, ACopyOfACellOnTheHeapIsDeletedByItself)
{
    TGGridCell& cell = (*row)[1];
    cell.SetText(L"kept");
    delete new TGGridCell(cell);
    delete new TGGridCell(grid, *row, grid.GetCol(0));
    EXPECT_EQ(Narrow((*row)[1].GetText()), "kept");
}

// Cells that a row was made with leave one by one, and others come.
TEST_F(GridParts, TheCellsOfARowOutliveEachOther)
{
    grid.GetCell(1, 0).SetText(L"first");
    grid.GetCell(1, 1).SetText(L"second");
    grid.InsertCol(1, L"between", 10);
    grid.GetCell(1, 1).SetText(L"new");
    grid.DelCol(0);
    EXPECT_EQ(Narrow(grid.GetCell(1, 0).GetText()) + " " + Narrow(grid.GetCell(1, 1).GetText()),
              "new second");
    grid.DelCol(1);
    grid.AppendCol(L"last", 10);
    grid.GetCell(1, 1).SetText(L"newest");
    EXPECT_EQ(Narrow(grid.GetCell(1, 0).GetText()) + " " + Narrow(grid.GetCell(1, 1).GetText()),
              "new newest");
    grid.DelRow(1);
    EXPECT_EQ(grid.GetRowNum(), 1);
}

TEST_F(GridParts, CopyingACellTakesItsPlaceAndAssigningOneDoesNot)
{
    TGGridCell& source = (*row)[1];
    source.SetText(L"t");
    source.SetReadOnly(true);
    TGGridCell copy(source);
    EXPECT_EQ(&copy.GetCol(), &source.GetCol());
    EXPECT_EQ(Narrow(copy.GetText()), "t");
    TGGridCell& target = grid.GetCell(0, 0);
    target = source;
    EXPECT_EQ(Narrow(target.GetText()), "t");
    EXPECT_TRUE(target.IsReadOnly());
    EXPECT_EQ(target.GetColIndex(), 0);
    EXPECT_EQ(target.GetRowIndex(), 0);
}

} // namespace
} // namespace quor::test
