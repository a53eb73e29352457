// Sorting the rows by the row order, tree rows with their offspring.
#include "grid/model/GridStructure.h"
#include "grid/model/MakeOrNull.h"
#include "grid/model/RowWatch.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
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

} // namespace QuorUiCtr
