// What a copy keeps: where the cells are, and their texts before these change.
#include "grid/extras/CopiedCells.h"

#include "grid/extras/ViewOf.h"
#include "grid/TGGrid.h"

#include <algorithm>
#include <cstddef>

namespace QuorUiCtr
{
namespace
{

// So many texts are taken at once, in about a millisecond.
constexpr std::size_t FewCells = 20'000;
// So many cells may change before all are taken.
constexpr std::size_t MostOldTexts = 4096;

} // namespace

// ---- Collecting

// The captions are those of the first part.
void TGClipboard::Copied::AddPart(const TGClipboard& clipboard, const CellPart& part)
{
    TGGrid& grid = *clipboard.GetGrid();
    parts.push_back({rows.size(), {}});
    rows.reserve(rows.size() + static_cast<std::size_t>(CountOf(part.rows)));
    for (const auto& [first, last] : part.cols)
        for (long col = first; col <= last; ++col)
            parts.back().cols.push_back(&grid.GetCol(col));
    if (parts.size() == 1)
        for (const TGGridCol* col : parts.back().cols)
            captions.push_back(col->GetName());
    const std::size_t first = rows.size();
    for (const auto& [top, bottom] : part.rows)
        clipboard.FindRows(top, bottom, rows);
    if (hasWholeRows && first < rows.size() && (grid.IsTreeGrid() || rows[first]->IsTreeRow()))
        AddTrees(first);
    cellNum += parts.back().cols.size() * (rows.size() - parts.back().firstRow);
}

// The rows from a place on get what belongs to them.
void TGClipboard::Copied::AddTrees(std::size_t first)
{
    const auto place = rows.begin() + static_cast<std::ptrdiff_t>(first);
    const std::vector<TGGridRow*> shown(place, rows.end());
    rows.erase(place, rows.end());
    for (TGGridRow* row : shown)
        if (row->IsTreeRow())
            AddTree(*row, static_cast<int>(static_cast<TGGridTreeRow*>(row)->GetParentNum()));
        else
            rows.push_back(row);
}

// A row, and the offspring of a folded one, which is not shown. The marks say that the rows are whole ones.
void TGClipboard::Copied::AddTree(TGGridRow& row, int level)
{
    auto& treeRow = static_cast<TGGridTreeRow&>(row);
    const bool isFolded = treeRow.IsParentRow() && treeRow.IsFold();
    rows.push_back(&row);
    // Plain rows before it, of a part, have plain marks.
    marks.resize(rows.size() - 1);
    marks.push_back({level, isFolded, static_cast<std::int64_t>(rows.size())});
    for (long i = 0; isFolded && i < treeRow.GetChildNum(); ++i)
        AddTree(treeRow.GetChild(i), level + 1);
}

void TGClipboard::Copied::Close()
{
    if (!marks.empty())
    {
        marks.resize(rows.size());
        const auto isHigher = [](const RowMark& one, const RowMark& other) {
            return one.level < other.level;
        };
        const int highest = std::min_element(marks.begin(), marks.end(), isHigher)->level;
        for (RowMark& mark : marks)
            mark.level -= highest;
    }
    if (cellNum <= FewCells)
        Freeze();
}

// ---- Reading

template <class Begin, class Take, class End>
void TGClipboard::Copied::Walk(Begin begin, Take take, End end) const
{
    auto frozen = texts.begin();
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        std::vector<long> places(parts[i].cols.size());
        if (!isFrozen)
            std::transform(parts[i].cols.begin(), parts[i].cols.end(), places.begin(),
                           [](const TGGridCol* col) { return col->GetIndex(); });
        const std::size_t behind = i + 1 < parts.size() ? parts[i + 1].firstRow : rows.size();
        for (std::size_t k = parts[i].firstRow; k < behind; ++k)
        {
            begin(k);
            for (const long place : places)
                take(isFrozen ? *frozen++ : CopiedText(rows[k], place));
            end();
        }
    }
}

const CString& TGClipboard::Copied::CopiedText(TGGridRow* row, long col) const
{
    static const CString none;
    const TGGridCell* const cell = row != nullptr ? CellOf(*row, col) : nullptr;
    if (cell == nullptr)
        return none;
    if (oldTexts.empty())
        return cell->GetText();
    const auto old = oldTexts.find(cell);
    return old != oldTexts.end() ? old->second : cell->GetText();
}

void TGClipboard::Copied::WriteTo(CellSink& sink, bool withCaptions) const
{
    if (withCaptions)
    {
        sink.BeginCaptions();
        for (const CString& caption : captions)
            sink.Cell(ViewOf(caption));
        sink.EndRow();
    }
    Walk([&](std::size_t row) { sink.BeginRow(marks.empty() ? RowMark() : marks[row]); },
         [&](const CString& text) { sink.Cell(ViewOf(text)); }, [&] { sink.EndRow(); });
}

// ---- Changes

// The texts are shared with the cells.
void TGClipboard::Copied::Freeze()
{
    if (isFrozen)
        return;
    std::vector<CString> taken;
    taken.reserve(cellNum);
    Walk([](std::size_t) {}, [&](const CString& text) { taken.push_back(text); }, [] {});
    texts = std::move(taken);
    isFrozen = true;
    oldTexts.clear();
    known.clear();
}

// Only the first old text is the one that was copied.
void TGClipboard::Copied::NoteText(const TGGridCell& cell, const CString& oldText)
{
    if (isFrozen)
        return;
    oldTexts.emplace(&cell, oldText);
    if (oldTexts.size() > MostOldTexts)
        Freeze();
}

// Rows that leave a grid are read before; this is for those that go without a word.
void TGClipboard::Copied::NoteDeleted(const TGGridRow* row)
{
    if (isFrozen)
        return;
    if (known.empty())
        known.insert(rows.begin(), rows.end());
    if (known.count(row) == 0)
        return;
    std::replace(rows.begin(), rows.end(), const_cast<TGGridRow*>(row), static_cast<TGGridRow*>(nullptr));
    Freeze();
}

} // namespace QuorUiCtr
