// Turns an argument of a printf-like call into what may pass through "...": strings become plain pointers.
#pragma once

#include "fx/config.h"

class CStringW;
class CStringA;

// The conversion behind CString::Format, CString::AppendFormat and TRACE. Passing a string object itself
// through
// "..." would pass its address, so strings are replaced by their text; other class types do not compile.
template <typename T> inline T AfxFormatArgument(T value)
{
    static_assert(std::is_scalar<T>::value,
                  "only numbers, enumerations, pointers and CString can be formatted");
    return value;
}
inline LPCWSTR AfxFormatArgument(const CStringW& text);
inline LPCSTR AfxFormatArgument(const CStringA& text);
