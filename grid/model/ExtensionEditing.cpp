// What extensions do as a user would: the selected cells, texts that are typed, and the word about changes.
#include "grid/TGGridExtension.h"

#include "grid/edit/CellWatch.h"
#include "grid/model/GridExtensions.h"
#include "grid/TGCellCtrl.h"
#include "grid/TGGrid.h"
#include "grid/TGUserAction.h"

#include <utility>

namespace QuorUiCtr
{

// ---- Selected cells

std::vector<TGCellRange> TGGridExtension::GetSelectedBands() const
{
    ASSERT(extendedGrid != nullptr);
    std::vector<TGCellRange> bands;
    const long lastRow = extendedGrid->GetRowNum() - 1;
    const long lastCol = extendedGrid->GetColNum() - 1;
    for (const long col : extendedGrid->colSel)
        if (!bands.empty() && bands.back().right == col - 1)
            bands.back().right = col;
        else
            bands.push_back({0, col, lastRow, col});
    for (const long row : extendedGrid->rowSel)
        if (!bands.empty() && bands.back().bottom == row - 1)
            bands.back().bottom = row;
        else
            bands.push_back({row, 0, row, lastCol});
    return bands;
}

std::vector<TGCellRange> TGGridExtension::GetSelectedCells() const
{
    std::vector<TGCellRange> ranges = GetSelectedBands();
    long row = -1;
    long col = -1;
    if (ranges.empty() && !extendedGrid->extensions->FindSelectedCells(ranges) && FindCurrentCell(row, col))
        ranges.push_back({row, col, row, col});
    return ranges;
}

bool TGGridExtension::SelectCells(const TGCellRange& range) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->extensions->SelectCells(range);
}

bool TGGridExtension::RestoreCells(std::span<const TGCellRange> ranges, long row, long col) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->extensions->RestoreCells(ranges, row, col);
}

// ---- Editing

CWnd* TGGridExtension::GetEditorWindow() const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->editCell != nullptr && extendedGrid->cellCtrl != nullptr
               ? extendedGrid->cellCtrl->GetWnd()
               : nullptr;
}

bool TGGridExtension::TypeInto(TGGridCell& cell, const wchar_t* text) const
{
    return TryTypeInto(cell, text) == TGTyped::Stored;
}

// The text that is stored is shared with the one that the hooks have seen.
TGTyped TGGridExtension::TryTypeInto(TGGridCell& cell, CString text) const
{
    TGGrid& typed = cell.GetGrid();
    if (cell.IsReadOnly())
        return TGTyped::ReadOnly;
    const TGUserAction action(typed, TGActionKind::Type);
    const CellWatch watch(typed, &cell);
    bool commitNewRow = false;
    const bool isRefused =
        (typed.extensions != nullptr && typed.extensions->AskEdit(cell, TGEditWay::Text)) ||
        (watch.Cell() != nullptr && !typed.OnBeforeEdit(cell, commitNewRow));
    if (watch.Cell() == nullptr)
        return TGTyped::Gone;
    if (isRefused)
        return TGTyped::NotEditable;
    const bool isRejected = !typed.OnModified(cell, text);
    if (watch.Cell() == nullptr)
        return TGTyped::Gone;
    if (isRejected)
        return TGTyped::Rejected;
    cell.StoreText(std::move(text));
    if (watch.Cell() != nullptr)
        cell.Refresh();
    return TGTyped::Stored;
}

bool TGGridExtension::AskPaste(long position) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->OnBeforePaste(position);
}

bool TGGridExtension::AskPasteChild(TGGridTreeRow& parent) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->OnBeforePasteChild(parent);
}

void TGGridExtension::TellPasted() const
{
    ASSERT(extendedGrid != nullptr);
    extendedGrid->OnEndPaste();
}

void TGGridExtension::TellDataChanged() const
{
    ASSERT(extendedGrid != nullptr);
    extendedGrid->OnDataChanged();
}

} // namespace QuorUiCtr
