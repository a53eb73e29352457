// Sorting the rows by the row order, tree rows with their offspring.
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/MakeOrNull.h"
#include "grid/model/RowWatch.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <vector>

namespace QuorUiCtr
{
namespace
{

// Folds the unfolded root rows of a tree grid and unfolds them again: when asked to, or, as far as there is
// memory, at the end of its life.
class FoldedRoots
{
public:
    explicit FoldedRoots(PDList<TGGridRow>& rows)
    {
        for (TGGridRow* row : rows)
            if (row != nullptr && row->IsParentRow() && !row->IsChildRow() &&
                !static_cast<TGGridTreeRow*>(row)->IsFold())
                roots.push_back(static_cast<TGGridTreeRow*>(row));
        for (TGGridTreeRow* root : roots)
            root->Fold();
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

    void UnFold()
    {
        std::reverse(roots.begin(), roots.end());
        while (!roots.empty())
            UnFoldNext();
    }

private:
    void UnFoldNext()
    {
        TGGridTreeRow* root = roots.back();
        roots.pop_back();
        root->UnFold();
    }

    std::vector<TGGridTreeRow*> roots;
};

// Where each of the rows `after` stood among `before`, which are the same.
std::vector<long> OrderOf(const std::vector<TGGridRow*>& before, const std::vector<TGGridRow*>& after)
{
    std::unordered_map<const TGGridRow*, long> places;
    for (std::size_t i = 0; i < before.size(); ++i)
        places.emplace(before[i], static_cast<long>(i));
    std::vector<long> order;
    for (const TGGridRow* row : after)
        order.push_back(places[row]);
    return order;
}

} // namespace

void TGGrid::Arrange(bool ascending)
{
    EndEditCell();
    {
        TGGridUpdate update(*this);
        // Folding and unfolding run hooks, which may choose another current row or delete this one.
        TGGridRow* const current = RowAtIndex(curRowIndex);
        const RowWatch currentWatch(*this, current);
        std::vector<TGGridRow*> selected;
        for (long i : rowSel)
            selected.push_back(rows[i]);
        Structure(*this).SortRows(ascending);
        std::vector<long> moved;
        for (const TGGridRow* row : selected)
            if (row != nullptr && row->GetIndex() >= 0)
                moved.push_back(row->GetIndex());
        std::sort(moved.begin(), moved.end());
        SelectedIndices::Assign(rowSel, moved);
        if (current != nullptr)
            SetCurRowIndex(currentWatch.IsAlive() ? current->GetIndex() : -1);
        RecalcLayout(1);
    }
    OnDataChanged();
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
        grid.rows.Sort(ascending);
        NumberRows(0);
        return;
    }
    FoldedRoots folded(grid.rows);
    grid.rows.Sort(ascending);
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
    if (grid.extensions != nullptr && grid.extensions->AskOrder(parent, wanted, ascending))
    {
        auto next = wanted.begin();
        for (Row*& slot : level)
            slot = static_cast<Row*>(*next++);
    }
    else
        level.Sort(ascending);
    sorted.push_back({parent, OrderOf(before, std::vector<TGGridRow*>(level.begin(), level.end()))});
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
            folded.emplace(grid.rows);
        SortLevel(grid.rows, nullptr, ascending);
        NumberRows(0);
        for (TGGridRow* row : grid.rows)
            if (row != nullptr && row->IsTreeRow())
                SortBelow(static_cast<TGGridTreeRow&>(*row), ascending);
        if (folded)
            folded->UnFold();
    }
    for (const SortNotice& notice : sorted)
        if (grid.extensions != nullptr)
            grid.extensions->Tell(GridExtensions::RowsSorted, notice.parent,
                                  std::span<const long>(notice.order));
}

} // namespace QuorUiCtr
