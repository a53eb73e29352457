// Filling cells from others in the same range, with one text or with a series; emptying and cutting.
#include "grid/extras/ClipboardOperation.h"
#include "grid/extras/ViewOf.h"
#include "grid/TGGridUpdate.h"
#include "rules/TextSeries.h"

#include <algorithm>

namespace QuorUiCtr
{

// ---- The same for every range

// Each range in turn becomes the rows and columns at hand, unless hooks have ended the operation before.
template <class Work> void TGClipboard::ForSelected(Operation& operation, Work work)
{
    std::vector<CellArea> blocks;
    if (!operation.EndEdit() || !operation.TakeSelectedCells(blocks))
        return;
    const TGGridUpdate update(operation.Grid());
    for (const CellArea& block : blocks)
        work(block);
}

// A text for each cell of the block, by its row and column in it; nothing leaves the cell alone.
template <class TextAt>
void TGClipboard::FillBlock(Operation& operation, const CellArea& block, TextAt textAt)
{
    operation.Hold(block);
    for (long row = 0; row < block.Height(); ++row)
        for (long col = 0; col < block.Width(); ++col)
            if (const std::optional<CString> text = textAt(row, col))
                operation.Type(static_cast<std::size_t>(row), static_cast<std::size_t>(col), *text,
                               block.top + row, block.left + col);
}

TGClipboardReport TGClipboard::FillWith(const wchar_t* text)
{
    const CString filled(text);
    return Perform(TGClipboardAction::Fill, [&](Operation& operation) {
        ForSelected(operation, [&](const CellArea& block) {
            FillBlock(operation, block, [&](long, long) { return std::optional(filled); });
        });
    });
}

// ---- Down and to the right

TGClipboardReport TGClipboard::FillDown()
{
    return FillFrom(Direction::Down);
}

TGClipboardReport TGClipboard::FillRight()
{
    return FillFrom(Direction::Right);
}

// The texts are read before the first hook runs, which may change them. A range of one line takes those of
// the line before it.
TGClipboardReport TGClipboard::FillFrom(Direction direction)
{
    const bool down = direction == Direction::Down;
    return Perform(TGClipboardAction::Fill, [&](Operation& operation) {
        ForSelected(operation, [&](CellArea block) {
            if (!operation.IsAlive())
                return;
            const bool isLine = (down ? block.Height() : block.Width()) == 1;
            const long source = (down ? block.top : block.left) - (isLine ? 1 : 0);
            if (source < 0)
                return;
            std::vector<CString> texts;
            for (long i = 0; i < (down ? block.Width() : block.Height()); ++i)
                texts.push_back(down ? operation.TextAt(source, block.left + i)
                                     : operation.TextAt(block.top + i, source));
            (down ? block.top : block.left) = source + 1;
            FillBlock(operation, block, [&](long row, long col) {
                return std::optional(texts[static_cast<std::size_t>(down ? col : row)]);
            });
        });
    });
}

// ---- Series

TGClipboardReport TGClipboard::FillSeries(Direction direction, std::optional<double> step)
{
    const bool down = direction == Direction::Down;
    const auto given = step ? DecimalOf(*step) : std::nullopt;
    return Perform(TGClipboardAction::Fill, [&](Operation& operation) {
        // A step of too many digits, or of none.
        if (step && !given)
        {
            operation.report.Refuse(TGClipboardRefusal::NoNumbers);
            return;
        }
        ForSelected(operation, [&](const CellArea& block) {
            std::vector<std::optional<TextSeries>> series;
            for (long i = 0; operation.IsAlive() && i < (down ? block.Width() : block.Height()); ++i)
                series.push_back(SeriesOf(operation, block, direction, i, given));
            if (std::none_of(series.begin(), series.end(), [](const auto& one) { return one.has_value(); }))
                operation.report.Refuse(TGClipboardRefusal::NoNumbers);
            else
                FillBlock(operation, block, [&](long row, long col) -> std::optional<CString> {
                    const auto& one = series[static_cast<std::size_t>(down ? col : row)];
                    const long place = down ? row : col;
                    const auto number = one && place > 0 ? one->At(place) : std::nullopt;
                    return number ? std::optional(CString(number->c_str())) : std::nullopt;
                });
        });
    });
}

// The series of the column or row at a place of the block.
std::optional<TextSeries> TGClipboard::SeriesOf(const Operation& operation, const CellArea& block,
                                                Direction direction, long place,
                                                const std::optional<DecimalNumber>& step)
{
    const bool down = direction == Direction::Down;
    const auto textAt = [&](long i) {
        return down ? operation.TextAt(block.top + i, block.left + place)
                    : operation.TextAt(block.top + place, block.left + i);
    };
    const CString first = textAt(0);
    if (step)
        return TextSeries::By(ViewOf(first), *step);
    const CString second = (down ? block.Height() : block.Width()) > 1 ? textAt(1) : CString();
    if (second.IsEmpty())
        return TextSeries::Of(ViewOf(first), std::nullopt);
    return TextSeries::Of(ViewOf(first), ViewOf(second));
}

// ---- Emptying and cutting

TGClipboardReport TGClipboard::Empty()
{
    return Perform(TGClipboardAction::Empty, [this](Operation& operation) { EmptySelected(operation); });
}

void TGClipboard::EmptySelected(Operation& operation)
{
    ForSelected(operation, [&](const CellArea& block) {
        FillBlock(operation, block, [&](long row, long col) -> std::optional<CString> {
            const TGGridCell* const cell =
                operation.HeldCell(static_cast<std::size_t>(row), static_cast<std::size_t>(col));
            return cell == nullptr || cell->GetText().IsEmpty() ? std::nullopt : std::optional(CString());
        });
    });
}

TGClipboardReport TGClipboard::Cut()
{
    return Perform(TGClipboardAction::Cut, [this](Operation& operation) {
        if (!operation.EndEdit() || !CopySelected(operation, false))
            return;
        operation.report.done = 0;
        const TGGrid& grid = operation.Grid();
        if (grid.IsRowSelected() && !grid.IsRowFixLength())
            DeleteSelected(operation);
        else
            EmptySelected(operation);
    });
}

// Those that may not be deleted are counted before they leave the selection.
void TGClipboard::DeleteSelected(Operation& operation)
{
    TGGrid& grid = operation.Grid();
    bool any = false;
    for (long i = 0; i < grid.GetRowSelNum(); ++i)
    {
        const TGGridRow& row = grid.GetSelRow(i);
        if (row.IsDelUnable())
            operation.report.Leave(TGCellLeft::ReadOnly, row.GetIndex(), 0, grid.GetColNum());
        any = any || !row.IsDelUnable();
    }
    operation.countsRemoved = true;
    if (any && !grid.DoDelete())
        operation.report.Refuse(TGClipboardRefusal::NotAllowed);
    operation.countsRemoved = false;
}

} // namespace QuorUiCtr
