// What a grid tells while it changes is recorded.
#include "undo/GridUndo.h"

#include "grid/extras/ViewOf.h"
#include "undo/GridChange.h"

#include <utility>

namespace QuorUiCtr
{

void GridUndo::Settle()
{
    if (std::exchange(lost, false))
        history.End();
    if (dead.empty())
        return;
    const std::unordered_set<const TGGridRow*> gone = std::exchange(dead, {});
    history.ForChanges(*this, [&](UndoChange& change) { static_cast<GridChange&>(change).Forget(gone); });
}

bool GridUndo::IsRecording() const
{
    return reverting || history.IsRecording();
}

void GridUndo::Put(std::unique_ptr<GridChange> change)
{
    if (reverting)
        RecordBack(std::move(change));
    else
        history.Record(std::move(change));
}

void GridUndo::OnTextChanged(TGGridCell& cell, const CString& oldText)
{
    if (!IsRecording() || ViewOf(oldText) == ViewOf(cell.GetText()))
        return;
    Noting([&] {
        Settle();
        const bool back = reverting && &cell == revertedCell;
        if (auto* const last = Last<GridTextChange>(back))
        {
            last->Add(cell, oldText);
            return;
        }
        auto change = std::make_unique<GridTextChange>(*this);
        change->Add(cell, oldText);
        if (back)
            RecordBack(std::move(change));
        else
            history.Record(std::move(change));
    });
}

void GridUndo::OnRowsInserted(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> rows)
{
    if (!IsRecording() || rows.empty())
        return;
    // A row that comes in alone shows no children, whatever its flag says: as it comes back, the two agree.
    for (TGGridRow* row : rows)
        if (row->IsParentRow() && !static_cast<TGGridTreeRow*>(row)->IsChildVisible() && row->GetIndex() >= 0)
            static_cast<TGGridTreeRow*>(row)->SetUnFoldFlag(false);
    Noting([&] {
        Settle();
        Put(std::make_unique<GridRowsIn>(*this, parent, position, rows));
    });
}

void GridUndo::OnRowsRemoved(TGRemovedRows& rows)
{
    if (!IsRecording())
        return;
    Noting([&] {
        Settle();
        if (rows.IsBuffered())
            travellers.insert(rows.GetRows().begin(), rows.GetRows().end());
        told = told || reverting;
        if (auto* const last = Last<GridRowsOut>(reverting); last != nullptr && last->Add(rows))
            return;
        auto change = std::make_unique<GridRowsOut>(*this, rows.GetParent(), rows.GetPosition());
        change->Add(rows);
        Put(std::move(change));
    });
}

void GridUndo::OnRowMoved(long from, long to, long number)
{
    if (!IsRecording())
        return;
    Noting([&] {
        Settle();
        Put(std::make_unique<GridRowMove>(*this, from, to, number));
    });
}

void GridUndo::OnRowsSorted(TGGridTreeRow* parent, std::span<const long> order)
{
    if (!IsRecording())
        return;
    told = told || reverting;
    if (std::is_sorted(order.begin(), order.end()))
        return;
    Noting([&] {
        Settle();
        if (auto* const last = Last<GridOrder>(reverting); last != nullptr && last->Add(parent, order))
            return;
        auto change = std::make_unique<GridOrder>(*this);
        change->Add(parent, order);
        Put(std::move(change));
    });
}

void GridUndo::OnRowsFolded(std::span<TGGridTreeRow* const> rows)
{
    if (!IsRecording())
        return;
    Noting([&] {
        Settle();
        Put(std::make_unique<GridFold>(*this, rows));
    });
}

void GridUndo::OnColInserted(TGGridCol& col)
{
    if (!IsRecording())
        return;
    Noting([&] { Put(std::make_unique<GridColIn>(*this, col)); });
}

void GridUndo::OnColRemoving(TGGridCol& col)
{
    if (!IsRecording())
        return;
    Noting([&] {
        Settle();
        goingCol = std::make_unique<GridColOut>(*this, col);
    });
}

void GridUndo::OnColRemoved(long, std::unique_ptr<TGGridCol>& col)
{
    if (goingCol == nullptr)
        return;
    Noting([&] {
        static_cast<GridColOut&>(*goingCol).Take(std::move(col));
        Put(std::move(goingCol));
    });
}

void GridUndo::OnColMoved(long from, long to)
{
    if (!IsRecording())
        return;
    Noting([&] { Put(std::make_unique<GridColMove>(*this, from, to)); });
}

void GridUndo::OnColResized(TGGridCol& col, long oldWidth)
{
    if (!IsRecording() || oldWidth == col.GetWidth())
        return;
    Noting([&] {
        const bool byUser = inAction && kind == TGActionKind::ResizeCols;
        Put(std::make_unique<GridColWidth>(*this, col, oldWidth, byUser));
    });
}

// Of a row that goes with the step that owns it nobody knows, unless it has been in the row buffer.
void GridUndo::OnRowDeleted(const TGGridRow* row)
{
    if (row == openRow)
        openRow = nullptr;
    if (!IsMarked(*row) || (history.IsDropping() && travellers.count(const_cast<TGGridRow*>(row)) == 0))
        return;
    try
    {
        travellers.erase(const_cast<TGGridRow*>(row));
        dead.insert(row);
    }
    catch (...)
    {
        lost = true;
    }
}

void GridUndo::OnDataMoved(TGGridRow& from, TGGridRow& to)
{
    if (!IsRecording())
        return;
    Noting([&] {
        Settle();
        travellers.insert({&from, &to});
        Put(std::make_unique<GridDataMove>(*this, from, to));
    });
}

void GridUndo::OnBufferDropped(TGRemovedRows& rows)
{
    Noting([&] {
        Settle();
        for (std::size_t i = 0; i < rows.GetRows().size(); ++i)
        {
            if (!IsMarked(*rows.GetRows()[i]))
                continue;
            std::unique_ptr<TGGridRow> row = rows.Take(i);
            history.ForChanges(*this, [&](UndoChange& change) {
                if (row != nullptr)
                    static_cast<GridChange&>(change).Keep(row);
            });
        }
    });
}

} // namespace QuorUiCtr
