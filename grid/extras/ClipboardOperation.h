// TGClipboard::Operation: a command on the stack, what it works on, and what it reports.
#pragma once

#include "grid/extras/TGClipboard.h"
#include "grid/TGGrid.h"
#include "grid/TGUserAction.h"
#include "rules/CellBlocks.h"

#include <new>
#include <optional>
#include <unordered_map>

namespace QuorUiCtr
{

// Rows that a command goes through, of which hooks may delete some.
class HeldRows
{
public:
    void Clear();
    // Returns the place.
    std::size_t Add(TGGridRow* row);
    std::size_t GetNum() const { return rows.size(); }
    // Null for a row that has gone.
    TGGridRow* At(std::size_t i) const { return rows[i]; }
    void Forget(const TGGridRow* row);

private:
    std::vector<TGGridRow*> rows;
    // Where the rows stand in the vector, as soon as one goes.
    std::unordered_map<const TGGridRow*, std::size_t> places;
    bool arePlacesKnown = false;
};

// The extension tells the running operation which rows and columns go, and that it goes itself.
class TGClipboard::Operation
{
public:
    Operation(TGClipboard& owner, TGClipboardReport& ownReport);
    ~Operation();
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

    // The extension exists and is attached to the same grid.
    bool IsAlive() const { return clipboard != nullptr && clipboard->GetGrid() == &grid; }
    // Only while it is alive.
    TGClipboard& Extension() const { return *clipboard; }
    TGGrid& Grid() const { return grid; }

    // What is selected, as blocks that may end on the new-row line.
    std::vector<CellArea> SelectedBlocks() const;
    // The same without the new-row line, which is refused when there are no cells or more than are allowed.
    bool TakeSelectedCells(std::vector<CellArea>& blocks);
    // Whether so many cells may be worked on; refuses else.
    bool Allows(long long cells);
    // Commits an open edit; false when that has ended the operation.
    bool EndEdit();
    // The rows and columns of a block that there are become those that are worked on.
    void Hold(const CellArea& block);
    // Types into a cell of the held rows and columns, and counts what becomes of it. The indices are those to
    // report.
    void Type(std::size_t rowSlot, std::size_t colSlot, CString text, long row, long col);
    // The cell of a held row and column, null for one that has gone.
    TGGridCell* HeldCell(std::size_t rowSlot, std::size_t colSlot) const;
    // The text of any cell by its indices.
    CString TextAt(long row, long col) const;
    // Makes the cells that there are of a block the selection.
    void Select(const CellArea& block);
    // Tells OnDataChanged when anything was changed that was not told of.
    void Finish();

    void ForgetTree(TGGridRow& row);
    void ForgetCol(const TGGridCol& col);

    TGClipboardReport& report;
    // Rows that leave are counted as removed.
    bool countsRemoved = false;
    HeldRows rows;
    // Null for those that have gone.
    std::vector<TGGridCol*> cols;

private:
    friend class TGClipboard;

    TGClipboard* clipboard;
    TGGrid& grid;
    std::optional<TGUserAction> action;
};

// The frame of every command: memory that runs out ends it, with a report of what was done by then.
template <class Work> TGClipboardReport TGClipboard::Perform(TGClipboardAction action, Work work)
{
    TGClipboardReport report(action);
    if (GetGrid() == nullptr || running != nullptr)
    {
        report.Refuse(running != nullptr ? TGClipboardRefusal::Running : TGClipboardRefusal::NothingSelected);
        OnReport(report);
        return report;
    }
    Operation operation(*this, report);
    try
    {
        work(operation);
    }
    catch (CMemoryException* exception)
    {
        exception->Delete();
        report.Refuse(TGClipboardRefusal::NoMemory);
    }
    catch (const std::bad_alloc&)
    {
        report.Refuse(TGClipboardRefusal::NoMemory);
    }
    operation.Finish();
    return report;
}

} // namespace QuorUiCtr
