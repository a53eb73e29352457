// Copy, cut and paste through the grid's row buffer.
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"
#include "grid/TGUserAction.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

// The steps of copying, cutting and pasting rows. What moves rows runs no hooks: these run before and after.
class TGGrid::RowBuffer
{
public:
    using Rows = std::vector<std::unique_ptr<TGGridRow>>;

    explicit RowBuffer(TGGrid& servedGrid) : grid(servedGrid) {}

    // Puts copies of the selected rows into the row buffer instead of what is there.
    void CopySelection();
    // Folds the selected rows, empties the selection and moves the rows to the row buffer, tree rows as
    // copies that take over the host data.
    void CutSelection();
    // Moves the row buffer in front of `row`, or below `parent` in front of its child at `position`.
    void PlaceAll(long row);
    void InsertAsChildren(TGGridTreeRow& parent, long position);
    void SelectPasted(long first, long number);
    Rows TakeAll();
    // The way back.
    void PutBack(Rows taken);
    // The rows in the buffer, whose they stay.
    std::vector<TGGridRow*> Content() const;
    // Deletes what extensions do not take over of the last rows of the buffer, from the index on; no memory
    // is needed in a grid without extensions.
    void Drop(std::vector<TGGridRow*> dropped, long first);

private:
    std::unique_ptr<TGGridRow> CopyOfRow(TGGridRow& row);
    void FoldSelectedRows();
    void CutTree(TGGridTreeRow& row);
    void CutRow(TGGridRow& row);

    TGGrid& grid;
    // What stands in the grid for a row that is being cut.
    std::unique_ptr<TGGridRow> substitute;
};

bool TGGrid::DoCopy()
{
    if (!OnBeforeCopy())
        return false;
    RowBuffer(*this).CopySelection();
    OnEndCopy();
    return true;
}

// The old content goes when the copies have been made.
void TGGrid::RowBuffer::CopySelection()
{
    std::vector<std::unique_ptr<TGGridRow>> copies;
    std::vector<TGGridRow*> added;
    for (const long i : grid.rowSel)
        if (TGGridRow* row = grid.RowAtIndex(i))
        {
            copies.push_back(CopyOfRow(*row));
            added.push_back(copies.back().get());
        }
    std::vector<TGGridRow*> old = Content();
    grid.rowPaste.SpliceInsert(0, added);
    for (std::unique_ptr<TGGridRow>& copy : copies)
        static_cast<void>(copy.release());
    Drop(std::move(old), static_cast<long>(added.size()));
}

std::vector<TGGridRow*> TGGrid::RowBuffer::Content() const
{
    return {grid.rowPaste.begin(), grid.rowPaste.end()};
}

void TGGrid::RowBuffer::Drop(std::vector<TGGridRow*> dropped, long first)
{
    grid.rowPaste.Release(first, static_cast<long>(dropped.size()));
    if (grid.extensions != nullptr && !dropped.empty())
    {
        grid.extensions->TellBufferDropped(std::move(dropped));
        return;
    }
    for (TGGridRow* row : dropped)
        delete row;
}

// A folded tree row is copied with its offspring; the children of an unfolded one are rows of their own.
std::unique_ptr<TGGridRow> TGGrid::RowBuffer::CopyOfRow(TGGridRow& row)
{
    if (!row.IsTreeRow())
    {
        auto copy = std::make_unique<TGGridRow>(grid);
        *copy = row;
        return copy;
    }
    TGGridTreeRow& source = static_cast<TGGridTreeRow&>(row);
    auto copy = std::make_unique<TGGridTreeRow>(grid);
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
    const TGUserAction action(*this, TGActionKind::CutRows);
    if (IsRowFixLength() || !OnBeforeClip())
        return false;
    ClipSelect();
    OnEndClip();
    OnDataChanged();
    return true;
}

void TGGrid::ClipSelect()
{
    RowBuffer(*this).Drop(RowBuffer(*this).Content(), 0);
    RowBuffer(*this).CutSelection();
}

