// Characters that HTML writes with an ampersand.
#pragma once

#include <cstddef>
#include <string_view>

namespace QuorUiCtr
{

struct HtmlEntity
{
    // How many bytes it takes; 0 for what is none.
    std::size_t length = 0;
    char32_t character = 0;
    // Written as "&nbsp;" and not with its number.
    bool isNamedBlank = false;
};

// What the text, which begins with an ampersand, names: "&eacute;", "&eacute" or "&#233;".
HtmlEntity EntityAt(std::string_view text);

} // namespace QuorUiCtr
