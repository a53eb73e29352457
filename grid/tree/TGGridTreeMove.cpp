// Where a row may be moved, so that the grid's row list and the tree never differ.
#include "grid/model/GridStructure.h"

#include <vector>

namespace QuorUiCtr
{

TGGridTreeRow* TGGrid::Structure::ParentOf(TGGridRow* row)
{
    return row != nullptr && row->IsTreeRow() ? static_cast<TGGridTreeRow*>(row)->Parent() : nullptr;
}

long TGGrid::Structure::EndOfTree(long i)
{
    TGGridRow* row = grid.RowAt(i++);
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
    TGGridRow* const row = grid.RowAt(from);
    TGGridRow* const next = grid.RowAt(to);
    TGGridTreeRow* const parent = ParentOf(row);
    const bool beforeSibling = to < grid.GetRowNum() && ParentOf(next) == parent;
    if (!beforeSibling && to != (parent != nullptr ? EndOfTree(parent->GetIndex()) : grid.GetRowNum()))
        return false;
    if (parent != nullptr)
        parent->children.Move(parent->GetChildIndex(static_cast<TGGridTreeRow*>(row)),
                              beforeSibling ? parent->GetChildIndex(static_cast<TGGridTreeRow*>(next))
                                            : parent->GetChildNum());
    if (end == from + 1)
        return grid.rows.Move(from, to);
    std::vector<TGGridRow*> moving;
    for (long i = from; i < end; ++i)
        moving.push_back(grid.RowAt(i));
    grid.rows.Release(from, end - from);
    grid.rows.SpliceInsert(to > from ? to - (end - from) : to, moving);
    return true;
}

} // namespace QuorUiCtr
