// The simple model of a grid.
#include "tests/grid/ReferenceGrid.h"

#include <algorithm>

namespace quor::test
{
namespace
{

template <class T> void MoveElement(std::vector<T>& elements, long from, long to)
{
    const T moved = elements[static_cast<std::size_t>(from)];
    elements.erase(elements.begin() + from);
    elements.insert(elements.begin() + (to > from ? to - 1 : to), moved);
}

bool Contains(const std::vector<long>& entries, long entry)
{
    return std::find(entries.begin(), entries.end(), entry) != entries.end();
}

} // namespace

ReferenceRow* ReferenceGrid::NewRow(int id)
{
    ReferenceRow& row = made.emplace_back();
    row.id = id;
    row.cells.resize(cols.size());
    return &row;
}

void ReferenceGrid::Renumber()
{
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i]->index = static_cast<long>(i);
}

long ReferenceGrid::Position(const ReferenceRow* row) const
{
    return static_cast<long>(std::find(rows.begin(), rows.end(), row) - rows.begin());
}

void ReferenceGrid::CurChanged()
{
    curCol = colSel.size() == 1 ? colSel[0] : -1;
    curRow = rowSel.size() == 1 ? rowSel[0] : -1;
}

// ---- Rows

void ReferenceGrid::InsertRow(long i, ReferenceRow* row)
{
    const bool follows = curRow >= i && curRow < static_cast<long>(rows.size());
    rows.insert(rows.begin() + i, row);
    Renumber();
    for (long& entry : rowSel)
        if (entry >= i)
            ++entry;
    curRow += follows ? 1 : 0;
}

void ReferenceGrid::RemoveSlot(long i)
{
    rows[static_cast<std::size_t>(i)]->index = -1;
    rows.erase(rows.begin() + i);
    Renumber();
    for (long& entry : rowSel)
        if (entry > i)
            --entry;
    if (curRow >= i && curRow <= static_cast<long>(rows.size()))
        curRow = curRow == i ? -1 : curRow - 1;
}

void ReferenceGrid::DelRow(long i)
{
    SelectRow(i, false);
    RemoveSlot(i);
}

void ReferenceGrid::DelRowEx(long i)
{
    ReferenceRow* row = rows[static_cast<std::size_t>(i)];
    if (row->parent != nullptr)
    {
        const auto& siblings = row->parent->children;
        DelChild(row->parent,
                 static_cast<long>(std::find(siblings.begin(), siblings.end(), row) - siblings.begin()));
        return;
    }
    if (!row->children.empty())
        Fold(row);
    DelRow(i);
}

void ReferenceGrid::MoveRow(long from, long to)
{
    if (to == from || to == from + 1)
        return;
    MoveElement(rows, from, to);
    Renumber();
}

void ReferenceGrid::SetRowNum(long n, int& nextId)
{
    while (static_cast<long>(rows.size()) > n)
        DelRow(static_cast<long>(rows.size()) - 1);
    while (static_cast<long>(rows.size()) < n)
        InsertRow(static_cast<long>(rows.size()), NewRow(nextId++));
}

void ReferenceGrid::Clear()
{
    rows.clear();
    rowSel.clear();
    colSel.clear();
}

// ---- Columns

template <class Change> void ReferenceGrid::ForTree(ReferenceRow* row, Change change)
{
    change(*row);
    for (ReferenceRow* child : row->children)
        ForTree(child, change);
}

void ReferenceGrid::InsertCol(long i, const std::string& name, long width)
{
    const long left = i > 0 ? cols[static_cast<std::size_t>(i - 1)].right : 0;
    for (std::size_t k = static_cast<std::size_t>(i); k < cols.size(); ++k)
    {
        cols[k].left += width;
        cols[k].right += width;
    }
    cols.insert(cols.begin() + i, {name, left, left + width});
    for (ReferenceRow* row : rows)
        if (row->parent == nullptr)
            ForTree(row, [i](ReferenceRow& r) { r.cells.insert(r.cells.begin() + i, ""); });
}