// From the last row to the first, each to the front of the buffer: hooks see the buffer grow and the rows
// get fewer. What hooks have put elsewhere stays.
void TGGrid::RowBuffer::CutSelection()
{
    const TGGridUpdate update(grid);
    FoldSelectedRows();
    const std::vector<long> indices(grid.rowSel.begin(), grid.rowSel.end());
    const std::vector<const TGGridRow*> cut = Structure(grid).RowsAtIndices(indices);
    grid.rowPaste.Reserve(static_cast<long>(indices.size()));
    grid.ClearSel();
    for (std::size_t k = indices.size(); k-- > 0;)
    {
        grid.EndEditCell();
        TGGridRow* row = grid.RowAtIndex(indices[k]);
        if (row == nullptr || row != cut[k])
            continue;
        if (row->IsTreeRow())
            CutTree(static_cast<TGGridTreeRow&>(*row));
        else
            CutRow(*row);
    }
    grid.RecalcLayout(1);
}

// Folding takes entries behind the folded row out of the selection, so that each entry is looked up anew.
void TGGrid::RowBuffer::FoldSelectedRows()
{
    for (long k = 0; k < grid.GetRowSelNum(); ++k)
    {
        TGGridRow* row = grid.RowAtIndex(grid.rowSel[k]);
        if (row != nullptr && row->IsParentRow())
            static_cast<TGGridTreeRow*>(row)->Fold();
    }
}

void TGGrid::RowBuffer::CutTree(TGGridTreeRow& row)
{
    auto copy = std::make_unique<TGGridTreeRow>(grid);
    *copy << row;
    grid.rowPaste.Insert(0, copy.get());
    TGGridRow& buffered = *copy.release();
    if (grid.extensions != nullptr)
        grid.extensions->Tell(GridExtensions::DataMoved, row, buffered);
    grid.DelRowEx(row.GetIndex());
}

// The row stands in the buffer already when the hooks tell that it goes. A row that looks the same keeps its
// place in the grid meanwhile, so that whatever a hook does each row has one owner.
void TGGrid::RowBuffer::CutRow(TGGridRow& row)
{
    if (substitute == nullptr)
        substitute = std::make_unique<TGGridRow>(grid);
    substitute->FitToCols();
    *substitute = row;
    grid.rowPaste.Insert(0, &row);
    TGGridRow* const left = substitute.release();
    grid.rows.MoveTo(row.GetIndex());
    grid.rows.SetCur(left);
    left->index = std::exchange(row.index, -1);

    const RowWatch buffered(grid, &row);
    const RowWatch watch(grid, left);
    if (grid.extensions != nullptr)
        grid.extensions->SetStandIn(left, &row);
    grid.OnCurChanged();
    const bool stays = watch.IsAlive() && Structure(grid).PrepareToGo(*left);
    if (grid.extensions != nullptr)
        grid.extensions->SetStandIn(nullptr, nullptr);
    if (!stays)
        return;
    const long place = left->GetIndex();
    Structure(grid).RemoveRow(place);
    left->SetIndex(-1);
    substitute.reset(left);
    // The buffer may have been changed by the hooks.
    if (grid.extensions != nullptr && buffered.IsAlive())
        grid.extensions->TellRemoved(nullptr, place, {&row}, true);
}

