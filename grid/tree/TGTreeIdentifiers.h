// The leaves of a tree grid and the identifiers that they hold.
#pragma once

#include "grid/TGTreeGrid.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace QuorUiCtr
{

// Walks trees of rows breadth-first, folded children included, and yields the leaves.
class TGTreeGrid::Leaves
{
public:
    void Add(TGGridRow& tree) { waiting.push_back(&tree); }
    // The next leaf, null at the end.
    TGGridRow* Next();

    // The identifier text of a leaf: its cell in column 1, null when it has none.
    static TGGridCell* IdentifierCell(TGGridRow& leaf) { return leaf.FindCell(IdentifierCol); }
    // The number that the cell reads as; 0 for a null cell.
    static int IdentifierOf(const TGGridCell* cell) { return cell != nullptr ? _wtoi(cell->GetText()) : 0; }

private:
    static constexpr long IdentifierCol = 1;

    // A queue whose front is at `front`: what has been taken stays, which is quicker than taking it out.
    std::vector<TGGridRow*> waiting;
    size_t front = 0;
};

// The identifiers of a number of leaves, and the rule for new ones.
class TGTreeGrid::Identifiers
{
public:
    explicit Identifiers(Leaves& leaves);

    // See TGTreeGrid::GetAutoId.
    int AutoId(int id) const;
    // Gives one of the leaves the identifier that the rule says.
    void Renumber(TGGridRow& leaf);

private:
    void Count(int id);

    std::unordered_map<int, long> holders;
    int maximum = 0;
};

} // namespace QuorUiCtr
