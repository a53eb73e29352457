// Where a row may be moved, so that the grid's row list and the tree never differ.
#include "grid/model/GridStructure.h"

namespace QuorUiCtr
{

TGGridTreeRow* TGGrid::Structure::ParentOf(TGGridRow* row)
{
    return row != nullptr && row->IsTreeRow() ? static_cast<TGGridTreeRow*>(row)->Parent() : nullptr;
}

long TGGrid::Structure::EndOfTree(long i)
{
    TGGridRow* row = grid.RowAtIndex(i++);
    if (row != nullptr && row->IsTreeRow())
        while (IsOffspringAt(i, static_cast<TGGridTreeRow&>(*row)))
            ++i;
    return i;
}

bool TGGrid::Structure::PlaceMovingRow(long from, long to)
{
    if (!grid.IsValidRow(from) || to < 0 || to > grid.GetRowNum())
        return false;
    const long end = EndOfTree(from);
    if (to >= from && to <= end)
        return false;
    TGGridRow* const row = grid.RowAtIndex(from);
    TGGridRow* const next = grid.RowAtIndex(to);
    TGGridTreeRow* const parent = ParentOf(row);
    const bool beforeSibling = to < grid.GetRowNum() && ParentOf(next) == parent;
    if (!beforeSibling && to != (parent != nullptr ? EndOfTree(parent->GetIndex()) : grid.GetRowNum()))
        return false;
    if (parent != nullptr)
        parent->children.Move(parent->GetChildIndex(static_cast<TGGridTreeRow*>(row)),
                              beforeSibling ? parent->GetChildIndex(static_cast<TGGridTreeRow*>(next))
                                            : parent->GetChildNum());
    // One by one, which takes no memory: what has gone down leaves its place to the next.
    for (long k = 0; k < end - from; ++k)
        to > from ? grid.rows.Move(from, to) : grid.rows.Move(from + k, to + k);
    return true;
}

} // namespace QuorUiCtr
