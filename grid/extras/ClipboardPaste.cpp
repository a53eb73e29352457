// Pasting a table into cells: where it goes, rows that are added, and every cell by the hooks of typing.
#include "grid/extras/ClipboardFormats.h"
#include "grid/extras/ClipboardOperation.h"
#include "grid/extras/ClipboardWindow.h"
#include "grid/extras/ViewOf.h"
#include "grid/TGGridUpdate.h"
#include "rules/CellText.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace QuorUiCtr
{

// Writes a table into the cells of blocks, over and over where a block is larger.
class TGClipboard::Writer
{
public:
    Writer(Operation& running, const CellTable& pasted) : operation(running), table(pasted) {}

    void Write(const CellArea& target);

private:
    void WriteLine(long line);
    void AddRows(long number);
    void Insert(std::vector<std::unique_ptr<TGGridRow>> made);
    std::size_t CellsIn(std::size_t source, long first, long end) const;

    Operation& operation;
    const CellTable& table;
    CellArea block;
    // Why no more rows come in.
    std::optional<TGCellLeft> end;
};

void TGClipboard::Writer::Write(const CellArea& target)
{
    block = target;
    operation.Hold(block);
    const long missing = block.Height() - static_cast<long>(operation.rows.GetNum());
    if (missing > 0 && operation.IsAlive())
        AddRows(missing);
    for (long line = 0; line < block.Height(); ++line)
        WriteLine(line);
}

// The cells that a line of the table has for the columns of the block from the first to before the last one.
std::size_t TGClipboard::Writer::CellsIn(std::size_t source, long first, long last) const
{
    const auto width = static_cast<long>(table.GetColNum());
    const auto cells = static_cast<long>(table.GetCellNum(source));
    const auto upTo = [&](long place) { return place / width * cells + (std::min)(place % width, cells); };
    return static_cast<std::size_t>((std::max)(upTo(last) - upTo(first), 0L));
}

// A line that is shorter than others leaves the cells behind its end alone.
void TGClipboard::Writer::WriteLine(long line)
{
    const std::size_t source = static_cast<std::size_t>(line) % table.GetRowNum();
    const long row = block.top + line;
    const auto slot = static_cast<std::size_t>(line);
    if (slot >= operation.rows.GetNum())
    {
        operation.report.Leave(end.value_or(TGCellLeft::Gone), row, block.left,
                               static_cast<long>(CellsIn(source, 0, block.Width())));
        return;
    }
    const std::size_t width = table.GetColNum();
    const std::size_t cells = table.GetCellNum(source);
    const std::size_t cols = operation.cols.size();
    std::size_t place = 0;
    for (std::size_t col = 0; col < cols; ++col)
    {
        if (place < cells)
            operation.Type(slot, col, TextOf(table.GetText(source, place)), row,
                           block.left + static_cast<long>(col));
        place = place + 1 < width ? place + 1 : 0;
    }
    if (const auto beyond = CellsIn(source, static_cast<long>(cols), block.Width()); beyond > 0)
        operation.report.Leave(TGCellLeft::BeyondLastCol, row, block.left + static_cast<long>(cols),
                               static_cast<long>(beyond));
}

// A row that is refused ends it: those behind would not stand where they belong.
void TGClipboard::Writer::AddRows(long number)
{
    TGGrid& grid = operation.Grid();
    std::vector<std::unique_ptr<TGGridRow>> made;
    if (operation.cols.empty())
        end = TGCellLeft::BeyondLastCol;
    else if (!operation.Extension().IsAddingRows() || grid.IsRowFixLength())
        end = TGCellLeft::BeyondLastRow;
    for (long i = 0; i < number && !end; ++i)
    {
        std::unique_ptr<TGGridRow> row = operation.Extension().AskForRow(grid.GetRowNum() + i);
        if (!operation.IsAlive())
            end = TGCellLeft::Gone;
        else if (row == nullptr)
            end = TGCellLeft::RowRefused;
        else
            made.push_back(std::move(row));
    }
    if (!made.empty() && operation.IsAlive())
        Insert(std::move(made));
}

// All come in together, and are told of one by one then.
void TGClipboard::Writer::Insert(std::vector<std::unique_ptr<TGGridRow>> made)
{
    const std::size_t first = operation.rows.GetNum();
    std::vector<TGGridRow*> added;
    added.reserve(made.size());
    for (const std::unique_ptr<TGGridRow>& row : made)
        added.push_back(row.get());
    operation.Extension().InsertRows(operation.Grid().GetRowNum(), std::move(made));
    operation.report.rowsInserted += static_cast<long>(added.size());
    for (TGGridRow* row : added)
        operation.rows.Add(row);
    for (std::size_t slot = first; slot < operation.rows.GetNum() && operation.IsAlive(); ++slot)
        if (TGGridRow* const row = operation.rows.At(slot))
            operation.Extension().TellInserted(*row);
}

// ---- The commands

bool TGClipboard::CanPaste() const
{
    return GetGrid() != nullptr && !GetGrid()->IsReadOnly() && !GetGrid()->IsColEmpty() &&
           HasClipboardCells();
}

TGClipboardReport TGClipboard::Paste(PasteWay way)
{
    return Perform(TGClipboardAction::Paste, [this, way](Operation& operation) {
        std::optional<CellTable> table;
        {
            const OpenedClipboard clipboard(nullptr, patience);
            if (!operation.IsAlive() || !clipboard.IsOpen())
            {
                operation.report.Refuse(TGClipboardRefusal::ClipboardBusy);
                return;
            }
            table = ReadClipboardCells();
        }
        // Who renders what is read may do anything.
        if (!operation.IsAlive())
            operation.report.Refuse(TGClipboardRefusal::NotAllowed);
        else if (table)
            PasteTable(operation, *table, way);
        else
            operation.report.Refuse(TGClipboardRefusal::NothingToPaste);
    });
}

TGClipboardReport TGClipboard::PasteText(const CString& text)
{
    return Perform(TGClipboardAction::Paste, [&](Operation& operation) {
        PasteTable(operation, ReadCellText(ViewOf(text)), PasteWay::Cells);
    });
}

void TGClipboard::PasteTable(Operation& operation, const CellTable& table, PasteWay way)
{
    if (table.GetRowNum() == 0 || table.GetColNum() == 0)
    {
        operation.report.Refuse(TGClipboardRefusal::NothingToPaste);
        return;
    }
    if (!operation.Allows(static_cast<long long>(table.GetAllCellNum())) || !operation.EndEdit())
        return;
    const TGGrid& grid = operation.Grid();
    if (way == PasteWay::Auto)
        way = table.HasMarks() && grid.IsTreeGrid() && !grid.IsRowFixLength() ? PasteWay::Rows
                                                                              : PasteWay::Cells;
    if (way == PasteWay::Cells)
        PasteCells(operation, table);
    else
        PasteRows(operation, table, way == PasteWay::ChildRows);
}

// Without a selected cell the table goes behind the last row. A column of a grid without rows begins there,
// too.
void TGClipboard::PasteCells(Operation& operation, const CellTable& table)
{
    TGGrid& grid = operation.Grid();
    std::vector<CellArea> selected = operation.SelectedBlocks();
    if (selected.empty())
        selected.push_back({grid.GetRowNum(), 0, grid.GetRowNum(), 0});
    for (CellArea& block : selected)
        block.bottom = (std::max)(block.top, block.bottom);
    const std::vector<CellArea> blocks =
        PasteBlocks(static_cast<long>(table.GetRowNum()), static_cast<long>(table.GetColNum()), selected);
    if (blocks.empty())
        operation.report.Refuse(TGClipboardRefusal::DifferentShapes);
    long long cells = 0;
    for (const CellArea& block : blocks)
        cells += static_cast<long long>(block.Height()) * block.Width();
    if (blocks.empty() || !operation.Allows(cells))
        return;
    const TGGridUpdate update(grid);
    Writer writer(operation, table);
    for (const CellArea& block : blocks)
        writer.Write(block);
    if (blocks.size() == 1 && blocks != selected)
        operation.Select(blocks.front());
}

} // namespace QuorUiCtr
