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

// Merges the items before and from `middle` on, which are sorted each for themselves; of equal items those
// before it come first. `left` has room for the items before it.
template <class Item, class SortsAfter>
void MergeRuns(std::span<Item> items, std::size_t middle, std::vector<Item>& left, SortsAfter& sortsAfter)
{
    left.assign(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(middle));
    auto fromLeft = left.begin();
    auto fromRight = items.begin() + static_cast<std::ptrdiff_t>(middle);
    auto target = items.begin();
    while (fromLeft != left.end() && fromRight != items.end())
        *target++ = sortsAfter(*fromLeft, *fromRight) ? *fromRight++ : *fromLeft++;
    std::copy(fromLeft, left.end(), target);
}

// Sorts items that consist of runs, at least one: `ends` holds where each of them ends, counted from `start`
// on the same scale. Halves the runs, so that none takes part in more merges than needed.
template <class Item, class SortsAfter>
void MergeAllRuns(std::span<Item> items, std::size_t start, std::span<const std::size_t> ends,
                  std::vector<Item>& left, SortsAfter& sortsAfter)
{
    if (ends.size() == 1)
        return;
    const std::size_t half = ends.size() / 2;
    const std::size_t middle = ends[half - 1] - start;
    MergeAllRuns(items.first(middle), start, ends.first(half), left, sortsAfter);
    MergeAllRuns(items.subspan(middle), start + middle, ends.subspan(half), left, sortsAfter);
    MergeRuns(items, middle, left, sortsAfter);
}

// Puts `items` into the order of a stable insertion sort that moves an item back while the item before it
// sorts after it. Needs items.size() - 1 comparisons when the items are in order (or in strictly opposite
// order) and n log2 n at most. A rule that contradicts itself gives some order of the same items.
template <class Item, class SortsAfter> void StableMergeSort(std::span<Item> items, SortsAfter sortsAfter)
{
    std::vector<std::size_t> ends;
    for (std::size_t start = 0; start < items.size(); start = ends.back())
        ends.push_back(MakeRun(items, start, sortsAfter));
    if (ends.size() < 2)
        return;
    std::vector<Item> left;
    left.reserve(items.size());
    MergeAllRuns(items, 0, std::span<const std::size_t>(ends), left, sortsAfter);
}

} // namespace QuorUiCtr::Detail
