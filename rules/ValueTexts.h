// Texts of cells that are dates or truth values.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace QuorUiCtr
{

struct DateValue
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// "2026-02-28", also with a time of the day: "2026-02-28 13:05" or "2026-02-28T13:05:09". Nothing for other
// texts and for days that no calendar has; years from 1601 to 9999.
std::optional<DateValue> ReadDate(std::wstring_view text);

// "1", "true", "yes", "on" and "0", "false", "no", "off", in whatever case. Nothing for other texts, also for
// an empty one.
std::optional<bool> ReadTruth(std::wstring_view text);

// The other one of the pair that a text is of, in its case: "Yes" becomes "No". `start` for an empty text;
// nothing for a text that is no truth value.
std::optional<std::wstring> OppositeTruth(std::wstring_view text, std::wstring_view start);

} // namespace QuorUiCtr