bool TGGrid::DoPaste()
{
    const TGUserAction action(*this, TGActionKind::PasteRows);
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

// Whether the rows go to the end is decided before the edit ends, which may add a row there.
void TGGrid::Paste(long row)
{
    UnSelect();
    const bool toEnd = row >= GetRowNum();
    EndEditCell();
    const long place = toEnd ? GetRowNum() : std::clamp(row, 0L, GetRowNum());
    const long count = rowPaste.GetNum();
    RowBuffer(*this).PlaceAll(place);
    RowBuffer(*this).SelectPasted(place, count);
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
TGGrid::RowBuffer::Rows TGGrid::RowBuffer::TakeAll()
{
    Rows taken(static_cast<std::size_t>(grid.rowPaste.GetNum()));
    auto place = taken.begin();
    for (TGGridRow* row : grid.rowPaste)
        (place++)->reset(row);
    grid.rowPaste.Release(0, grid.rowPaste.GetNum());
    return taken;
}

void TGGrid::RowBuffer::PutBack(Rows taken)
{
    std::vector<TGGridRow*> rows;
    for (const std::unique_ptr<TGGridRow>& row : taken)
    {
        if (row != nullptr)
            Structure(grid).FitToCols(*row);
        rows.push_back(row.get());
    }
    grid.rowPaste.SpliceInsert(0, rows);
    for (std::unique_ptr<TGGridRow>& row : taken)
        static_cast<void>(row.release());
}

// All at once, because each insertion numbers the rows behind it. At the end the rows are appended last to
// first, which turns their order around.
void TGGrid::RowBuffer::PlaceAll(long row)
{
    TGGridRow* follower = grid.RowAtIndex(row);
    if (follower != nullptr && follower->IsChildRow())
    {
        TGGridTreeRow& sibling = static_cast<TGGridTreeRow&>(*follower);
        InsertAsChildren(sibling.GetParent(), sibling.GetParent().GetChildIndex(&sibling));
        return;
    }
    std::vector<TGGridRow*> pasted(grid.rowPaste.begin(), grid.rowPaste.end());
    std::erase(pasted, nullptr);
    for (TGGridRow* taken : pasted)
        Structure(grid).FitToCols(*taken);
    if (row >= grid.GetRowNum())
        std::reverse(pasted.begin(), pasted.end());
    row = std::clamp(row, 0L, grid.GetRowNum());
    Structure(grid).InsertRows(row, pasted);
    grid.rowPaste.Release(0, grid.rowPaste.GetNum());
    grid.RecalcLayout(1);
    Structure(grid).TellInserted(row, pasted);
}

// Only tree rows can be children: a plain one hands its texts and, at last, its host data to one. The end of
// an edit may change the buffer and everything else.
void TGGrid::RowBuffer::InsertAsChildren(TGGridTreeRow& parent, long position)
{
    const RowWatch watch(grid, &parent);
    grid.EndEditCell();
    if (!watch.IsAlive())
        return;
    TGGridTreeRow::OwnedRows made;
    std::vector<TGGridTreeRow*> pasted;
    std::vector<std::pair<TGGridRow*, TGGridTreeRow*>> replaced;
    for (TGGridRow* row : grid.rowPaste)
        if (row != nullptr && row->IsTreeRow())
            pasted.push_back(static_cast<TGGridTreeRow*>(row));
        else if (row != nullptr)
        {
            row->FitToCols();
            made.push_back(std::make_unique<TGGridTreeRow>(grid));
            static_cast<TGGridRow&>(*made.back()) = *row;
            pasted.push_back(made.back().get());
            replaced.emplace_back(row, made.back().get());
        }
    position = (std::min)(position, parent.GetChildNum());
    const bool hasNewBox = parent.AddChildren(position, pasted);
    for (std::unique_ptr<TGGridTreeRow>& row : made)
        static_cast<void>(row.release());
    grid.rowPaste.Release(0, grid.rowPaste.GetNum());
    for (const auto& [plain, treeRow] : replaced)
    {
        treeRow->SetExtendData(plain->ReleaseExtendData());
        if (grid.extensions != nullptr)
            grid.extensions->Tell(GridExtensions::DataMoved, *plain, *treeRow);
        if (grid.extensions != nullptr)
            grid.extensions->TellBufferDropped({plain});
        else
            delete plain;
    }
    Structure(grid).TellChildren(parent, position, pasted);
    if (hasNewBox && watch.IsAlive())
        parent.Refresh();
}

bool TGGrid::DoPasteChild()
{
    const TGUserAction action(*this, TGActionKind::PasteRows);
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
        const long above = SelectedIndices::LowerBound(rowSel, to);
        RowBuffer::Rows kept = RowBuffer(*this).TakeAll();
        RowBuffer(*this).CutSelection();
        UnSelect();
        EndEditCell();
        target = std::clamp(to - above, 0L, GetRowNum());
        number = rowPaste.GetNum();
        RowBuffer(*this).PlaceAll(target);
        RowBuffer(*this).PutBack(std::move(kept));
    }
    RowBuffer(*this).SelectPasted(target, number);
}

} // namespace QuorUiCtr
