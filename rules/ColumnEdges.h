// The edge of a column that a point near it means.
#pragma once

namespace QuorUiCtr
{

// The index of the column whose right edge is the nearest one to `x` and at most `reach` pixels away, -1 when
// there is none. Of two that are as near the one to the right counts, and of edges that coincide the last
// one. `rightOf(i)` is the right edge of column i, ascending.
template <class RightOf> long NearestEdge(long x, long reach, long columns, RightOf rightOf)
{
    // The first column with an edge at x or right of it.
    long first = 0;
    for (long end = columns; first < end;)
    {
        const long middle = first + (end - first) / 2;
        if (rightOf(middle) < x)
            first = middle + 1;
        else
            end = middle;
    }
    const bool hasRight = first < columns && rightOf(first) - x <= reach;
    const bool hasLeft = first > 0 && x - rightOf(first - 1) <= reach;
    if (hasLeft && (!hasRight || x - rightOf(first - 1) < rightOf(first) - x))
        return first - 1;
    if (!hasRight)
        return -1;
    while (first + 1 < columns && rightOf(first + 1) == rightOf(first))
        ++first;
    return first;
}

} // namespace QuorUiCtr
