// Texts of cells, kept side by side.
#include "undo/GridChange.h"

#include "grid/extras/ViewOf.h"

#include <algorithm>
#include <string_view>

namespace QuorUiCtr
{
namespace
{

// Texts that differ have different numbers but for one pair in 2^64.
std::uint64_t NumberOfText(std::wstring_view text)
{
    constexpr std::uint64_t Start = 0xCBF29CE484222325U;
    constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15U;
    std::uint64_t number = Start;
    for (const wchar_t unit : text)
    {
        number = (number ^ unit) * Spread;
        number ^= number >> 29;
    }
    return number;
}

} // namespace

// ---- What all changes of grids have

long GridChange::Count(TGActionKind) const
{
    return 0;
}

void GridChange::Lend(std::unordered_set<const TGGridRow*>&, GridUndo::LentRows&) {}

bool GridChange::Keep(std::unique_ptr<TGGridRow>&)
{
    return false;
}

// ---- Texts

// Cells are mostly changed along rows or columns: it is the column of the last one, or the next one.
unsigned GridTextChange::ColOf(const TGGridCol& col)
{
    const unsigned serial = GridUndo::GetSerial(col);
    const std::size_t last = entries.empty() ? 0 : entries.back().col;
    for (std::size_t i = 0; i < cols.size(); ++i)
    {
        const std::size_t place = (last + i) % cols.size();
        if (cols[place].serial == serial && cols[place].index == col.GetIndex())
            return static_cast<unsigned>(place);
    }
    cols.push_back({col.GetIndex(), serial});
    return static_cast<unsigned>(cols.size() - 1);
}

void GridTextChange::Add(TGGridCell& cell, const CString& oldText)
{
    GridUndo::Mark(cell.GetRow());
    const unsigned col = ColOf(cell.GetCol());
    const auto text = static_cast<unsigned>(texts.size());
    const std::wstring_view old = ViewOf(oldText);
    texts.insert(texts.end(), old.begin(), old.end());
    entries.push_back({&cell.GetRow(), NumberOfText(ViewOf(cell.GetText())), col, text});
}

bool GridTextChange::IsOnly(const TGGridRow& row, unsigned serial) const
{
    return std::all_of(entries.begin(), entries.end(), [&](const Entry& entry) {
        return entry.row == &row && cols[entry.col].serial == serial;
    });
}

bool GridTextChange::Revert()
{
    while (!entries.empty())
    {
        const Entry entry = entries.back();
        if (!RevertText(entry))
            return false;
        entries.pop_back();
        texts.resize(entry.text);
    }
    return true;
}

// The last entry. A text that an extension has brought back already is right.
bool GridTextChange::RevertText(const Entry& entry)
{
    GridUndo& undo = Undo();
    const Col& place = cols[entry.col];
    const TGGridCol* const col = undo.FindCol(place.index, place.serial);
    if (col == nullptr || !undo.IsInGrid(*entry.row))
        return false;
    TGGridCell* const cell = GridUndo::CellOf(*entry.row, place.index);
    if (cell == nullptr)
        return false;
    const std::wstring_view oldText(texts.data() + entry.text, texts.size() - entry.text);
    const std::wstring_view present = ViewOf(cell->GetText());
    if (NumberOfText(present) != entry.expected)
        return present == oldText;
    const GridUndo::Reverting guard(undo, cell);
    GridUndo::StoreText(*cell, TextOf(oldText));
    return undo.GetGrid() != nullptr;
}

std::size_t GridTextChange::GetBytes() const
{
    return sizeof(*this) + entries.capacity() * sizeof(Entry) + texts.capacity() * sizeof(wchar_t) +
           cols.capacity() * sizeof(Col);
}

bool GridTextChange::Merge(UndoChange& next)
{
    auto* const follower = dynamic_cast<GridTextChange*>(&next);
    if (follower == nullptr)
        return false;
    const auto firstText = static_cast<unsigned>(texts.size());
    const auto firstCol = static_cast<unsigned>(cols.size());
    texts.insert(texts.end(), follower->texts.begin(), follower->texts.end());
    cols.insert(cols.end(), follower->cols.begin(), follower->cols.end());
    for (Entry entry : follower->entries)
    {
        entry.text += firstText;
        entry.col += firstCol;
        entries.push_back(entry);
    }
    return true;
}

long GridTextChange::Count(TGActionKind kind) const
{
    return kind == TGActionKind::Empty ? static_cast<long>(entries.size()) : 0;
}

void GridTextChange::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    if (std::any_of(entries.begin(), entries.end(), [&](const Entry& e) { return gone.count(e.row) > 0; }))
        Break();
}

} // namespace QuorUiCtr
