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
    if (copied != nullptr)
        copied->Freeze();
}

void TGClipboard::OnTextChanged(TGGridCell& cell, const CString& oldText)
{
    if (copied != nullptr)
        copied->NoteText(cell, oldText);
}

// The texts of the rows can be read still.
void TGClipboard::OnRowsRemoved(TGRemovedRows& removed)
{
    if (copied != nullptr)
        copied->Freeze();
    if (running != nullptr)
        for (TGGridRow* row : removed.GetRows())
            running->ForgetTree(*row);
}

void TGClipboard::OnColRemoving(TGGridCol& col)
{
    if (copied != nullptr)
        copied->Freeze();
    if (running != nullptr)
        running->ForgetCol(col);
}

void TGClipboard::OnRowDeleted(const TGGridRow* row)
{
    if (copied != nullptr)
        copied->NoteDeleted(row);
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
    return Offer(operation, std::move(cells));
}

// Emptying the clipboard ends the offer of an earlier copy, so that the new one is noted behind it.
bool TGClipboard::Offer(Operation& operation, std::shared_ptr<Copied> cells)
{
    if (window == nullptr)
        window = std::make_unique<ClipboardWindow>();
    const auto render = [cells, withCaptions = captions](UINT format) {
        return RenderFormat(
            format, [&](CellSink& sink) { cells->WriteTo(sink, withCaptions || IsOwnFormat(format)); });
    };
    const auto ended = [this, known = cells.get()] {
        if (copied.get() == known)
            copied.reset();
    };
    const long number = static_cast<long>(cells->GetCellNum());
    const bool offered = window->Offer(ClipboardFormats(), render, ended, patience);
    if (!operation.IsAlive())
        return false;
    if (!offered)
    {
        operation.report.Refuse(TGClipboardRefusal::ClipboardBusy);
        return false;
    }
    copied = std::move(cells);
    operation.report.done = number;
    return true;
}

} // namespace QuorUiCtr
