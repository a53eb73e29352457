// LateNumbers: rows taken out one by one, without numbering the rows behind each time.
#pragma once

#include "grid/TGGrid.h"

#include <vector>

namespace QuorUiCtr
{

// Hooks run between the rows that leave, and see the indices of that moment; to store them anew in all rows
// behind each row that goes would take quadratic time. While this object lives, the rows behind one that is
// taken out keep the index that is stored in them, and TGGridRow::GetIndex subtracts the rows that have gone
// from before it. The first row that gets an index of its own, or the end of the scope, has the true indices
// stored. Scopes nest; the outermost one does the work. The row list is out of date in nothing.
class TGGrid::LateNumbers
{
public:
    explicit LateNumbers(TGGrid& servedGrid);
    ~LateNumbers();
    LateNumbers(const LateNumbers&) = delete;
    LateNumbers& operator=(const LateNumbers&) = delete;

    // A row with this stored index has been taken out. False when the rows behind must be numbered now.
    bool Note(long stored) noexcept;
    long TrueIndex(long stored) const;
    // Stores the true indices.
    void Settle();

private:
    TGGrid& grid;
    // Stored indices of rows that have gone, in ascending and in descending order: rows leave from the first
    // to the last or the other way round.
    std::vector<long> rising;
    std::vector<long> falling;
};

} // namespace QuorUiCtr
