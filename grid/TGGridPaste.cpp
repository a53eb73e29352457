// Copy, cut and paste through the grid's row buffer.
#include "grid/GridStructure.h"
#include "grid/RowWatch.h"
#include "grid/SelectedIndices.h"
#include "grid/TGGrid.h"

#include <algorithm>
#include <vector>

namespace QuorUiCtr
{

// The steps of copying, cutting and pasting rows.
class TGGrid::RowBuffer
{
public:
    explicit RowBuffer(TGGrid& servedGrid) : grid(servedGrid) {}

    TGGridRow* CopyOfRow(TGGridRow& row);
    void FoldSelectedRows();
    void ClipRow(long i);
    void ClipPlainRow(long i);
    void ClipTreeRow(long i);
    std::vector<TGGridRow*> TakeAll();
    void AppendPasted();
    void InsertPasted(long row);
    void InsertAsChildren(TGGridTreeRow& parent, long position);
    void SelectPasted(long first, long number);

private:
    TGGrid& grid;
};

bool TGGrid::DoCopy()
{
    if (!OnBeforeCopy())
        return false;
    rowPaste.Clear();
    for (long i : rowSel)
        rowPaste.Append(RowBuffer(*this).CopyOfRow(GetRow(i)));
    OnEndCopy();
    return true;
}

// A folded tree row is copied with its offspring; the children of an unfolded one are rows of their own.
TGGridRow* TGGrid::RowBuffer::CopyOfRow(TGGridRow& row)
{
    if (!row.IsTreeRow())
    {
        TGGridRow* copy = new TGGridRow(grid);
        *copy = row;
        return copy;
    }
    TGGridTreeRow& source = static_cast<TGGridTreeRow&>(row);
    TGGridTreeRow* copy = new TGGridTreeRow(grid);
    if (source.IsFold())
    {
        *copy = source;
        copy->Fold();
    }
    else
        static_cast<TGGridRow&>(*copy) = row;
    return copy;
}

bool TGGrid::DoClip()
{
    if (IsRowFixLength() || !OnBeforeClip())
        return false;
    ClipSelect();
    OnEndClip();
    OnDataChanged();
    return true;
}

void TGGrid::ClipSelect()
{
    rowPaste.Clear();
    TGGridUpdate update(*this);
    RowBuffer(*this).FoldSelectedRows();
    const std::vector<long> cut(rowSel.begin(), rowSel.end());
    ClearSel();
    // From the last to the first, each put in front: the buffer ends in the rows' former order.
    for (auto i = cut.rbegin(); i != cut.rend(); ++i)
        if (IsValidRow(*i))
            RowBuffer(*this).ClipRow(*i);
}

// Folding takes rows out of the list and entries behind them change, so the rows are remembered first.
void TGGrid::RowBuffer::FoldSelectedRows()
{
    std::vector<TGGridRow*> selected;
    for (long i : grid.rowSel)
        selected.push_back(&grid.GetRow(i));
    for (TGGridRow* row : selected)
        if (row->GetIndex() >= 0 && row->IsParentRow())
            static_cast<TGGridTreeRow*>(row)->Fold();
}

void TGGrid::RowBuffer::ClipRow(long i)
{
    if (grid.GetRow(i).IsTreeRow())
        ClipTreeRow(i);
    else
        ClipPlainRow(i);
}

// The row itself moves to the buffer; its emptied slot is deleted. Meanwhile it stands in both lists, and the
// hook may delete it through either.
void TGGrid::RowBuffer::ClipPlainRow(long i)
{
    TGGridRow* row = &grid.GetRow(i);
    const RowWatch watch(grid, row);
    grid.rowPaste.Insert(0, row);
    grid.OnCurChanged();
    if (watch.IsAlive())
        i = row->GetIndex();
    else if (const long dead = grid.rowPaste.Find(row); dead != -1)
        grid.rowPaste.Detach(dead);
    if (!grid.rows.MoveTo(i) || grid.rows.Cur() != row)
        return;
    grid.rows.SetCur(nullptr);
    grid.DelRow(i);
}

// A copy with the offspring moves to the buffer; the row itself is deleted.
void TGGrid::RowBuffer::ClipTreeRow(long i)
{
    TGGridTreeRow& source = grid.GetTreeRow(i);
    TGGridTreeRow* copy = new TGGridTreeRow(grid);
    *copy << source;
    grid.rowPaste.Insert(0, copy);
    if (source.IsChildRow())
        source.GetParent().DelChild(source.GetParent().GetChildIndex(&source));
    else
    {
        source.Fold();
        grid.DelRow(i);
    }
}

bool TGGrid::DoPaste()
{
    if (IsRowFixLength() || GetRowSelNum() > 1 || IsNoPaste() || rowPaste.IsEmpty())
        return false;
    const long target = IsRowSelected() ? rowSel[0] : GetRowNum();
    if (!OnBeforePaste(target))
        return false;
    Paste(target < GetRowNum() ? target : GetRowNum());
    OnEndPaste();
    OnDataChanged();
    return true;
}

void TGGrid::Paste(long row)
{
    UnSelect();
    const long count = rowPaste.GetNum();
    {
        const TGGridUpdate update(*this);
        if (row >= GetRowNum())
            RowBuffer(*this).AppendPasted();
        else
            RowBuffer(*this).InsertPasted(row);
    }
    RowBuffer(*this).SelectPasted(row, count);
}

// Scrolls to the first row and from there to the last one, as selecting all in turn would.
void TGGrid::RowBuffer::SelectPasted(long first, long number)
{
    grid.SelectRow(first, true);
    const TGGridUpdate update(grid);
    for (long i = first + 1; i < first + number; ++i)
        grid.SelectRow(i, true);
}

// The rows of the buffer, which gives them up.
std::vector<TGGridRow*> TGGrid::RowBuffer::TakeAll()
{
    std::vector<TGGridRow*> taken(grid.rowPaste.begin(), grid.rowPaste.end());
    grid.rowPaste.Release(0, grid.rowPaste.GetNum());
    return taken;
}

// Last to first, which turns their order around.
void TGGrid::RowBuffer::AppendPasted()
{
    const std::vector<TGGridRow*> pasted = TakeAll();
    for (auto row = pasted.rbegin(); row != pasted.rend(); ++row)
        grid.AppendRow(*row);
}

// All at once, because each insertion numbers the rows behind it.
void TGGrid::RowBuffer::InsertPasted(long row)
{
    grid.EndEditCell();
    if (!grid.IsValidRow(row))
    {
        AppendPasted();
    }
    else if (grid.GetRow(row).IsChildRow())
    {
        TGGridTreeRow& sibling = grid.GetTreeRow(row);
        InsertAsChildren(sibling.GetParent(), sibling.GetParent().GetChildIndex(&sibling));
    }
    else
    {
        Structure(grid).InsertRows(row, TakeAll());
        grid.RecalcLayout(1);
    }
}

void TGGrid::RowBuffer::InsertAsChildren(TGGridTreeRow& parent, long position)
{
    TGGridTreeRow::OwnedRows pasted;
    for (TGGridRow* row : TakeAll())
        pasted.emplace_back(static_cast<TGGridTreeRow*>(row));
    parent.InsertChildren(position, pasted);
}

bool TGGrid::DoPasteChild()
{
    if (IsRowFixLength() || !IsTreeGrid() || GetRowSelNum() != 1 || IsNoPaste() || rowPaste.IsEmpty() ||
        !GetSelRow(0).IsTreeRow())
        return false;
    const long selected = rowSel[0];
    TGGridTreeRow& parent = GetTreeRow(selected);
    if (!OnBeforePasteChild(parent) || !IsValidRow(selected) || rows[selected] != &parent)
        return false;
    const RowWatch watch(*this, &parent);
    UnSelect();
    if (watch.IsAlive())
        parent.UnFold();
    if (!watch.IsAlive())
        return false;
    const long first = selected + parent.GetRowNum();
    const long count = rowPaste.GetNum();
    {
        const TGGridUpdate update(*this);
        RowBuffer(*this).InsertAsChildren(parent, parent.GetChildNum());
    }
    RowBuffer(*this).SelectPasted(first, count);
    OnEndPaste();
    OnDataChanged();
    return true;
}

// The rows travel through the row buffer, whose content is kept aside meanwhile.
void TGGrid::MoveSelectedRows(long to)
{
    const long above = SelectedIndices::LowerBound(rowSel, to);
    PDList<TGGridRow> kept;
    const auto moveAll = [](PDList<TGGridRow>& source, PDList<TGGridRow>& target) {
        while (!source.IsEmpty())
            target.Append(source.Detach(0));
    };
    moveAll(rowPaste, kept);
    {
        TGGridUpdate update(*this);
        ClipSelect();
        Paste(std::clamp(to - above, 0L, GetRowNum()));
    }
    rowPaste.Clear();
    moveAll(kept, rowPaste);
}

} // namespace QuorUiCtr
