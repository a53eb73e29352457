// Sorting the rows by the row order, tree rows with their offspring.
#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"

#include <algorithm>
#include <vector>

namespace QuorUiCtr
{
namespace
{

// Folds the unfolded root rows of a tree grid for its life and unfolds them again at the end.
class FoldedRoots
{
public:
    explicit FoldedRoots(PDList<TGGridRow>& rows)
    {
        for (TGGridRow* row : rows)
            if (row && row->IsParentRow() && !row->IsChildRow() &&
                !static_cast<TGGridTreeRow*>(row)->IsFold())
                roots.push_back(static_cast<TGGridTreeRow*>(row));
        for (TGGridTreeRow* root : roots)
            root->Fold();
    }
    ~FoldedRoots()
    {
        for (TGGridTreeRow* root : roots)
            root->UnFold();
    }
    FoldedRoots(const FoldedRoots&) = delete;
    FoldedRoots& operator=(const FoldedRoots&) = delete;

private:
    std::vector<TGGridTreeRow*> roots;
};

} // namespace

void TGGrid::Arrange(bool ascending)
{
    EndEditCell();
    {
        TGGridUpdate update(*this);
        // Folding and unfolding run hooks, which may choose another current row or delete this one.
        TGGridRow* const current = RowAt(curRowIndex);
        const RowWatch currentWatch(*this, current);
        std::vector<TGGridRow*> selected;
        for (long i : rowSel)
            selected.push_back(rows[i]);
        SortRows(ascending);
        rowSel.Clear();
        std::vector<long> moved;
        for (const TGGridRow* row : selected)
            if (row && row->GetIndex() >= 0)
                moved.push_back(row->GetIndex());
        std::sort(moved.begin(), moved.end());
        for (long i : moved)
            rowSel.Append(i);
        if (current != nullptr)
            SetCurRowIndex(currentWatch.IsAlive() ? current->GetIndex() : -1);
        RecalcLayout(1);
    }
    OnDataChanged();
}

void TGGrid::SortRows(bool ascending)
{
    if (!treeGrid)
    {
        rows.Sort(ascending);
        Structure(*this).NumberRows(0);
        return;
    }
    FoldedRoots folded(rows);
    rows.Sort(ascending);
    Structure(*this).NumberRows(0);
    for (TGGridRow* row : rows)
        if (row && row->IsParentRow())
            static_cast<TGGridTreeRow*>(row)->ArrangeChild(ascending);
}

} // namespace QuorUiCtr
