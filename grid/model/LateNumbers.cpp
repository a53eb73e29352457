// The indices of rows while others leave one by one.
#include "grid/model/LateNumbers.h"

#include "grid/model/MakeOrNull.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace QuorUiCtr
{
namespace
{

// The last element up to which `precedes` holds, null without any. The library's search looks at all of them
// in the checked build.
template <class Element, class Precedes>
const Element* LastOf(const std::vector<Element>& elements, Precedes precedes)
{
    std::size_t first = 0;
    std::size_t end = elements.size();
    if (end > 0 && precedes(elements.back()))
        return &elements.back();
    while (first < end)
    {
        const std::size_t middle = first + (end - first) / 2;
        if (precedes(elements[middle]))
            first = middle + 1;
        else
            end = middle;
    }
    return first == 0 ? nullptr : &elements[first - 1];
}

} // namespace

bool TGGrid::LateNumbers::Note(TGGrid& grid, long stored, long number) noexcept
{
    if (!grid.IsUpdating() || stored < 0)
        return false;
    if (grid.lateNumbers == nullptr)
        grid.lateNumbers = MakeOrNull([] { return std::make_unique<LateNumbers>().release(); });
    return grid.lateNumbers != nullptr && grid.lateNumbers->Add(stored, number);
}

bool TGGrid::LateNumbers::Add(long stored, long number) noexcept
try
{
    if (rising.empty() || stored >= rising.back().end)
        Append(rising, stored, number);
    else if (falling.empty() || stored + number <= falling.back().first)
        Append(falling, stored, number);
    else
        return false;
    return true;
}
catch (const std::bad_alloc&)
{
    return false;
}

void TGGrid::LateNumbers::Append(Runs& runs, long stored, long number)
{
    if (!runs.empty() && stored == runs.back().end)
        runs.back().end += number;
    else if (!runs.empty() && stored + number == runs.back().first)
        runs.back().first = stored;
    else
        runs.push_back({stored, stored + number, Total(runs)});
}

long TGGrid::LateNumbers::CountGoneBelow(long stored) const
{
    long number = Total(falling);
    if (const Run* run = LastOf(rising, [stored](const Run& candidate) { return candidate.first < stored; }))
        number += run->before + (std::min)(stored, run->end) - run->first;
    if (const Run* run = LastOf(falling, [stored](const Run& candidate) { return candidate.end > stored; }))
        number -= run->before + run->end - (std::max)(stored, run->first);
    return number;
}

long TGGrid::LateNumbers::LowestGone() const
{
    if (rising.empty())
        return 0;
    return falling.empty() ? rising.front().first : (std::min)(rising.front().first, falling.back().first);
}

// A row that has no index in spite of its slot is just coming or going, and is numbered by who does that. The
// row cursor is in use.
void TGGrid::LateNumbers::Settle(TGGrid& grid)
{
    const std::unique_ptr<LateNumbers> settled(std::exchange(grid.lateNumbers, nullptr));
    if (settled == nullptr)
        return;
    long i = settled->LowestGone();
    for (auto slot = grid.rows.IteratorAt(i); slot != grid.rows.end(); ++slot, ++i)
        if (TGGridRow* row = *slot; row != nullptr && row->index != -1)
            row->index = i;
}

} // namespace QuorUiCtr
