// Keeps the widest texts of each length.
#include "rules/WidestTexts.h"

#include <algorithm>

namespace QuorUiCtr
{

void WidestTexts::Add(long item, std::size_t length, long estimate)
{
    Entries& kept = lengths[(std::min)(length, Lengths - 1)];
    if (kept.number == PerLength && kept.entries.back().estimate >= estimate)
        return;
    std::size_t place = kept.number < PerLength ? kept.number++ : PerLength - 1;
    for (; place > 0 && kept.entries[place - 1].estimate < estimate; --place)
        kept.entries[place] = kept.entries[place - 1];
    kept.entries[place] = {item, estimate};
}

std::vector<long> WidestTexts::Items() const
{
    std::vector<long> items;
    for (const Entries& kept : lengths)
        for (std::size_t i = 0; i < kept.number; ++i)
            items.push_back(kept.entries[i].item);
    return items;
}

} // namespace QuorUiCtr
