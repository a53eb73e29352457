// How far a piece of work has come.
#pragma once

#include <algorithm>

namespace QuorUiCtr
{

// Whole per cent of `done` steps of `total`, 100 only when all are done; 0 when there is no total.
constexpr int PercentOf(long long done, long long total)
{
    if (total <= 0 || done <= 0)
        return 0;
    if (done >= total)
        return 100;
    constexpr long long Exact = 1'000'000'000'000;
    const long long percent = total < Exact ? done * 100 / total : done / (total / 100);
    return static_cast<int>((std::min)(percent, 99LL));
}

} // namespace QuorUiCtr
