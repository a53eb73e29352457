// Finds among many texts the few that can be the widest ones, so that only these need be measured.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace QuorUiCtr
{

// Keeps for each length the texts whose estimated widths are the largest: what is shown for a text may be
// longer or shorter than the text, but is so alike for texts of one length.
class WidestTexts
{
public:
    // How many are kept of a length, and from which length on lengths are one.
    static constexpr std::size_t PerLength = 4;
    static constexpr std::size_t Lengths = 64;

    // A text of `length` characters that is about `estimate` wide; `item` is the caller's number for it.
    void Add(long item, std::size_t length, long estimate);
    // The items that can be widest, in no order.
    std::vector<long> Items() const;

private:
    struct Entry
    {
        long item;
        long estimate;
    };
    // The entries of one length, the widest one first.
    struct Entries
    {
        std::array<Entry, PerLength> entries;
        std::size_t number = 0;
    };
    std::array<Entries, Lengths> lengths{};
};

} // namespace QuorUiCtr
