// Finding the fragment: by its comments, which programs set right, before the offsets, which many count
// wrong.
#include "rules/ClipboardFragment.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace QuorUiCtr
{
namespace
{

constexpr std::string_view FragmentBegin = "<!--StartFragment-->";
constexpr std::string_view FragmentFinish = "<!--EndFragment-->";

// The lines of the header, up to the page.
std::string_view HeaderOf(std::string_view block)
{
    constexpr std::string_view FirstName = "Version:";
    return block.starts_with(FirstName) ? block.substr(0, (std::min)(block.find('<'), block.size()))
                                        : std::string_view();
}

// The number that a line of the header gives; nothing for a line that is missing, negative, or beyond the
// block.
std::optional<std::size_t> OffsetOf(std::string_view header, std::string_view name, std::size_t last)
{
    std::size_t at = header.find(name);
    if (at == std::string_view::npos || (header[at - 1] != '\n' && header[at - 1] != '\r'))
        return std::nullopt;
    at += name.size();
    const std::size_t first = at;
    std::size_t offset = 0;
    for (; at < header.size() && header[at] >= '0' && header[at] <= '9' && offset <= last; ++at)
        offset = offset * 10 + static_cast<std::size_t>(header[at] - '0');
    return at > first && offset <= last ? std::optional(offset) : std::nullopt;
}

// What stands between the comments; nothing without both.
std::optional<std::string_view> BetweenComments(std::string_view page)
{
    const std::size_t begin = page.find(FragmentBegin);
    if (begin == std::string_view::npos)
        return std::nullopt;
    const std::size_t first = begin + FragmentBegin.size();
    const std::size_t end = page.rfind(FragmentFinish);
    if (end == std::string_view::npos || end < first)
        return std::nullopt;
    return page.substr(first, end - first);
}

} // namespace

ClipboardFragment FragmentOf(std::string_view block)
{
    const std::string_view header = HeaderOf(block);
    const auto pageEnd = OffsetOf(header, "EndHTML:", block.size());
    const auto first = OffsetOf(header, "StartFragment:", block.size());
    const auto end = OffsetOf(header, "EndFragment:", block.size());
    const bool hasOffsets = first && end && *first >= header.size() && *first <= *end;
    // What stands behind the first U+0000 is another's, unless the header counts it in.
    const std::size_t nul = (std::min)(block.find('\0'), block.size());
    const std::size_t counted = hasOffsets ? (std::max)(*end, pageEnd.value_or(0)) : 0;
    const std::size_t length = (std::max)({nul, counted, header.size()});
    const std::string_view page = block.substr(header.size(), length - header.size());
    if (const auto found = BetweenComments(page))
    {
        const auto place = static_cast<std::size_t>(found->data() - block.data());
        const bool isThere = hasOffsets && *first >= place - FragmentBegin.size() && *first <= place &&
                             *end >= place + found->size() &&
                             *end <= place + found->size() + FragmentFinish.size();
        return {*found, !header.empty() && !isThere};
    }
    if (hasOffsets)
        return {block.substr(*first, *end - *first), false};
    return {page, !header.empty()};
}

} // namespace QuorUiCtr
