// Pasting rows of a tree as rows: where they come in, their structure, and the hooks around it.
#include "grid/extras/ClipboardOperation.h"
#include "grid/extras/ViewOf.h"
#include "grid/TGGridUpdate.h"
#include "rules/CellTable.h"

#include <algorithm>

namespace QuorUiCtr
{

// Inserts the rows of a table one by one, each below the last row before it of a lower level. Rows are known
// by the slots in which the operation holds them, because every hook may delete any of them.
class TGClipboard::TreeWriter
{
public:
    TreeWriter(Operation& running, const CellTable& pasted) : operation(running), table(pasted) {}

    // False for a place that takes no rows, and when hooks refuse.
    bool FindPlace(bool asChildren);
    void Write();

private:
    static constexpr std::size_t NoSlot = static_cast<std::size_t>(-1);

    struct Inserted
    {
        std::size_t slot;
        std::size_t line;
        int level;
    };

    TGGridRow* RowIn(std::size_t slot) const { return slot != NoSlot ? operation.rows.At(slot) : nullptr; }
    TGGridTreeRow* TreeRowIn(std::size_t slot) const;
    TGGridRow* InsertTop();
    TGGridRow* InsertBelow(int level);
    long PositionIn(TGGridTreeRow& parent, const TGGridRow* row) const;
    std::size_t WriteLine(std::size_t line);
    void SkipTree(std::size_t line, std::size_t behind, TGCellLeft reason);
    void UnfoldAndSelect();

