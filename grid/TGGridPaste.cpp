// Copy, cut and paste through the grid's row buffer.
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
    void PlacePasted(TGGridRow* pasted, long row, bool atEnd);

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

// The row itself moves to the buffer; its emptied slot is deleted. Meanwhile it stands in both lists, and the hook may
// delete it through either.
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
    // Rows pasted at the end are appended last to first, which turns their order around.
    const bool atEnd = row >= GetRowNum();
    {
        TGGridUpdate update(*this);
        while (!rowPaste.IsEmpty())
            RowBuffer(*this).PlacePasted(rowPaste.Detach(rowPaste.GetNum() - 1), row, atEnd);
    }
    for (long i = row; i < row + count; ++i)
        SelectRow(i, true);
}

void TGGrid::RowBuffer::PlacePasted(TGGridRow* pasted, long row, bool atEnd)
{
    if (atEnd)
        grid.AppendRow(pasted);
    else if (grid.GetRow(row).IsChildRow())
    {
        TGGridTreeRow& sibling = grid.GetTreeRow(row);
        TGGridTreeRow& parent = sibling.GetParent();
        parent.InsertChild(parent.GetChildIndex(&sibling), static_cast<TGGridTreeRow*>(pasted));
    }
    else
        grid.InsertRow(row, pasted);
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
        TGGridUpdate update(*this);
        while (watch.IsAlive() && !rowPaste.IsEmpty())
            parent.InsertChild(parent.GetChildNum(), static_cast<TGGridTreeRow*>(rowPaste.Detach(0)));
    }
    for (long i = first; i < first + count; ++i)
        SelectRow(i, true);
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
