// Array: a plain array that grows.
#pragma once

#include <cassert>
#include <cstddef>
#include <vector>

namespace QuorUiCtr
{

// Elements side by side in one buffer that belongs to the array and is freed with it: for numbers that are
// looked up by position and never moved about, where a list would spend two pointers on each.
//
// It is no Table: it has no cursor and no virtual operations, and asking for a position that does not exist
// is an error instead of a wish to grow. Lengths and positions are long, like those of the lists. T must be
// default constructible and copyable; a copy has elements of its own.
//
//     Array<long> widths(cols);               // cols elements, all 0
//     for (long i = 0; i < widths.GetNum(); ++i)
//         widths[i] = WidthOf(i);
template <class T> class Array
{
public:
    // Without elements, and without a buffer.
    Array() = default;
    // `n` default elements (0, null); none for a negative `n`.
    explicit Array(long n) { SetNum(n); }

    // The number of elements, which is not the room of the buffer: that may be larger.
    long GetNum() const { return static_cast<long>(elements.size()); }
    // GetNum() is 0.
    bool IsEmpty() const { return elements.empty(); }

    // Makes the array `n` elements long (0 for a negative `n`): cuts at the end or adds default elements.
    // Cutting keeps the buffer, for what comes next; Clear() frees it.
    void SetNum(long n) { elements.resize(n > 0 ? static_cast<std::size_t>(n) : 0); }

    // The element at the zero-based position `i`, which the caller keeps inside 0 to GetNum() - 1 (asserted).
    // The reference is valid until the array changes its length.
    T& operator[](long i)
    {
        assert(i >= 0 && i < GetNum());
        return elements[static_cast<std::size_t>(i)];
    }
    const T& operator[](long i) const
    {
        assert(i >= 0 && i < GetNum());
        return elements[static_cast<std::size_t>(i)];
    }

    // Adds at the end and returns the new element's position. Takes constant time on average; `element` may
    // be one of the array's own.
    long Append(const T& element)
    {
        elements.push_back(element);
        return GetNum() - 1;
    }

    // Removes all elements and frees the buffer.
    void Clear() { std::vector<T>().swap(elements); }

private:
    std::vector<T> elements;
};

} // namespace QuorUiCtr
