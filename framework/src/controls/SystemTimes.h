// The times of the date controls as system times, and ranges of them.
#pragma once

#include "ATLComTime.h"
#include "fx/message.h"

namespace quorfx
{

// False for a time that has no such form.
inline bool ToSystemTime(const COleDateTime& time, SYSTEMTIME& result)
{
    return time.GetAsSystemTime(result);
}
inline bool ToSystemTime(const CTime& time, SYSTEMTIME& result)
{
    return time.GetTime() != 0 && time.GetAsSystemTime(result);
}

inline void SetNone(COleDateTime& time)
{
    time = COleDateTime();
    time.SetStatus(COleDateTime::null);
}
inline void SetNone(CTime& time)
{
    time = CTime();
}

// A lower and an upper end in the form of the controls' messages, with GDTR_ flags for the ends that are set.
struct SystemTimeRange
{
    SystemTimeRange() {}
    template <class Time> SystemTimeRange(const Time* lower, const Time* upper)
    {
        if (lower != nullptr && ToSystemTime(*lower, times[0]))
            flags |= GDTR_MIN;
        if (upper != nullptr && ToSystemTime(*upper, times[1]))
            flags |= GDTR_MAX;
    }

    // Either pointer may be NULL.
    template <class Time> void Store(Time* lower, Time* upper) const
    {
        StoreEnd(lower, times[0], GDTR_MIN);
        StoreEnd(upper, times[1], GDTR_MAX);
    }

    SYSTEMTIME times[2] = {};
    DWORD flags = 0;

private:
    template <class Time> void StoreEnd(Time* end, const SYSTEMTIME& time, DWORD flag) const
    {
        if (end == nullptr)
            return;
        if ((flags & flag) != 0)
            *end = Time(time);
        else
            SetNone(*end);
    }
};

// The limits of a control, by the messages that set and get them. The results are those of the messages.
template <class Time> BOOL SetRangeOf(HWND window, UINT message, const Time* lower, const Time* upper)
{
    const SystemTimeRange range(lower, upper);
    return Send<BOOL>(window, message, range.flags, range.times);
}

template <class Time> DWORD GetRangeOf(HWND window, UINT message, Time* lower, Time* upper)
{
    SystemTimeRange range;
    range.flags = Send<DWORD>(window, message, 0, range.times);
    range.Store(lower, upper);
    return range.flags;
}

} // namespace quorfx
