// The ranges of what hosts may set, in pixels.
#pragma once

#include <algorithm>
#include <climits>

namespace QuorUiCtr
{

constexpr long MaxColWidth = 65535;
// The height of the contents is limited by MaxContentHeight of rules/GridGeometry.h: 134,217,728 pixels,
// which are 6.7 million rows of 20 pixels. Beyond, columns have no extent any more; twice as much can still
// be counted.
constexpr long MaxContentWidth = LONG_MAX / 2;
// More than any screen is high.
constexpr int MaxRowSpace = 16384;
// Farther than any screen reaches, and within what GDI can scroll.
constexpr int MaxScrollDistance = 1 << 24;

inline long WidthInRange(long width)
{
    return std::clamp(width, 0L, MaxColWidth);
}

} // namespace QuorUiCtr
