// Digits of texts.
#pragma once

namespace QuorUiCtr
{

// One of 0 to 9, and no digit of another script.
constexpr bool IsDecimalDigit(wchar_t unit)
{
    return unit >= L'0' && unit <= L'9';
}

} // namespace QuorUiCtr