void ReferenceGrid::DelCol(long i)
{
    SelectCol(i, false);
    const ReferenceCol gone = cols[static_cast<std::size_t>(i)];
    cols.erase(cols.begin() + i);
    for (std::size_t k = static_cast<std::size_t>(i); k < cols.size(); ++k)
    {
        cols[k].left -= gone.right - gone.left;
        cols[k].right -= gone.right - gone.left;
    }
    for (ReferenceRow* row : rows)
        if (row->parent == nullptr)
            ForTree(row, [i](ReferenceRow& r) { r.cells.erase(r.cells.begin() + i); });
}

void ReferenceGrid::MoveCol(long from, long to)
{
    if (to == from || to == from + 1)
        return;
    MoveElement(cols, from, to);
    long left = 0;
    for (ReferenceCol& col : cols)
    {
        const long width = col.right - col.left;
        col.left = left;
        col.right = left + width;
        left += width;
    }
    for (ReferenceRow* row : rows)
        if (row->parent == nullptr)
            ForTree(row, [from, to](ReferenceRow& r) { MoveElement(r.cells, from, to); });
}

// ---- Selection

void ReferenceGrid::SelectRow(long i, bool select)
{
    if (i < 0 || i >= static_cast<long>(rows.size()))
        return;
    if (!select)
        std::erase(rowSel, i);
    else
    {
        colSel.clear();
        if (!Contains(rowSel, i))
            rowSel.push_back(i);
        std::sort(rowSel.begin(), rowSel.end());
    }
    CurChanged();
}

void ReferenceGrid::SelectCol(long i, bool select)
{
    if (i < 0 || i >= static_cast<long>(cols.size()))
        return;
    if (!select)
        std::erase(colSel, i);
    else
    {
        rowSel.clear();
        if (!Contains(colSel, i))
            colSel.push_back(i);
        std::sort(colSel.begin(), colSel.end());
    }
    CurChanged();
}

void ReferenceGrid::SelectAll()
{
    colSel.clear();
    rowSel.clear();
    for (std::size_t i = 0; i < rows.size(); ++i)
        rowSel.push_back(static_cast<long>(i));
    CurChanged();
}

void ReferenceGrid::UnSelect()
{
    colSel.clear();
    rowSel.clear();
    CurChanged();
}

// ---- Trees

long ReferenceGrid::RowNum(const ReferenceRow* row) const
{
    long number = 1;
    if (row->unfolded)
        for (const ReferenceRow* child : row->children)
            number += RowNum(child);
    return number;
}

void ReferenceGrid::InsertChild(ReferenceRow* parent, long k, ReferenceRow* child)
{
    child->parent = parent;
    parent->children.insert(parent->children.begin() + k, child);
    if (!IsShown(parent) || !parent->unfolded)
        return;
    long i = parent->index + 1;
    for (long before = 0; before < k; ++before)
        i += RowNum(parent->children[static_cast<std::size_t>(before)]);
    // An index that names no row follows none, also where the rows get as many.
    const bool namesRow = curRow < static_cast<long>(rows.size());
    const long before = curRow;
    InsertRow(i, child);
    if (child->unfolded)
        UnFold(child);
    curRow = namesRow ? curRow : before;
}

void ReferenceGrid::DelChild(ReferenceRow* parent, long k)
{
    ReferenceRow* child = parent->children[static_cast<std::size_t>(k)];
    if (IsShown(child))
    {
        Fold(child);
        SelectRow(child->index, false);
        RemoveSlot(child->index);
    }
    parent->children.erase(parent->children.begin() + k);
}

// Row by row, each deselected with a report before it goes.
void ReferenceGrid::Fold(ReferenceRow* row)
{
    if (!row->children.empty() && IsShown(row->children[0]))
    {
        const long number = RowNum(row) - 1;
        for (long k = 0; k < number; ++k)
        {
            SelectRow(row->index + 1, false);
            RemoveSlot(row->index + 1);
        }
    }
    row->unfolded = false;
}

