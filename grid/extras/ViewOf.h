// ViewOf, TextOf: texts of the framework for the rules, which know no framework, and back.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <string_view>

namespace QuorUiCtr
{

// Good until the text is changed.
inline std::wstring_view ViewOf(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

inline CString TextOf(std::wstring_view view)
{
    return CString(view.data(), static_cast<int>(view.size()));
}

} // namespace QuorUiCtr
