// The text of a tool tip, which is its own format and fits into the buffer that the framework expects.
#pragma once

#include <cstddef>
#include <string>

namespace QuorUiCtr
{

// Units of the buffer of a tip, its terminator included.
constexpr std::size_t TipBufferLength = 20;

// The longest piece of a tip that is formatted at once, and the largest width or precision in it.
constexpr std::size_t LongestTipPiece = 64;
constexpr int LargestTipWidth = 64;

// Formats a piece with zeros as arguments: a percent sign, what belongs to its conversion, and the plain text
// behind it. The result is as long as what was written, zero characters included.
using TipFormatter = std::wstring (*)(const std::wstring& piece);

// Formats `tip` with itself as the format, so that "100%%" reads "100%", and cuts it to its buffer, never
// inside a surrogate pair. A zero character that a conversion writes ends the text. Each conversion is
// formatted alone and with limited numbers, because the platform's formatter may forget its own limit
// otherwise; none of that shows in the few units that a tip has.
std::wstring MakeTipText(const wchar_t* tip, TipFormatter format);

} // namespace QuorUiCtr
