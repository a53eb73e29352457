// Looking rows up by their address, and the order of one sequence in terms of another.
#include "grid/model/RowPlaces.h"

namespace QuorUiCtr
{

RowPlaces::RowPlaces(std::span<TGGridRow* const> sequence) : rows(sequence)
{
    while ((std::size_t{1} << bits) < 2 * rows.size())
        ++bits;
    slots.resize(std::size_t{1} << bits);
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i] == nullptr)
            nulls.push_back(static_cast<long>(i));
        else
            slots[SlotOf(rows[i])] = static_cast<std::uint32_t>(i + 1);
}

// The slot of a row, or the free one where it would be.
std::size_t RowPlaces::SlotOf(const TGGridRow* row) const
{
    constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15U;
    const std::uint64_t address = reinterpret_cast<std::uintptr_t>(row);
    std::size_t slot = static_cast<std::size_t>(((address >> 4) * Spread) >> (64 - bits));
    while (slots[slot] != 0 && rows[slots[slot] - 1] != row)
        slot = (slot + 1) & (slots.size() - 1);
    return slot;
}

std::optional<std::vector<long>> RowPlaces::OrderOf(std::span<TGGridRow* const> after) const
{
    if (after.size() != rows.size())
        return std::nullopt;
    std::vector<long> order;
    order.reserve(after.size());
    std::vector<bool> taken(rows.size());
    std::size_t nextNull = 0;
    for (const TGGridRow* row : after)
    {
        long place = -1;
        if (row != nullptr)
            place = static_cast<long>(slots[SlotOf(row)]) - 1;
        else if (nextNull < nulls.size())
            place = nulls[nextNull++];
        if (place < 0 || taken[static_cast<std::size_t>(place)])
            return std::nullopt;
        taken[static_cast<std::size_t>(place)] = true;
        order.push_back(place);
    }
    return order;
}

} // namespace QuorUiCtr
