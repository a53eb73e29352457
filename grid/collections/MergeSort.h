// StableMergeSort: the sort behind the lists' sort operations.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <vector>

namespace QuorUiCtr::Detail
{

// The end of the run that starts at `start`: items of which none sorts after its successor. Items of which
// each sorts after its successor are turned round and make a run too; no two of them are equal, so the order
// of equal items is kept.
template <class Item, class SortsAfter>
std::size_t MakeRun(std::span<Item> items, std::size_t start, SortsAfter& sortsAfter)
{
    std::size_t end = start + 1;
    if (end == items.size())
        return end;
    const bool descending = sortsAfter(items[start], items[end]);
    ++end;
    while (end < items.size() && sortsAfter(items[end - 1], items[end]) == descending)
        ++end;
    if (descending)
        std::reverse(items.begin() + static_cast<std::ptrdiff_t>(start),
                     items.begin() + static_cast<std::ptrdiff_t>(end));
    return end;
}

// Merges two neighbouring runs into `target`; of equal items those of `left` come first.
template <class Item, class SortsAfter>
Item* MergeRuns(std::span<Item> left, std::span<Item> right, Item* target, SortsAfter& sortsAfter)
{
    auto fromLeft = left.begin();
    auto fromRight = right.begin();
    while (fromLeft != left.end() && fromRight != right.end())
        *target++ = sortsAfter(*fromLeft, *fromRight) ? *fromRight++ : *fromLeft++;
    target = std::copy(fromLeft, left.end(), target);
    return std::copy(fromRight, right.end(), target);
}

// Puts `items` into the order of a stable insertion sort that moves an item back while the item before it
// sorts after it. Needs items.size() - 1 comparisons when the items are in order (or in strictly opposite
// order) and O(n log n) at worst. A rule that contradicts itself gives some order of the same items.
template <class Item, class SortsAfter> void StableMergeSort(std::span<Item> items, SortsAfter sortsAfter)
{
    std::vector<std::size_t> ends;
    for (std::size_t start = 0; start < items.size(); start = ends.back())
        ends.push_back(MakeRun(items, start, sortsAfter));

    std::vector<Item> merged(ends.size() > 1 ? items.size() : 0);
    while (ends.size() > 1)
    {
        std::vector<std::size_t> mergedEnds;
        std::size_t start = 0;
        Item* target = merged.data();
        for (std::size_t run = 0; run < ends.size(); run += 2)
        {
            const std::size_t middle = ends[run];
            const std::size_t end = run + 1 < ends.size() ? ends[run + 1] : middle;
            target = MergeRuns(items.subspan(start, middle - start), items.subspan(middle, end - middle),
                               target, sortsAfter);
            mergedEnds.push_back(end);
            start = end;
        }
        std::copy(merged.begin(), merged.end(), items.begin());
        ends.swap(mergedEnds);
    }
}

} // namespace QuorUiCtr::Detail
