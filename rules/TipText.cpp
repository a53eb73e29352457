// The text of a tool tip.
#include "rules/TipText.h"

#include <algorithm>
#include <cwchar>

namespace QuorUiCtr
{

namespace
{

bool IsDigit(wchar_t unit)
{
    return unit >= L'0' && unit <= L'9';
}

// A number of a conversion: its leading zero, which is a flag, and its value up to the limit.
std::wstring LimitedNumber(const wchar_t*& unit)
{
    std::wstring number(*unit == L'0' ? L"0" : L"");
    int value = 0;
    for (; IsDigit(*unit); ++unit)
        value = (std::min)(value * 10 + (*unit - L'0'), LargestTipWidth);
    return value == 0 ? number : number + std::to_wstring(value);
}

// The conversion at `unit` with limited width and precision, and the text behind it up to the next
// conversion.
std::wstring TakeConversion(const wchar_t*& unit)
{
    std::wstring piece(1, *unit++);
    if (*unit == L'%')
        return piece + *unit++;
    while (IsDigit(*unit) || (*unit != L'\0' && std::wcschr(L"-+#. *", *unit) != nullptr))
    {
        if (IsDigit(*unit))
            piece += LimitedNumber(unit);
        else
            piece += *unit++;
    }
    while (*unit != L'\0' && *unit != L'%')
        piece += *unit++;
    return piece.substr(0, LongestTipPiece);
}

// Appends what a piece became. Returns false when a zero character in it ends the whole text.
bool AppendFormatted(const std::wstring& formatted, std::wstring& text)
{
    const std::size_t end = formatted.find(L'\0');
    text.append(formatted, 0, end);
    return end == std::wstring::npos;
}

bool IsHighSurrogate(wchar_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

// The beginning of `text` that fits a tip.
std::wstring CutToTip(const std::wstring& text)
{
    std::size_t length = (std::min)(text.length(), TipBufferLength - 1);
    if (length < text.length() && IsHighSurrogate(text[length - 1]))
        --length;
    return text.substr(0, length);
}

} // namespace

std::wstring MakeTipText(const wchar_t* tip, TipFormatter format)
{
    std::wstring text;
    bool more = true;
    for (const wchar_t* unit = tip; more && *unit != L'\0' && text.length() < TipBufferLength;)
    {
        if (*unit == L'%')
            more = AppendFormatted(format(TakeConversion(unit)), text);
        else
            text += *unit++;
    }
    return CutToTip(text);
}

} // namespace QuorUiCtr
