// Formats tool tips into the buffer that the framework expects.
#include "grid/window/TipAnswer.h"

#include "rules/TipText.h"

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

// The platform's formatter writes at most 1024 units and a terminator.
constexpr int FormatterLimit = 1025;

// Shows the tip in inactive windows too, where the framework knows the flag.
#ifdef TTF_ALWAYSTIP
constexpr UINT AlwaysTip = static_cast<UINT>(TTF_ALWAYSTIP);
#else
constexpr UINT AlwaysTip = 0;
#endif

// What the formatter reads as arguments. No piece can ask for more.
constexpr std::uint64_t Zeros[LongestTipPiece] = {};

va_list ZeroArguments()
{
    return reinterpret_cast<va_list>(const_cast<std::uint64_t*>(Zeros));
}

std::wstring FormatWithZeros(const std::wstring& piece)
{
    wchar_t formatted[FormatterLimit] = {};
    const int length = ::wvsprintfW(formatted, piece.c_str(), ZeroArguments());
    return std::wstring(formatted, static_cast<size_t>(std::clamp(length, 0, FormatterLimit - 1)));
}

// Null when there is no memory; the caller releases it with free().
wchar_t* MakeTipBuffer(const CString& tip)
{
    wchar_t* buffer = static_cast<wchar_t*>(std::malloc(TipBufferLength * sizeof(wchar_t)));
    if (buffer == nullptr)
        return nullptr;
    const std::wstring text = MakeTipText(tip, FormatWithZeros);
    std::wmemcpy(buffer, text.c_str(), text.length() + 1);
    return buffer;
}

} // namespace

INT_PTR AnswerTip(const CWnd& window, const CString& tip, INT_PTR id, UINT extraFlags, TOOLINFO* info)
{
    if (info == nullptr)
        return id;
    wchar_t* text = MakeTipBuffer(tip);
    if (text == nullptr)
        return -1;
    info->hwnd = window.GetSafeHwnd();
    info->uId = reinterpret_cast<UINT_PTR>(window.GetSafeHwnd());
    info->uFlags |= TTF_IDISHWND | TTF_NOTBUTTON | AlwaysTip | extraFlags;
    info->lpszText = text;
    return id;
}

} // namespace QuorUiCtr
