// Sorting the rows by the row order, tree rows with their offspring.
#include "grid/collections/MergeSort.h"
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/MakeOrNull.h"
#include "grid/model/RowPlaces.h"
#include "grid/model/RowWatch.h"
#include "grid/TGUserAction.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace QuorUiCtr
{
namespace
{

// Folds the unfolded root rows of a tree grid and unfolds them again: when asked to, or, as far as there is
// memory, at the end of its life. Both run hooks, which may delete roots or unfold them meanwhile.
class FoldedRoots
{
public:
    // `fold` folds or unfolds a row, which it does with its hooks.
    using FoldRow = void (*)(TGGrid& grid, TGGridTreeRow& row, bool folded);

    FoldedRoots(TGGrid& sortedGrid, PDList<TGGridRow>& rows, FoldRow foldRow)
        : grid(sortedGrid), fold(foldRow)
    {
        for (TGGridTreeRow* root : Unfolded(rows))
            roots.emplace_back(grid, root);
        for (Root& root : roots)
            if (root.watch.IsAlive())
                fold(grid, *root.row, true);
    }
    ~FoldedRoots()
    {
        while (!roots.empty())
            MakeOrNull([this] {
                UnFoldNext();
                return static_cast<void*>(nullptr);
            });
    }
    FoldedRoots(const FoldedRoots&) = delete;
    FoldedRoots& operator=(const FoldedRoots&) = delete;

    // What hooks have unfolded meanwhile must not be sorted among the roots; `hide` takes the offspring away.
    template <class Hide> void AddUnfolded(PDList<TGGridRow>& rows, Hide hide)
    {
        for (TGGridTreeRow* root : Unfolded(rows))
        {
            Add(*root);
            hide(*root);
        }
    }
    static std::vector<TGGridTreeRow*> Unfolded(PDList<TGGridRow>& rows)
    {
        std::vector<TGGridTreeRow*> found;
        for (TGGridRow* row : rows)
            if (row != nullptr && row->IsParentRow() && !row->IsChildRow() &&
                !static_cast<TGGridTreeRow*>(row)->IsFold())
                found.push_back(static_cast<TGGridTreeRow*>(row));
        return found;
    }
    // One more to unfold.
    void Add(TGGridTreeRow& root) { roots.emplace_back(grid, &root); }
    void UnFold()
    {
        while (!roots.empty())
            UnFoldNext();
    }

private:
    struct Root
    {
        Root(TGGrid& sortedGrid, TGGridTreeRow* root) : row(root), watch(sortedGrid, root) {}

        TGGridTreeRow* row;
        RowWatch watch;
    };

    void UnFoldNext()
    {
        TGGridTreeRow* const root = roots.front().watch.IsAlive() ? roots.front().row : nullptr;
        roots.pop_front();
        if (root != nullptr)
            fold(grid, *root, false);
    }

    TGGrid& grid;
    FoldRow fold;

    // Watches stay where they are made.
    std::deque<Root> roots;
};

// A row and its text in the main key's column. The first characters stand side by side, so that most
// comparisons are of two numbers, which lie where the sorting looks for them.
struct RowKey
{
    RowKey(const wchar_t* keyText, TGGridRow* keyRow) : text(keyText), row(keyRow) { Pack(); }

    void Pack()
    {
        const wchar_t* next = text;
        for (std::uint64_t& part : packed)
            for (int i = 0; i < 4; ++i)
            {
                part = part << 16 | *next;
                next += *next != 0 ? 1 : 0;
            }
        isWhole = *next == 0;
    }

    int Compare(const RowKey& other) const
    {
        for (int i = 0; i < 2; ++i)
            if (packed[i] != other.packed[i])
                return packed[i] < other.packed[i] ? -1 : 1;
        return isWhole && other.isWhole ? 0 : std::wcscmp(text + PackedChars, other.text + PackedChars);
    }

    static constexpr int PackedChars = 8;
    std::uint64_t packed[2] = {};
    const wchar_t* text;
    TGGridRow* row;
    // There is no more text than what is packed.
    bool isWhole = false;
};

std::vector<const wchar_t*> TextsOf(std::span<const TGGridCell* const> cells)
{
    std::vector<const wchar_t*> texts;
    texts.reserve(cells.size());
    for (const TGGridCell* cell : cells)
        texts.push_back(cell->GetText());
    return texts;
}

bool IsInOrder(std::span<const wchar_t* const> texts, bool ascending)
{
    const auto precedes = [ascending](const wchar_t* first, const wchar_t* second) {
        return ascending ? std::wcscmp(first, second) < 0 : std::wcscmp(first, second) > 0;
    };
    return std::is_sorted(texts.begin(), texts.end(), precedes);
}

std::vector<RowKey> KeysOf(std::span<TGGridRow* const> rows, std::span<const wchar_t* const> texts)
{
    std::vector<RowKey> keys;
    keys.reserve(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        keys.emplace_back(texts[i], rows[i]);
    return keys;
}

// Texts of one kind often begin alike. Where that leaves too little room for what is different, the beginning
// that all have in common is left out.
void SkipCommonStart(std::span<RowKey> keys)
{
    const auto isWhole = [](const RowKey& key) { return key.isWhole; };
    if (std::all_of(keys.begin(), keys.end(), isWhole))
        return;
    const wchar_t* const model = keys.front().text;
    std::size_t common = std::wcslen(model);
    for (const RowKey& key : keys)
    {
        std::size_t same = 0;
        while (same < common && key.text[same] == model[same])
            ++same;
        common = same;
    }
    if (common > 0)
        for (RowKey& key : keys)
        {
            key.text += common;
            key.Pack();
        }
}

// Where the rows stand now. Those that a hook has deleted are only compared.
std::vector<long> IndicesOf(std::vector<const TGGridRow*> wanted, PDList<TGGridRow>& rows)
{
    std::vector<long> indices;
    if (wanted.empty())
        return indices;
    const std::less<const TGGridRow*> precedes;
    std::sort(wanted.begin(), wanted.end(), precedes);
    long i = 0;
    for (const TGGridRow* row : rows)
    {
        if (row != nullptr && std::binary_search(wanted.begin(), wanted.end(), row, precedes))
            indices.push_back(i);
        ++i;
    }
    return indices;
}

} // namespace

// Trees fold while they are sorted and take the selection with them, which is all put back: extensions, which
// keep their rows, hear of a selection when it is done.
class TGGrid::SortingScope
{
public:
    explicit SortingScope(TGGrid& sortedGrid) : grid(sortedGrid)
    {
        if (grid.extensions != nullptr)
            grid.extensions->BeginSorting();
    }
    ~SortingScope() { Leave(); }
    SortingScope(const SortingScope&) = delete;
    SortingScope& operator=(const SortingScope&) = delete;

    void End()
    {
        if (Leave())
            grid.TellSelected();
    }

private:
    // Whether there is a selection to be told of.
    bool Leave()
    {
        return !std::exchange(left, true) && grid.extensions != nullptr && grid.extensions->EndSorting();
    }

    TGGrid& grid;
    bool left = false;
};

void TGGrid::Arrange(bool ascending)
{
    const TGUserAction action(*this, TGActionKind::Sort);
    EndEditCell();
    SortingScope sorting(*this);
    {
        TGGridUpdate update(*this);
        // Folding and unfolding run hooks, which may choose another current row or delete this one.
        TGGridRow* const current = RowAtIndex(curRowIndex);
        const RowWatch currentWatch(*this, current);
        std::vector<const TGGridRow*> selected;
        for (const long i : rowSel)
            selected.push_back(RowAtIndex(i));
        Structure(*this).SortRows(ascending);
        SelectedIndices::Assign(rowSel, IndicesOf(std::move(selected), rows));
        if (current != nullptr)
            SetCurRowIndex(currentWatch.IsAlive() ? current->GetIndex() : -1);
        RecalcLayout(1);
    }
    sorting.End();
    OnDataChanged();
}

void TGGrid::Structure::FoldUntold(TGGrid& grid, TGGridTreeRow& row, bool folded)
{
    if (grid.extensions != nullptr)
        grid.extensions->SetUntold(&row);
    if (folded)
        row.Fold();
    else
        row.UnFold();
    if (grid.extensions != nullptr)
        grid.extensions->SetUntold(nullptr);
}

const List<long>& TGGrid::Structure::SortKeys() const
{
    const List<long>& selected = grid.colSel;
    return grid.keys.IsEmpty() ? selected : grid.keys;
}

TGGrid::Structure::Order TGGrid::Structure::SortByKeys(std::vector<TGGridRow*>& order, bool ascending)
{
    const List<long>& keys = SortKeys();
    const std::vector<TGGridRow*> before = order;
    const auto nulls = std::stable_partition(order.begin(), order.end(),
                                             [](const TGGridRow* row) { return row != nullptr; });
    const std::span<TGGridRow* const> present(order.begin(), nulls);
    // Each step from a row to its text waits for memory when there are many rows. Made for all rows before
    // the next step, these waits overlap.
    std::vector<const TGGridCell*> cells;
    if (!keys.IsEmpty())
        for (TGGridRow* row : present)
            cells.push_back(row->FindCell(*keys.begin()));
    if (std::find(cells.begin(), cells.end(), nullptr) != cells.end())
        return Order::Unknown;
    const std::vector<const wchar_t*> texts = TextsOf(cells);
    const bool single = keys.GetNum() == 1;
    if (single && IsInOrder(texts, ascending))
        return order == before ? Order::Kept : Order::Changed;
    std::vector<RowKey> rowKeys = KeysOf(present, texts);
    SkipCommonStart(rowKeys);
    const auto compare = [single](const RowKey& first, const RowKey& second) {
        const int difference = first.Compare(second);
        return difference != 0 || single ? difference : first.row->CompareByKeys(*second.row);
    };
    Detail::StableMergeSort(std::span(rowKeys), [&](const RowKey& first, const RowKey& second) {
        return ascending ? compare(first, second) > 0 : compare(first, second) < 0;
    });
    std::transform(rowKeys.begin(), rowKeys.end(), order.begin(), [](const RowKey& key) { return key.row; });
    return order == before ? Order::Kept : Order::Changed;
}

void TGGrid::Structure::SortRows(bool ascending)
{
    if (grid.extensions != nullptr)
    {
        SortExtended(ascending);
        return;
    }
    if (!grid.treeGrid)
    {
        if (SortList(grid.rows, ascending))
            NumberRows(0);
        grid.rows.MoveTo(-1);
        return;
    }
    FoldedRoots folded(grid, grid.rows, FoldUntold);
    folded.AddUnfolded(grid.rows, [this](TGGridTreeRow& root) { RemoveOffspring(root); });
    SortList(grid.rows, ascending);
    NumberRows(0);
    for (TGGridRow* row : grid.rows)
        if (row != nullptr && row->IsParentRow())
            static_cast<TGGridTreeRow*>(row)->ArrangeChild(ascending);
    folded.UnFold();
}

// ---- With extensions

template <class Row>
void TGGrid::Structure::SortLevel(PDList<Row>& level, TGGridTreeRow* parent, bool ascending)
{
    const std::vector<TGGridRow*> before(level.begin(), level.end());
    std::vector<TGGridRow*> wanted = before;
    std::optional<std::vector<long>> order;
    if (grid.extensions != nullptr)
        order = grid.extensions->AskOrder(parent, wanted, ascending);
    if (order)
    {
        auto next = wanted.begin();
        for (Row*& slot : level)
            slot = static_cast<Row*>(*next++);
    }
    else
    {
        level.Sort(ascending);
        order = RowPlaces(before).OrderOf(std::vector<TGGridRow*>(level.begin(), level.end()));
    }
    sorted.push_back({parent, std::move(*order)});
}

void TGGrid::Structure::SortBelow(TGGridTreeRow& row, bool ascending)
{
    if (!row.IsParentRow())
        return;
    SortLevel(row.children, &row, ascending);
    for (TGGridTreeRow* child : row.children)
        if (child != nullptr)
            SortBelow(*child, ascending);
}

// The extensions are told when all levels are sorted and shown again.
void TGGrid::Structure::SortExtended(bool ascending)
{
    {
        std::optional<FoldedRoots> folded;
        if (grid.treeGrid)
        {
            folded.emplace(grid, grid.rows, FoldUntold);
            folded->AddUnfolded(grid.rows, [this](TGGridTreeRow& root) { RemoveOffspring(root); });
        }
        SortLevel(grid.rows, nullptr, ascending);
        NumberRows(0);
        for (TGGridRow* row : grid.rows)
            if (row != nullptr && row->IsTreeRow())
                SortBelow(static_cast<TGGridTreeRow&>(*row), ascending);
        if (folded)
            folded->UnFold();
    }
    TellSorted();
}

} // namespace QuorUiCtr
