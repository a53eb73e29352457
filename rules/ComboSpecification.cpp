// The compact text of a combo property.
#include "rules/ComboSpecification.h"

#include <cstddef>

namespace QuorUiCtr
{

namespace
{

// What is between the first `open` and the first `close` of `rest`, of which the part behind `close` stays.
std::optional<std::wstring_view> TakeBetween(std::wstring_view& rest, wchar_t open, wchar_t close)
{
    const std::size_t first = rest.find(open);
    const std::size_t last = rest.find(close);
    if (first == std::wstring_view::npos || last == std::wstring_view::npos || last < first)
        return std::nullopt;
    const std::wstring_view between = rest.substr(first + 1, last - first - 1);
    rest.remove_prefix(last + 1);
    return between;
}

std::vector<std::wstring> SplitAtCommas(std::wstring_view text)
{
    std::vector<std::wstring> parts;
    for (std::size_t comma = text.find(L','); comma != std::wstring_view::npos; comma = text.find(L','))
    {
        parts.emplace_back(text.substr(0, comma));
        text.remove_prefix(comma + 1);
    }
    parts.emplace_back(text);
    return parts;
}

} // namespace

std::optional<ComboSpecification> ParseComboSpecification(std::wstring_view text)
{
    const std::size_t comma = text.find(L',');
    if (comma == std::wstring_view::npos)
        return std::nullopt;
    std::wstring_view rest = text.substr(comma + 1);
    const std::optional<std::wstring_view> options = TakeBetween(rest, L'<', L'>');
    if (!options)
        return std::nullopt;
    const std::optional<std::wstring_view> description = TakeBetween(rest, L'[', L']');
    if (!description)
        return std::nullopt;
    return ComboSpecification{std::wstring(text.substr(0, comma)), SplitAtCommas(*options),
                              std::wstring(*description)};
}

} // namespace QuorUiCtr
