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
    static int IdentifierOf(const TGGridCell* cell);

private:
    static constexpr long IdentifierCol = 1;

    // A queue whose front is at `front`: what has been taken stays, which is quicker than taking it out.
    std::vector<TGGridRow*> waiting;
    size_t front = 0;
};

// The identifiers of a grid's leaves, and the rule for new ones. Knows how many leaves hold an identifier
// only for those that it is asked about, which are few, and for those that it has given.
class TGTreeGrid::Identifiers
{
public:
    Identifiers(TGTreeGrid& countedGrid, const std::vector<int>& asked);

    // See TGTreeGrid::GetAutoId; for an identifier that is asked about.
    int AutoId(int id);
    // Gives a leaf, whose identifier is asked about, the one that the rule says.
    void Renumber(TGGridRow& leaf);

private:
    void CountLeaves();
    // An identifier that no leaf holds when there is none above the largest; from then on all are known.
    int FirstUnused();
    void Enter(int id);

    TGTreeGrid& grid;
    std::unordered_map<int, long> holders;
    bool knowsAll = false;
    int maximum = 0;
};

} // namespace QuorUiCtr
