// Grids, rows and columns that open what tests of the model look at, and their state as readable strings.
#pragma once

#include "grid/TGGrid.h"

#include <functional>
#include <string>

namespace quor::test
{

// A grid without a window that counts OnCurChanged and lets a test act inside it.
class ModelGrid : public QuorUiCtr::TGGrid
{
public:
    using TGGrid::TGGrid;

    using TGGrid::ClearSel;
    using TGGrid::OnCurChanged;
    using TGGrid::SendParentNotify;

    int curChanges = 0;
    std::function<void()> onCurChanged;

protected:
    void OnCurChanged() override
    {
        ++curChanges;
        TGGrid::OnCurChanged();
        // A copy, because the action may replace itself.
        if (const auto act = onCurChanged)
            act();
    }
};

// Opens the protected operations of columns and rows.
class OpenCol : public QuorUiCtr::TGGridCol
{
public:
    using TGGridCol::TGGridCol;

    using TGGridCol::GetBottom;
    using TGGridCol::GetBrush;
    using TGGridCol::GetLeft;
    using TGGridCol::GetRect;
    using TGGridCol::GetRight;
    using TGGridCol::Move;
    using TGGridCol::Select;
    using TGGridCol::SetIndex;
    using TGGridCol::SetLeft;
    using TGGridCol::SetRight;
};

class OpenRow : public QuorUiCtr::TGGridRow
{
public:
    using TGGridRow::TGGridRow;
    using TGGridRow::operator=;

    using TGGridRow::FindCell;

    using TGGridRow::GetBottom;
    using TGGridRow::GetLeft;
    using TGGridRow::GetRect;
    using TGGridRow::GetRight;
    using TGGridRow::GetTop;
    using TGGridRow::Select;
    using TGGridRow::SetIndex;
};

class OpenTreeRow : public QuorUiCtr::TGGridTreeRow
{
public:
    using TGGridTreeRow::TGGridTreeRow;

    using TGGridTreeRow::GetChildIndex;
    using TGGridTreeRow::GetGlobalChildIndex;
    using TGGridTreeRow::GetTreeQuad;
    using TGGridTreeRow::SetIndex;
};

// Host data that counts the objects alive.
struct CountedData : QuorUiCtr::TGRowData
{
    CountedData() { ++alive; }
    CountedData(const CountedData& other) : TGRowData(other) { ++alive; }
    CountedData& operator=(const CountedData&) = default;
    ~CountedData() override { --alive; }

    inline static int alive = 0;
};

std::string Narrow(const CString& text);

// Adds `count` unnamed columns.
void AddCols(QuorUiCtr::TGGrid& grid, int count);
// Appends one row (a tree row in a tree grid) per character of `texts`, with that character in the first
// cell.
void AddRows(QuorUiCtr::TGGrid& grid, const std::string& texts);
// Appends a child with a text in its first cell and returns it.
QuorUiCtr::TGGridTreeRow& AddChild(QuorUiCtr::TGGridTreeRow& parent, const wchar_t* text);
// Appends a root row with a text in its first cell and returns it.
QuorUiCtr::TGGridTreeRow& AddRoot(QuorUiCtr::TGGrid& grid, const wchar_t* text);

// The first cells of the rows, "a b c"; null slots as "-". Fails the test when an index is not the position.
std::string Texts(QuorUiCtr::TGGrid& grid);
// The selected rows or columns and the current row and column: "rows 2 3 | cur -1,-1".
std::string Selection(QuorUiCtr::TGGrid& grid);
// Names and edges of the columns: "a 0-100 | b 100-150". Fails the test when an index is not the position.
std::string Columns(QuorUiCtr::TGGrid& grid);
// All cells of a row: "x|y".
std::string Cells(QuorUiCtr::TGGrid& grid, QuorUiCtr::TGGridRow& row);

} // namespace quor::test
