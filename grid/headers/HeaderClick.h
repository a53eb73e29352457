// What a click on a header box does to the selection: one rule for rows and columns.
#pragma once

namespace QuorUiCtr
{

enum class HeaderClick
{
    SelectOnly, // this one and no other
    Add,
    Extend, // everything up to this one
    TakeOut,
    Drag // the selection
};

constexpr HeaderClick HeaderClickOn(bool isSelected, bool control, bool shift)
{
    if (isSelected)
        return control ? HeaderClick::TakeOut : HeaderClick::Drag;
    if (shift)
        return HeaderClick::Extend;
    return control ? HeaderClick::Add : HeaderClick::SelectOnly;
}

// Calls `select` for each index between the run from `first` to `last` and `to`, which lies outside of it,
// `to` included, from the run outwards.
template <class Select> void ExtendRun(long first, long last, long to, Select select)
{
    for (long i = last + 1; i <= to; ++i)
        select(i);
    for (long i = first - 1; i >= to; --i)
        select(i);
}

} // namespace QuorUiCtr
