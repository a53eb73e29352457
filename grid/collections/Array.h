// Array: a plain array that grows.
#pragma once

#include <cassert>
#include <cstddef>
#include <vector>

namespace QuorUiCtr
{

// Elements side by side in one buffer, which is freed on destruction. No virtual operations, no cursor.
template <class T> class Array
{
public:
    Array() = default;
    // `n` default elements.
    explicit Array(long n) { SetNum(n); }

    long GetNum() const { return static_cast<long>(elements.size()); }
    bool IsEmpty() const { return elements.empty(); }

    // Makes the array `n` elements long (0 for a negative `n`): cuts at the end or adds default elements.
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

    // Adds at the end and returns the new element's position.
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
