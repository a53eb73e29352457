// The indices of rows while others leave one by one.
#include "grid/model/LateNumbers.h"

#include <cstddef>
#include <new>

namespace QuorUiCtr
{
namespace
{

bool PushNothrow(std::vector<long>& numbers, long number) noexcept
try
{
    numbers.push_back(number);
    return true;
}
catch (const std::bad_alloc&)
{
    return false;
}

// How many of the numbers, for which `precedes` holds first, it holds for. The library's search looks at all
// of them in the checked build.
template <class Precedes> long CountFirst(const std::vector<long>& numbers, Precedes precedes)
{
    std::size_t first = 0;
    std::size_t end = numbers.size();
    while (first < end)
    {
        const std::size_t middle = first + (end - first) / 2;
        if (precedes(numbers[middle]))
            first = middle + 1;
        else
            end = middle;
    }
    return static_cast<long>(first);
}

} // namespace

TGGrid::LateNumbers::LateNumbers(TGGrid& servedGrid) : grid(servedGrid)
{
    if (grid.lateNumbers == nullptr)
        grid.lateNumbers = this;
}

TGGrid::LateNumbers::~LateNumbers()
{
    if (grid.lateNumbers != this)
        return;
    Settle();
    grid.lateNumbers = nullptr;
}

bool TGGrid::LateNumbers::Note(long stored) noexcept
{
    if (stored < 0)
        return false;
    if (rising.empty() || stored > rising.back())
        return PushNothrow(rising, stored);
    if (falling.empty() || stored < falling.back())
        return PushNothrow(falling, stored);
    return false;
}

long TGGrid::LateNumbers::TrueIndex(long stored) const
{
    const long before = CountFirst(rising, [stored](long number) { return number < stored; });
    const long notBelow = CountFirst(falling, [stored](long number) { return number >= stored; });
    return stored - before - (static_cast<long>(falling.size()) - notBelow);
}

// A row that has no index in spite of its slot is just coming or going, and is numbered by who does that. The
// row cursor is in use.
void TGGrid::LateNumbers::Settle()
{
    if (rising.empty())
        return;
    rising.clear();
    falling.clear();
    long i = 0;
    for (TGGridRow* row : grid.rows)
    {
        if (row != nullptr && row->index != -1)
            row->index = i;
        ++i;
    }
}

} // namespace QuorUiCtr
