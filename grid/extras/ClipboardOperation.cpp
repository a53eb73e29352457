// What a command of the clipboard holds on to while hooks may do anything.
#include "grid/extras/ClipboardOperation.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{

// ---- Rows

void HeldRows::Clear()
{
    rows.clear();
    places.clear();
    arePlacesKnown = false;
}

std::size_t HeldRows::Add(TGGridRow* row)
{
    if (arePlacesKnown)
        places[row] = rows.size();
    rows.push_back(row);
    return rows.size() - 1;
}

void HeldRows::Forget(const TGGridRow* row)
{
    if (!arePlacesKnown)
        for (std::size_t i = 0; i < rows.size(); ++i)
            places[rows[i]] = i;
    arePlacesKnown = true;
    if (const auto place = places.find(row); place != places.end())
        rows[place->second] = nullptr;
}

// ---- The operation

TGClipboard::Operation::Operation(TGClipboard& owner, TGClipboardReport& ownReport)
    : report(ownReport), clipboard(&owner), grid(*owner.GetGrid())
{
    owner.running = this;
    switch (report.action)
    {
    case TGClipboardAction::Cut:
        action.emplace(grid, TGActionKind::Cut);
        break;
    case TGClipboardAction::Paste:
        action.emplace(grid, TGActionKind::Paste);
        break;
    case TGClipboardAction::Fill:
        action.emplace(grid, TGActionKind::Fill);
        break;
    case TGClipboardAction::Empty:
        action.emplace(grid, TGActionKind::Empty);
        break;
    default:
        break;
    }
}

TGClipboard::Operation::~Operation()
{
    if (clipboard != nullptr)
        clipboard->running = nullptr;
}

void TGClipboard::Operation::ForgetTree(TGGridRow& row)
{
    rows.Forget(&row);
    report.rowsRemoved += countsRemoved ? 1 : 0;
    if (!row.IsParentRow())
        return;
    auto& parent = static_cast<TGGridTreeRow&>(row);
    for (long i = 0; i < parent.GetChildNum(); ++i)
        ForgetTree(parent.GetChild(i));
}

void TGClipboard::Operation::ForgetCol(const TGGridCol& col)
{
    std::replace(cols.begin(), cols.end(), const_cast<TGGridCol*>(&col), static_cast<TGGridCol*>(nullptr));
}

// ---- What it is about

std::vector<CellArea> TGClipboard::Operation::SelectedBlocks() const
{
    std::vector<CellArea> blocks;
    for (const TGCellRange& range : clipboard->GetSelectedCells())
        blocks.push_back({range.top, range.left, range.bottom, range.right});
    return blocks;
}

bool TGClipboard::Operation::TakeSelectedCells(std::vector<CellArea>& blocks)
{
    blocks = SelectedBlocks();
    long long cells = 0;
    for (CellArea& block : blocks)
    {
        block.bottom = (std::min)(block.bottom, grid.GetRowNum() - 1);
        block.right = (std::min)(block.right, grid.GetColNum() - 1);
        cells += block.IsEmpty() ? 0 : static_cast<long long>(block.Height()) * block.Width();
    }
    std::erase_if(blocks, [](const CellArea& block) { return block.IsEmpty(); });
    if (blocks.empty())
        report.Refuse(TGClipboardRefusal::NothingSelected);
    return !blocks.empty() && Allows(cells);
}

bool TGClipboard::Operation::Allows(long long cells)
{
    if (cells > clipboard->GetMaxCells())
        report.Refuse(TGClipboardRefusal::TooLarge);
    return cells <= clipboard->GetMaxCells();
}

bool TGClipboard::Operation::EndEdit()
{
    grid.EndEditCell();
    if (!IsAlive())
        report.Refuse(TGClipboardRefusal::NotAllowed);
    return IsAlive();
}

void TGClipboard::Operation::Hold(const CellArea& block)
{
    rows.Clear();
    cols.clear();
    if (!IsAlive())
        return;
    std::vector<TGGridRow*> found;
    clipboard->FindRows(block.top, block.bottom, found);
    for (TGGridRow* row : found)
        rows.Add(row);
    for (long col = block.left; col <= (std::min)(block.right, grid.GetColNum() - 1); ++col)
        cols.push_back(&grid.GetCol(col));
}

// Fewer rows and columns are held than the block has when hooks have taken some away before.
TGGridCell* TGClipboard::Operation::HeldCell(std::size_t rowSlot, std::size_t colSlot) const
{
    TGGridRow* const row = rowSlot < rows.GetNum() ? rows.At(rowSlot) : nullptr;
    const TGGridCol* const col = colSlot < cols.size() ? cols[colSlot] : nullptr;
    return row != nullptr && col != nullptr ? CellOf(*row, col->GetIndex()) : nullptr;
}

CString TGClipboard::Operation::TextAt(long row, long col) const
{
    const TGGridCell* const cell = clipboard->FindCell(row, col);
    return cell != nullptr ? cell->GetText() : CString();
}

void TGClipboard::Operation::Select(const CellArea& block)
{
    if (!IsAlive() || !grid.IsValidRow(block.top) || !grid.IsValidCol(block.left))
        return;
    clipboard->SelectCells({block.top, block.left, (std::min)(block.bottom, grid.GetRowNum() - 1),
                            (std::min)(block.right, grid.GetColNum() - 1)});
}

// ---- Typing

void TGClipboard::Operation::Type(std::size_t rowSlot, std::size_t colSlot, CString text, long row, long col)
{
    TGGridCell* const cell = IsAlive() ? HeldCell(rowSlot, colSlot) : nullptr;
    TGTyped outcome = TGTyped::Gone;
    if (cell != nullptr)
        outcome = clipboard->TryTypeInto(*cell, std::move(text));
    switch (outcome)
    {
    case TGTyped::Stored:
        ++report.done;
        break;
    case TGTyped::ReadOnly:
        report.Leave(TGCellLeft::ReadOnly, row, col);
        break;
    case TGTyped::NotEditable:
        report.Leave(TGCellLeft::NotEditable, row, col);
        break;
    case TGTyped::Rejected:
        report.Leave(TGCellLeft::Rejected, row, col);
        break;
    default:
        report.Leave(TGCellLeft::Gone, row, col);
        break;
    }
}

// The report comes last, because who shows it may do anything, too.
void TGClipboard::Operation::Finish()
{
    const bool changes = report.action != TGClipboardAction::Copy;
    if (changes && IsAlive() && (report.done > 0 || report.rowsInserted > 0))
        clipboard->TellDataChanged();
    action.reset();
    if (clipboard == nullptr)
        return;
    TGClipboard& told = *clipboard;
    told.running = nullptr;
    clipboard = nullptr;
    told.OnReport(report);
}

} // namespace QuorUiCtr
