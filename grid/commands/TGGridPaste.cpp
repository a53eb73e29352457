// Copy, cut and paste through the grid's row buffer.
#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace QuorUiCtr
{

// The steps of copying, cutting and pasting rows. What moves rows runs no hooks: these run before and after.
class TGGrid::RowBuffer
{
public:
    explicit RowBuffer(TGGrid& servedGrid) : grid(servedGrid) {}

    TGGridRow* CopyOfRow(TGGridRow& row);
    // Folds the selected rows, empties the selection and runs the hooks of the removal, with `moreTellings`
    // of the changed selection behind them; returns the rows to cut, in grid order.
    std::vector<TGGridRow*> BeginCut(long moreTellings);
    // Moves rows of the grid to the empty row buffer, tree rows as copies that take over the host data.
    void Fill(std::span<TGGridRow* const> cut);
    // Moves the row buffer in front of `row`, or below `parent` in front of its child at `position`.
    void PlaceAll(long row);
    void InsertAsChildren(TGGridTreeRow& parent, long position);
    void SelectPasted(long first, long number);
    std::vector<TGGridRow*> TakeAll();

private:
    void FoldSelectedRows();
    std::unique_ptr<TGGridTreeRow> AsTreeRow(TGGridRow* row);

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
    const TGGridUpdate update(*this);
    const std::vector<TGGridRow*> cut = RowBuffer(*this).BeginCut(0);
    rowPaste.Clear();
    RowBuffer(*this).Fill(cut);
}

std::vector<TGGridRow*> TGGrid::RowBuffer::BeginCut(long moreTellings)
{
    FoldSelectedRows();
    const std::vector<long> indices(grid.rowSel.begin(), grid.rowSel.end());
    grid.ClearSel();
    // A plain row tells twice: when it enters the buffer and when its slot goes.
    const long tellings = static_cast<long>(indices.size()) * (grid.IsTreeGrid() ? 1 : 2);
    return Structure(grid).AnnounceRemoval(indices, tellings + moreTellings);
}

// Folding takes entries behind the folded row out of the selection, so that each entry is looked up anew.
void TGGrid::RowBuffer::FoldSelectedRows()
{
    for (long k = 0; k < grid.GetRowSelNum(); ++k)
    {
        TGGridRow* row = grid.RowAt(grid.rowSel[k]);
        if (row != nullptr && row->IsParentRow())
            static_cast<TGGridTreeRow*>(row)->Fold();
    }
}

void TGGrid::RowBuffer::Fill(std::span<TGGridRow* const> cut)
{
    Structure(grid).TakeOut(cut);
    for (TGGridRow* row : cut)
    {
        TGGridRow* buffered = row;
        if (row->IsTreeRow())
        {
            auto copy = std::make_unique<TGGridTreeRow>(grid);
            *copy << static_cast<TGGridTreeRow&>(*row);
            delete row;
            buffered = copy.release();
        }
        grid.rowPaste.Append(buffered);
    }
    grid.RecalcLayout(1);
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
    EndEditCell();
    RowBuffer(*this).PlaceAll(row);
    RowBuffer(*this).SelectPasted(row, count);
}

// Scrolls to the first row and from there to the last one, as selecting all in turn would.
void TGGrid::RowBuffer::SelectPasted(long first, long number)
{
    if (number > 0)
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

// All at once, because each insertion numbers the rows behind it. At the end the rows are appended last to
// first, which turns their order around.
void TGGrid::RowBuffer::PlaceAll(long row)
{
    TGGridRow* follower = grid.RowAt(row);
    if (follower != nullptr && follower->IsChildRow())
    {
        TGGridTreeRow& sibling = static_cast<TGGridTreeRow&>(*follower);
        InsertAsChildren(sibling.GetParent(), sibling.GetParent().GetChildIndex(&sibling));
        return;
    }
    std::vector<TGGridRow*> pasted = TakeAll();
    if (row >= grid.GetRowNum())
        std::reverse(pasted.begin(), pasted.end());
    Structure(grid).InsertRows(std::clamp(row, 0L, grid.GetRowNum()), pasted);
    grid.RecalcLayout(1);
}

void TGGrid::RowBuffer::InsertAsChildren(TGGridTreeRow& parent, long position)
{
    TGGridTreeRow::OwnedRows pasted;
    for (TGGridRow* row : TakeAll())
        if (row != nullptr)
            pasted.push_back(AsTreeRow(row));
    parent.InsertChildren(position, pasted);
}

// Only tree rows can be children: a plain one hands its texts and its host data to one.
std::unique_ptr<TGGridTreeRow> TGGrid::RowBuffer::AsTreeRow(TGGridRow* row)
{
    if (row->IsTreeRow())
        return std::unique_ptr<TGGridTreeRow>(static_cast<TGGridTreeRow*>(row));
    const std::unique_ptr<TGGridRow> plain(row);
    auto treeRow = std::make_unique<TGGridTreeRow>(grid);
    static_cast<TGGridRow&>(*treeRow) = *plain;
    treeRow->SetExtendData(plain->ReleaseExtendData());
    return treeRow;
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
    long target = 0;
    long number = 0;
    {
        const TGGridUpdate update(*this);
        const std::vector<TGGridRow*> cut = RowBuffer(*this).BeginCut(1);
        const auto isAbove = [to](const TGGridRow* row) { return row->GetIndex() < to; };
        target = to - static_cast<long>(std::count_if(cut.begin(), cut.end(), isAbove));
        const std::vector<TGGridRow*> kept = RowBuffer(*this).TakeAll();
        RowBuffer(*this).Fill(cut);
        target = std::clamp(target, 0L, GetRowNum());
        number = rowPaste.GetNum();
        RowBuffer(*this).PlaceAll(target);
        rowPaste.SpliceInsert(0, kept);
    }
    RowBuffer(*this).SelectPasted(target, number);
}

} // namespace QuorUiCtr