void ReferenceGrid::UnFold(ReferenceRow* row)
{
    if (!row->children.empty() && IsShown(row) && !IsShown(row->children[0]))
    {
        // An index that names no row follows none.
        const bool namesRow = curRow < static_cast<long>(rows.size());
        const long before = curRow;
        long k = 0;
        for (ReferenceRow* child : row->children)
            InsertRow(row->index + 1 + k++, child);
        for (ReferenceRow* child : row->children)
            if (child->unfolded)
                UnFold(child);
        curRow = namesRow ? curRow : before;
    }
    row->unfolded = true;
}

void ReferenceGrid::FoldAll(ReferenceRow* row)
{
    Fold(row);
    for (ReferenceRow* child : row->children)
        FoldAll(child);
}

// As one change: an index that names no row before follows none, also where the rows get as many meanwhile.
void ReferenceGrid::UnFoldAll(ReferenceRow* row)
{
    const bool namesRow = curRow < static_cast<long>(rows.size());
    const long before = curRow;
    UnFold(row);
    for (ReferenceRow* child : row->children)
        UnFoldAll(child);
    curRow = namesRow ? curRow : before;
}

void ReferenceGrid::ClearChild(ReferenceRow* row)
{
    if (row->children.empty())
        return;
    Fold(row);
    row->children.clear();
}

void ReferenceGrid::ArrangeChild(ReferenceRow* row, bool ascending, const std::vector<long>& keys)
{
    const auto isBefore = [&](const ReferenceRow* first, const ReferenceRow* second) {
        for (const long key : keys)
        {
            const auto col = static_cast<std::size_t>(key);
            if (col < first->cells.size() && first->cells[col] != second->cells[col])
                return ascending ? first->cells[col] < second->cells[col]
                                 : first->cells[col] > second->cells[col];
        }
        return false;
    };
    std::stable_sort(row->children.begin(), row->children.end(), isBefore);
    for (ReferenceRow* child : row->children)
        ArrangeChild(child, ascending, keys);
}

ReferenceRow* ReferenceGrid::FindBelow(ReferenceRow* row, const std::string& text, std::size_t col)
{
    for (ReferenceRow* child : row->children)
    {
        if (col < child->cells.size() && child->cells[col] == text)
            return child;
        if (ReferenceRow* found = FindBelow(child, text, col))
            return found;
    }
    return nullptr;
}

void ReferenceGrid::SelectOnly(ReferenceRow* row)
{
    UnSelect();
    SelectRow(row->index, true);
}

bool ReferenceGrid::FindAndSel(const std::string& text, long col, bool tree)
{
    const auto column = static_cast<std::size_t>(col);
    for (ReferenceRow* row : rows)
    {
        if (tree && row->parent != nullptr)
            continue;
        if (column < row->cells.size() && row->cells[column] == text)
        {
            SelectOnly(row);
            return true;
        }
        if (ReferenceRow* found = FindBelow(row, text, column))
        {
            for (ReferenceRow* above = found->parent; above != nullptr; above = above->parent)
                UnFold(above);
            SelectOnly(found);
            return true;
        }
    }
    return false;
}

// ---- State

std::string DescribeRow(const ReferenceRow& row)
{
    std::string text = std::to_string(row.id) + (row.unfolded ? "+[" : "[");
    for (const std::string& cell : row.cells)
        text += cell + ",";
    text += "]";
    for (const ReferenceRow* child : row.children)
        text += "(" + DescribeRow(*child) + ")";
    return text;
}

std::string ReferenceGrid::Describe() const
{
    std::string state = "rows";
    for (const ReferenceRow* row : rows)
        state += " " + (row->parent != nullptr ? std::to_string(row->id) : DescribeRow(*row));
    state += " | cols";
    for (const ReferenceCol& col : cols)
        state += " " + col.name + ":" + std::to_string(col.left) + "-" + std::to_string(col.right);
    state += " | sel";
    for (const long i : rowSel)
        state += " " + std::to_string(i);
    for (const long i : colSel)
        state += " c" + std::to_string(i);
    return state + " | cur " + std::to_string(curRow) + "," + std::to_string(curCol);
}

} // namespace quor::test
