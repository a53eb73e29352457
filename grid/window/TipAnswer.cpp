// Formats tool tips into the buffer that the framework expects.
#include "grid/window/TipAnswer.h"

#include <algorithm>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <string>

namespace QuorUiCtr
{

namespace
{

// The platform's formatter writes at most 1024 units and a terminator, but forgets that limit when a format
// combines prefixes, widths and precisions. Each conversion is therefore formatted alone, in a piece of
// limited length and with a limited width, none of which shows in the few units that a tip has.
const int formatterLimit = 1025;
const int pieceLimit = 64;
const int widthLimit = 64;

// Shows the tip in inactive windows too, where the framework knows the flag.
#ifdef TTF_ALWAYSTIP
const UINT alwaysTip = static_cast<UINT>(TTF_ALWAYSTIP);
#else
const UINT alwaysTip = 0;
#endif

// What the formatter reads as arguments. No piece can ask for more.
const std::uint64_t zeroArguments[pieceLimit] = {};

va_list ZeroArguments()
{
    return reinterpret_cast<va_list>(const_cast<std::uint64_t*>(zeroArguments));
}

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
        value = (std::min)(value * 10 + (*unit - L'0'), widthLimit);
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
    return piece.substr(0, pieceLimit);
}

// Appends a formatted piece. Returns false when a zero character in it ends the whole text.
bool AppendConversion(const std::wstring& piece, std::wstring& text)
{
    wchar_t formatted[formatterLimit] = {};
    const int length = ::wvsprintfW(formatted, piece.c_str(), ZeroArguments());
    text += formatted;
    return std::wcslen(formatted) == static_cast<size_t>(length);
}

bool IsHighSurrogate(wchar_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

// The beginning of `text` that fits a tip.
std::wstring CutToTip(const std::wstring& text)
{
    size_t length = std::min<size_t>(text.length(), tipBufferLength - 1);
    if (length < text.length() && IsHighSurrogate(text[length - 1]))
        --length;
    return text.substr(0, length);
}

std::wstring FormatTip(const wchar_t* unit)
{
    std::wstring text;
    bool more = true;
    while (more && *unit != L'\0' && text.length() < tipBufferLength)
    {
        if (*unit == L'%')
            more = AppendConversion(TakeConversion(unit), text);
        else
            text += *unit++;
    }
    return CutToTip(text);
}

} // namespace

wchar_t* MakeTipText(const CString& tip)
{
    wchar_t* buffer = static_cast<wchar_t*>(std::malloc(tipBufferLength * sizeof(wchar_t)));
    if (buffer == nullptr)
        return nullptr;
    const std::wstring text = FormatTip(tip);
    std::wmemcpy(buffer, text.c_str(), text.length() + 1);
    return buffer;
}

INT_PTR AnswerTip(const CWnd& window, const CString& tip, INT_PTR id, UINT extraFlags, TOOLINFO* info)
{
    if (info == nullptr)
        return id;
    wchar_t* text = MakeTipText(tip);
    if (text == nullptr)
        return -1;
    info->hwnd = window.GetSafeHwnd();
    info->uId = reinterpret_cast<UINT_PTR>(window.GetSafeHwnd());
    info->uFlags |= TTF_IDISHWND | TTF_NOTBUTTON | alwaysTip | extraFlags;
    info->lpszText = text;
    return id;
}

} // namespace QuorUiCtr
