// The contract of the lists over a vector and an index.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace quor::test
{

template <class T> struct ReferenceList
{
    std::vector<T> elements;
    long cursor = -1;

    long GetNum() const { return static_cast<long>(elements.size()); }
    bool Has(long i) const { return i >= 0 && i < GetNum(); }
    void MoveTo(long i) { cursor = Has(i) ? i : -1; }
    void MoveToNext() { MoveTo(cursor + 1); }
    void MoveToPre() { cursor = cursor < 0 ? GetNum() - 1 : cursor - 1; }
    T& Cur() { return elements[static_cast<std::size_t>(cursor)]; }
    void InsertAt(long i, const T& element)
    {
        elements.insert(elements.begin() + i, element);
        cursor = i;
    }
    void Insert(const T& element) { InsertAt(cursor < 0 ? GetNum() : cursor, element); }
    void InsertAfter(const T& element) { InsertAt(cursor + 1, element); }
    void Append(const T& element) { InsertAt(GetNum(), element); }
    void Grow(long n)
    {
        if (n > GetNum())
            elements.resize(static_cast<std::size_t>(n));
    }
    void Del()
    {
        if (cursor >= 0)
            elements.erase(elements.begin() + cursor--);
    }
    void Clear()
    {
        elements.clear();
        cursor = -1;
    }
    bool Move(long from, long to)
    {
        if (!Has(from) || to < 0 || to > GetNum() || to == from || to == from + 1)
            return false;
        const T element = elements[static_cast<std::size_t>(from)];
        elements.insert(elements.begin() + to, element);
        elements.erase(elements.begin() + (from < to ? from : from + 1));
        cursor = from < to ? to - 1 : to;
        return true;
    }
    // The elements are put before the one at `at`, or at the end; the cursor stays on its element.
    void Splice(long at, const std::vector<T>& added)
    {
        const long position = Has(at) ? at : GetNum();
        elements.insert(elements.begin() + position, added.begin(), added.end());
        if (cursor >= position)
            cursor += static_cast<long>(added.size());
    }
    long RemoveRange(long first, long number)
    {
        const long present = Has(first) ? std::clamp(number, 0L, GetNum() - first) : 0;
        if (present == 0)
            return 0;
        elements.erase(elements.begin() + first, elements.begin() + first + present);
        if (cursor >= first + present)
            cursor -= present;
        else if (cursor >= first)
            cursor = first - 1;
        return present;
    }
    // Sorts stably; the cursor stays on its element.
    template <class Before> void Sort(Before before)
    {
        std::vector<std::size_t> order(elements.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        std::stable_sort(order.begin(), order.end(),
                         [&](std::size_t a, std::size_t b) { return before(elements[a], elements[b]); });
        std::vector<T> sorted;
        long moved = -1;
        for (std::size_t i = 0; i < order.size(); ++i)
        {
            sorted.push_back(elements[order[i]]);
            if (cursor >= 0 && order[i] == static_cast<std::size_t>(cursor))
                moved = static_cast<long>(i);
        }
        elements = std::move(sorted);
        cursor = moved;
    }
};

} // namespace quor::test
