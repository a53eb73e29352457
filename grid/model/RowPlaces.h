// RowPlaces: where rows stand in a sequence, for sequences that hold the same rows in another order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace QuorUiCtr
{

class TGGridRow;

// A table of addresses: rows are not looked at, so that any pointer may be asked for. Empty slots (null) may
// stand in the sequence several times.
class RowPlaces
{
public:
    explicit RowPlaces(std::span<TGGridRow* const> sequence);

    // Where each of the rows `after` stands in the sequence; nothing when they are not the same rows.
    std::optional<std::vector<long>> OrderOf(std::span<TGGridRow* const> after) const;

private:
    std::size_t SlotOf(const TGGridRow* row) const;

    std::span<TGGridRow* const> rows;
    // A power of two, at least twice as many as there are rows.
    unsigned bits = 1;
    // One more than the place of a row; 0: free.
    std::vector<std::uint32_t> slots;
    std::vector<long> nulls;
};

} // namespace QuorUiCtr
