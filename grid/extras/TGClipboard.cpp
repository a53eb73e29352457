// The clipboard extension: its life, what it notices, and copying.
#include "grid/extras/TGClipboard.h"

#include "grid/extras/ClipboardFormats.h"
#include "grid/extras/ClipboardOperation.h"
#include "grid/extras/ClipboardWindow.h"
#include "grid/extras/CopiedCells.h"

#include <utility>

namespace QuorUiCtr
{

TGClipboard::TGClipboard() = default;

TGClipboard::TGClipboard(TGGrid& newGrid)
{
    AttachTo(newGrid);
}

TGClipboard::~TGClipboard()
{
    if (running != nullptr)
        running->clipboard = nullptr;
    Detach();
}

void TGClipboard::SetOnReport(std::function<void(const TGClipboardReport&)> newOnReport)
{
    onReport = std::move(newOnReport);
}

// A copy, because the function may replace itself.
void TGClipboard::OnReport(const TGClipboardReport& report)
{
    if (const auto tell = onReport)
        tell(report);
}

bool TGClipboard::IsCalledFirst() const
{
    return true;
}

// ---- What it notices

void TGClipboard::OnDetach(TGGrid&)
{
    for (const auto& cells : copies)
        cells->Freeze();
}

void TGClipboard::OnTextChanged(TGGridCell& cell, const CString& oldText)
{
    for (const auto& cells : copies)
        cells->NoteText(cell, oldText);
}

// The texts of the rows can be read still.
void TGClipboard::OnRowsRemoved(TGRemovedRows& removed)
{
    for (const auto& cells : copies)
        cells->Freeze();
    if (running != nullptr)
        for (TGGridRow* row : removed.GetRows())
            running->ForgetTree(*row);
}

void TGClipboard::OnColRemoving(TGGridCol& col)
{
    for (const auto& cells : copies)
        cells->Freeze();
    if (running != nullptr)
        running->ForgetCol(col);
}

void TGClipboard::OnRowDeleted(const TGGridRow* row)
{
    for (const auto& cells : copies)
        cells->NoteDeleted(row);
    if (running != nullptr)
        running->rows.Forget(row);
}

// ---- Copying

bool TGClipboard::CanCopy() const
{
    long row = -1;
    long col = -1;
    return GetGrid() != nullptr && !GetGrid()->IsEmpty() &&
           (GetGrid()->IsRowSelected() || GetGrid()->IsColSelected() || FindCurrentCell(row, col));
}

TGClipboardReport TGClipboard::Copy()
{
    return Perform(TGClipboardAction::Copy, [this](Operation& operation) { CopySelected(operation, false); });
}

TGClipboardReport TGClipboard::CopyAll()
{
    return Perform(TGClipboardAction::Copy, [this](Operation& operation) { CopySelected(operation, true); });
}

bool TGClipboard::CopySelected(Operation& operation, bool all)
{
    TGGrid& grid = operation.Grid();
    std::vector<CellArea> blocks;
    if (all)
        blocks.push_back({0, 0, grid.GetRowNum() - 1, grid.GetColNum() - 1});
    else if (!operation.TakeSelectedCells(blocks))
        return false;
    const std::vector<CellPart> parts = JoinRanges(blocks);
    if (parts.empty())
    {
        operation.report.Refuse(all ? TGClipboardRefusal::NothingSelected
                                    : TGClipboardRefusal::DifferentShapes);
        return false;
    }
    auto cells = std::make_shared<Copied>(all || grid.IsRowSelected());
    for (const CellPart& part : parts)
        cells->AddPart(*this, part);
    cells->Close();
    if (!operation.Allows(static_cast<long long>(cells->GetCellNum())))
        return false;
    return Offer(operation, cells);
}

void TGClipboard::Drop(const Copied* cells)
{
    std::erase_if(copies, [cells](const auto& copy) { return copy.get() == cells; });
}

// While the clipboard is waited for and emptied, others may do anything.
bool TGClipboard::Offer(Operation& operation, const std::shared_ptr<Copied>& cells)
{
    if (window == nullptr)
        window = std::make_unique<ClipboardWindow>();
    const auto render = [cells, withCaptions = captions](UINT format) {
        return RenderFormat(
            format, [&](CellSink& sink) { cells->WriteTo(sink, withCaptions || IsOwnFormat(format)); });
    };
    const auto ended = [this, known = cells.get()] { Drop(known); };
    copies.push_back(cells);
    const bool offered = window->Offer(ClipboardFormats(), render, ended, patience);
    if (operation.clipboard == nullptr)
    {
        operation.report.Refuse(TGClipboardRefusal::NotAllowed);
        return false;
    }
    if (!offered)
    {
        Drop(cells.get());
        operation.report.Refuse(TGClipboardRefusal::ClipboardBusy);
        return false;
    }
    copies.assign(1, cells);
    operation.report.done = static_cast<long>(cells->GetCellNum());
    return operation.IsAlive();
}

} // namespace QuorUiCtr