    Operation& operation;
    const CellTable& table;
    // The row in front of which the rows come in, and the one below which they do.
    std::size_t follower = NoSlot;
    std::size_t parentSlot = NoSlot;
    // The position of the last child that came in, from which the next one is looked for.
    long lastPosition = 0;
    std::vector<Inserted> inserted;
    // The rows above the next one, by level.
    std::vector<std::size_t> path;
};

// ---- The place

bool TGClipboard::TreeWriter::FindPlace(bool asChildren)
{
    TGGrid& grid = operation.Grid();
    const std::vector<CellArea> selected = operation.SelectedBlocks();
    const long row = !selected.empty() ? selected.front().top : grid.GetRowNum();
    operation.Hold({0, 0, -1, grid.GetColNum() - 1});
    TGGridRow* const current = operation.Extension().FindRow(row);
    if (grid.IsRowFixLength() || grid.IsNoPaste() ||
        (asChildren && (current == nullptr || !current->IsTreeRow())))
        return false;
    const std::size_t slot = current != nullptr ? operation.rows.Add(current) : NoSlot;
    if (asChildren)
        parentSlot = slot;
    else
    {
        follower = slot;
        if (current != nullptr && current->IsChildRow())
            parentSlot = operation.rows.Add(static_cast<TGGridTreeRow*>(current)->Parent());
    }
    const bool agreed = asChildren
                            ? operation.Extension().AskPasteChild(static_cast<TGGridTreeRow&>(*current))
                            : operation.Extension().AskPaste((std::min)(row, grid.GetRowNum()));
    if (!agreed || !operation.IsAlive())
        return false;
    grid.UnSelect();
    return operation.IsAlive() && (parentSlot == NoSlot || RowIn(parentSlot) != nullptr);
}

TGGridTreeRow* TGClipboard::TreeWriter::TreeRowIn(std::size_t slot) const
{
    TGGridRow* const row = RowIn(slot);
    return row != nullptr && row->IsTreeRow() ? static_cast<TGGridTreeRow*>(row) : nullptr;
}

// Where a child stands: where it stood last, or one further.
long TGClipboard::TreeWriter::PositionIn(TGGridTreeRow& parent, const TGGridRow* row) const
{
    const long number = parent.GetChildNum();
    for (long i = lastPosition; i < number; ++i)
        if (&parent.GetChild(i) == row)
            return i;
    for (long i = 0; i < (std::min)(lastPosition, number); ++i)
        if (&parent.GetChild(i) == row)
            return i;
    return number;
}

// In front of the row that was the current one; when that has gone, at the end.
TGGridRow* TGClipboard::TreeWriter::InsertTop()
{
    const TGClipboard& extension = operation.Extension();
    const TGGridRow* const before = RowIn(follower);
    if (parentSlot != NoSlot)
    {
        TGGridTreeRow* const parent = TreeRowIn(parentSlot);
        if (parent == nullptr)
            return nullptr;
        lastPosition = PositionIn(*parent, before);
        return extension.InsertChildAsUser(*parent, lastPosition);
    }
    const long index = before != nullptr ? before->GetIndex() : -1;
    return extension.InsertRowAsUser(index >= 0 ? index : operation.Grid().GetRowNum());
}

// Below the nearest row above that can have children.
TGGridRow* TGClipboard::TreeWriter::InsertBelow(int level)
{
    path.resize((std::min)(path.size(), static_cast<std::size_t>((std::max)(level, 0))));
    while (!path.empty() && RowIn(path.back()) != nullptr && TreeRowIn(path.back()) == nullptr)
        path.pop_back();
    if (path.empty())
        return InsertTop();
    TGGridTreeRow* const parent = TreeRowIn(path.back());
    return parent != nullptr ? operation.Extension().InsertChildAsUser(*parent, parent->GetChildNum())
                             : nullptr;
}

// ---- The rows

// Returns the line behind those that are done: a row that is refused takes its offspring along.
std::size_t TGClipboard::TreeWriter::WriteLine(std::size_t line)
{
    const int level = table.GetMark(line).level;
    TGGridRow* const row = operation.IsAlive() ? InsertBelow(level) : nullptr;
    if (row == nullptr)
    {
        const TGCellLeft reason = operation.IsAlive() ? TGCellLeft::RowRefused : TGCellLeft::Gone;
        std::size_t behind = line + 1;
        while (behind < table.GetRowNum() && table.GetMark(behind).level > level)
            ++behind;
        SkipTree(line, behind, reason);
        return behind;
    }
    const std::size_t slot = operation.rows.Add(row);
    inserted.push_back({slot, line, static_cast<int>(path.size())});
    path.push_back(slot);
    ++operation.report.rowsInserted;
    const long index = row->GetIndex();
    const std::size_t cells = table.GetCellNum(line);
    const std::size_t cols = operation.cols.size();
    for (std::size_t col = 0; col < (std::min)(cells, cols); ++col)
        operation.Type(slot, col, TextOf(table.GetText(line, col)), index, static_cast<long>(col));
    if (cells > cols)
        operation.report.Leave(TGCellLeft::BeyondLastCol, index, static_cast<long>(cols),
                               static_cast<long>(cells - cols));
    return line + 1;
}

void TGClipboard::TreeWriter::SkipTree(std::size_t line, std::size_t behind, TGCellLeft reason)
{
    for (; line < behind; ++line)
        operation.report.Leave(reason, -1, 0, static_cast<long>(table.GetCellNum(line)));
}

// The rows come in folded, so that each of them costs the same.
void TGClipboard::TreeWriter::UnfoldAndSelect()
{
    TGGrid& grid = operation.Grid();
    for (const Inserted& one : inserted)
        if (TGGridTreeRow* const row = operation.IsAlive() ? TreeRowIn(one.slot) : nullptr;
            row != nullptr && row->IsParentRow() && row->IsFold() && !table.GetMark(one.line).isFolded)
            row->UnFold();
    for (const Inserted& one : inserted)
        if (const TGGridRow* const row = operation.IsAlive() ? RowIn(one.slot) : nullptr;
            row != nullptr && one.level == 0 && row->GetIndex() >= 0)
            grid.SelectRow(row->GetIndex(), true);
    if (operation.IsAlive())
        operation.Extension().TellPasted();
}

void TGClipboard::TreeWriter::Write()
{
    for (std::size_t line = 0; line < table.GetRowNum();)
        line = WriteLine(line);
    if (operation.IsAlive() && !inserted.empty())
        UnfoldAndSelect();
}

// ---- The command

void TGClipboard::PasteRows(Operation& operation, const CellTable& table, bool asChildren)
{
    TreeWriter writer(operation, table);
    const TGGridUpdate update(operation.Grid());
    if (!writer.FindPlace(asChildren))
        operation.report.Refuse(TGClipboardRefusal::NotAllowed);
    else
        writer.Write();
}

} // namespace QuorUiCtr
