// The indices of rows while others leave one by one.
#include "grid/model/LateNumbers.h"

#include <algorithm>
#include <functional>
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
    const auto before = std::lower_bound(rising.begin(), rising.end(), stored) - rising.begin();
    const auto behind =
        falling.end() - std::upper_bound(falling.begin(), falling.end(), stored, std::greater<>());
    return stored - static_cast<long>(before + behind);
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
