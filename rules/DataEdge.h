// Where a jump over cells ends: at the edge of the data.
#pragma once

namespace QuorUiCtr
{

// The index at which a jump from `from` in direction `step` (1 or -1) ends, within 0 to `last`. `isFull` says
// whether there is something at an index. From inside a run of full places, at its end; else at the next full
// place, or at the last one when there is none.
template <class IsFull> long DataEdge(long from, long step, long last, IsFull isFull)
{
    const auto inside = [last](long index) { return index >= 0 && index <= last; };
    long place = from + step;
    if (!inside(place))
        return from;
    if (isFull(from) && isFull(place))
    {
        while (inside(place + step) && isFull(place + step))
            place += step;
        return place;
    }
    while (inside(place + step) && !isFull(place))
        place += step;
    return place;
}

} // namespace QuorUiCtr
