// Columns come in, leave with their texts, move and get other widths.
#include "undo/GridChange.h"

#include "grid/extras/ViewOf.h"

#include <algorithm>
#include <string_view>

namespace QuorUiCtr
{

// ---- A column has come in

GridColIn::GridColIn(GridUndo& changedBy, const TGGridCol& col)
    : GridChange(changedBy), position(col.GetIndex()), serial(GridUndo::GetSerial(col))
{
}

bool GridColIn::Fits() const
{
    return Undo().SerialAt(position) == serial;
}

bool GridColIn::Revert()
{
    const GridUndo::Reverting guard(Undo());
    Undo().TakeCol(position);
    return guard.IsTold();
}

long GridColIn::Count(TGActionKind kind) const
{
    return kind == TGActionKind::InsertCols ? 1 : 0;
}

// ---- A column has left

template <class Use> void GridColOut::ForRows(Use use) const
{
    std::vector<TGGridRow*> waiting = Undo().GetSiblings(nullptr);
    std::reverse(waiting.begin(), waiting.end());
    while (!waiting.empty())
    {
        TGGridRow* const row = waiting.back();
        waiting.pop_back();
        if (row == nullptr)
            continue;
        use(*row);
        if (!row->IsParentRow())
            continue;
        const std::vector<TGGridRow*> children = Undo().GetSiblings(static_cast<TGGridTreeRow*>(row));
        waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
}

GridColOut::GridColOut(GridUndo& changedBy, const TGGridCol& going)
    : GridChange(changedBy),
      position(going.GetIndex()),
      width(going.GetWidth()),
      before(changedBy.SerialAt(position - 1)),
      behind(changedBy.SerialAt(position + 1))
{
    ForRows([this](TGGridRow& row) { ReadCell(row); });
    ReadBeside(going);
}

void GridColOut::ReadCell(TGGridRow& row)
{
    const TGGridCell* const cell = GridUndo::CellOf(row, position);
    const std::size_t place = number++;
    if (cell == nullptr || (cell->GetText().IsEmpty() && GridUndo::GetStyle(*cell) == 0))
        return;
    const std::wstring_view text = ViewOf(cell->GetText());
    texts.insert(texts.end(), text.begin(), text.end());
    entries.push_back({place, texts.size(), GridUndo::GetStyle(*cell)});
}

// Rows that other changes own have the cells of their time.
TGGridCell* GridColOut::FindCell(TGGridRow& row, const TGGridCol& col)
{
    TGGridCell* cell = GridUndo::CellOf(row, 0);
    for (long i = 1; cell != nullptr && &cell->GetCol() != &col; ++i)
        cell = GridUndo::CellOf(row, i);
    return cell;
}

void GridColOut::ReadBeside(const TGGridCol& going)
{
    std::vector<TGGridRow*> waiting = Undo().GetRowsBeside();
    while (!waiting.empty())
    {
        TGGridRow* const row = waiting.back();
        waiting.pop_back();
        if (const TGGridCell* cell = FindCell(*row, going))
        {
            Undo().NoteTraveller(*row);
            beside.push_back({row, cell->GetText(), GridUndo::GetStyle(*cell)});
        }
        if (!row->IsParentRow())
            continue;
        for (TGGridRow* child : Undo().GetSiblings(static_cast<TGGridTreeRow*>(row)))
            if (child != nullptr)
                waiting.push_back(child);
    }
}

bool GridColOut::Fits() const
{
    std::size_t present = 0;
    ForRows([&](TGGridRow&) { ++present; });
    return col != nullptr && present == number && Undo().SerialAt(position - 1) == before &&
           Undo().SerialAt(position) == behind;
}

bool GridColOut::Revert()
{
    GridUndo& undo = Undo();
    TGGrid& grid = *undo.GetGrid();
    const GridUndo::Reverting guard(undo);
    grid.InsertCol(position, col.release(), (std::max)(width, 1L));
    if (undo.GetGrid() == nullptr || !guard.IsTold())
        return false;
    std::size_t i = 0;
    std::size_t text = 0;
    auto next = entries.begin();
    ForRows([&](TGGridRow& row) {
        if (next == entries.end() || next->row != i++)
            return;
        if (TGGridCell* cell = GridUndo::CellOf(row, position))
        {
            cell->GetText() = TextOf({texts.data() + text, next->textEnd - text});
            GridUndo::SetStyle(*cell, next->style);
        }
        text = next->textEnd;
        ++next;
    });
    for (const Beside& other : beside)
    {
        GridUndo::FitToCols(*other.row);
        if (TGGridCell* cell = GridUndo::CellOf(*other.row, position))
        {
            cell->GetText() = other.text;
            GridUndo::SetStyle(*cell, other.style);
        }
    }
    if (width == 0)
        grid.GetCol(position).SetWidth(0);
    return undo.GetGrid() != nullptr;
}

std::size_t GridColOut::GetBytes() const
{
    return sizeof(*this) + sizeof(TGGridCol) + entries.capacity() * sizeof(Entry) +
           texts.capacity() * sizeof(wchar_t) + beside.capacity() * sizeof(Beside);
}

long GridColOut::Count(TGActionKind kind) const
{
    return kind == TGActionKind::DeleteCols ? 1 : 0;
}

// The row buffer may lose its rows.
void GridColOut::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    std::erase_if(beside, [&](const Beside& other) { return gone.count(other.row) > 0; });
}

// ---- A column was moved

GridColMove::GridColMove(GridUndo& changedBy, long movedFrom, long movedTo)
    : GridChange(changedBy), from(movedFrom), to(movedTo), serial(changedBy.SerialAt(Place()))
{
}

bool GridColMove::Revert()
{
    const GridUndo::Reverting guard(Undo());
    Undo().GetGrid()->MoveCol(Place(), to > from ? from : from + 1);
    return guard.IsTold();
}

long GridColMove::Count(TGActionKind kind) const
{
    return kind == TGActionKind::MoveCols ? 1 : 0;
}

// ---- A column has another width

GridColWidth::GridColWidth(GridUndo& changedBy, const TGGridCol& col, long widthBefore, bool byUser)
    : GridChange(changedBy),
      index(col.GetIndex()),
      serial(GridUndo::GetSerial(col)),
      oldWidth(widthBefore),
      newWidth(col.GetWidth()),
      isUsers(byUser)
{
}

bool GridColWidth::Fits() const
{
    const TGGridCol* const col = Undo().FindCol(index, serial);
    return col != nullptr && col->GetWidth() == newWidth;
}

bool GridColWidth::Revert()
{
    const GridUndo::Reverting guard(Undo());
    Undo().FindCol(index, serial)->SetWidth(oldWidth);
    return guard.IsTold() || oldWidth == newWidth;
}

bool GridColWidth::Merge(UndoChange& next)
{
    auto* const follower = dynamic_cast<GridColWidth*>(&next);
    if (follower == nullptr || follower->serial != serial || follower->index != index ||
        follower->oldWidth != newWidth)
        return false;
    newWidth = follower->newWidth;
    isUsers = isUsers || follower->isUsers;
    return true;
}

} // namespace QuorUiCtr
