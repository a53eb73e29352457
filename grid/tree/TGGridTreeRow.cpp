// A tree row's place in its tree: cells, navigation, counts, search and the fold box. What changes
// the tree is in TreeChildren.cpp, TreeCopies.cpp and TreeFolding.cpp, each with one kind of change.
#include "grid/TGGridTreeRow.h"

#include "grid/model/RowWatch.h"
#include "grid/TGGrid.h"
#include "rules/GridGeometry.h"

namespace QuorUiCtr
{

TGGridTreeRow::TGGridTreeRow(TGGrid& owner) : TGGridRow(owner) {}

TGGridTreeRow::TGGridTreeRow(TGGridTreeRow* parentRow) : TGGridRow(parentRow->GetGrid()), parent(parentRow) {}

TGGridTreeRow::~TGGridTreeRow()
{
    children.Clear();
}

// ---- Columns

// Gives the children a cell more by `add`. Takes the cell at `position` away from all of them and from this
// row when one cannot have it.
template <class Add> void TGGridTreeRow::AddToChildren(Add add, long position)
{
    long done = 0;
    try
    {
        for (TGGridTreeRow* child : children)
        {
            if (child != nullptr)
                add(*child);
            ++done;
        }
    }
    catch (...)
    {
        for (TGGridTreeRow* child : children)
            if (done-- > 0 && child != nullptr)
                child->DelCol(position);
        TGGridRow::DelCol(position);
        throw;
    }
}

void TGGridTreeRow::InsertCol(long position, TGGridCol& col)
{
    TGGridRow::InsertCol(position, col);
    AddToChildren([&](TGGridTreeRow& child) { child.InsertCol(position, col); }, position);
}

void TGGridTreeRow::AppendCol(TGGridCol& col)
{
    TGGridRow::AppendCol(col);
    AddToChildren([&](TGGridTreeRow& child) { child.AppendCol(col); }, cells.GetNum() - 1);
}

void TGGridTreeRow::DelCol(long position)
{
    TGGridRow::DelCol(position);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->DelCol(position);
}

void TGGridTreeRow::MoveCol(long from, long to)
{
    TGGridRow::MoveCol(from, to);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->MoveCol(from, to);
}

// ---- Navigation

bool TGGridTreeRow::IsParentRow()
{
    return !children.IsEmpty();
}

bool TGGridTreeRow::IsChildRow()
{
    return parent != nullptr;
}

bool TGGridTreeRow::IsTreeRow()
{
    return true;
}

TGGridTreeRow& TGGridTreeRow::GetParent() const
{
    ASSERT(parent != nullptr);
    return *parent;
}

TGGridTreeRow& TGGridTreeRow::RootRow()
{
    TGGridTreeRow* row = this;
    while (row->IsChildRow())
        row = row->parent;
    return *row;
}

bool TGGridTreeRow::IsOut() const
{
    return children.IsOut();
}

TGGridTreeRow& TGGridTreeRow::CurChild()
{
    ASSERT(!IsOut());
    return *children.Cur();
}

TGGridTreeRow& TGGridTreeRow::GetChild(long position)
{
    ASSERT(position >= 0 && position < GetChildNum());
    return *children[position];
}

TGGridTreeRow& TGGridTreeRow::GetLastChild()
{
    ASSERT(!children.IsEmpty());
    children.MoveToLast();
    return *children.Cur();
}

bool TGGridTreeRow::IsChildVisible() const
{
    const auto first = children.begin();
    return first != children.end() && *first != nullptr && (*first)->IsVisible();
}

long TGGridTreeRow::GetParentNum()
{
    long depth = 0;
    for (TGGridTreeRow* row = this; row->IsChildRow(); row = row->parent)
        ++depth;
    return depth;
}

bool TGGridTreeRow::IsBelow(const TGGridTreeRow* ancestor) const
{
    const TGGridTreeRow* row = parent;
    while (row != nullptr && row != ancestor)
        row = row->parent;
    return row != nullptr;
}

// ---- Counts

long TGGridTreeRow::GetChildIndex(TGGridTreeRow* child)
{
    // Shown children stand in the order of their indices, which is the shorter way to one of many.
    if (child != nullptr && child->IsVisible())
    {
        const CursorGuard cursor(children);
        const long place = child->GetIndex();
        children.MoveToPartition(
            [place](const TGGridTreeRow* row) { return row != nullptr && row->GetIndex() < place; });
        if (!children.IsOut() && children.Cur() == child)
            return children.GetCur();
    }
    return children.Find(child);
}

long TGGridTreeRow::GetOffspringNum()
{
    long number = GetChildNum();
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            number += child->GetOffspringNum();
    return number;
}

long TGGridTreeRow::GetRowNum()
{
    long number = 1;
    if (!IsFold())
        for (TGGridTreeRow* child : children)
            if (child != nullptr)
                number += child->GetRowNum();
    return number;
}

long TGGridTreeRow::GetGlobalChildIndex(long position)
{
    long rowIndex = GetIndex() + 1;
    for (TGGridTreeRow* child : children)
    {
        if (position-- <= 0)
            break;
        if (child != nullptr)
            rowIndex += child->GetRowNum();
    }
    return rowIndex;
}

// ---- Search

TGGridTreeRow* TGGridTreeRow::FindOffspring(const wchar_t* text, long col)
{
    for (TGGridTreeRow* child : children)
    {
        if (child == nullptr)
            continue;
        if (child->HasText(text, col))
            return child;
        if (TGGridTreeRow* found = child->FindOffspring(text, col))
            return found;
    }
    return nullptr;
}

bool TGGridTreeRow::FindAndSel(const wchar_t* text, long col)
{
    TGGridTreeRow* found = FindOffspring(text, col);
    if (found == nullptr)
        return false;
    TGGrid& owner = GetGrid();
    const RowWatch watch(owner, found);
    const TGGridUpdate update(owner);
    for (TGGridTreeRow* row = found->parent; row != nullptr && watch.IsAlive(); row = row->parent)
        row->UnFold();
    if (watch.IsAlive())
        owner.SelectOnly(*found);
    return true;
}

// ---- The fold box

void TGGridTreeRow::GetTreeQuad(CRect& rect)
{
    if (!IsParentRow())
        return;
    TGGrid& owner = GetGrid();
    const auto first = owner.cols.begin();
    const long left = first != owner.cols.end() && *first != nullptr ? (*first)->GetLeft() : 0;
    rect = FoldBoxRect(left, GetIndex(), GetParentNum(), owner.GetRowHeight()).As<CRect>();
}

bool TGGridTreeRow::IsPtInTreeQuad(CPoint& point)
{
    CRect rect(0, 0, 0, 0);
    GetTreeQuad(rect);
    return rect.PtInRect(point) != FALSE;
}

bool TGGridTreeRow::IsLastChild() const
{
    return parent != nullptr && *parent->children.IteratorAt(parent->GetChildNum() - 1) == this;
}

} // namespace QuorUiCtr
