// Texts that are shortened to a width, with dots for what is left out.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace QuorUiCtr
{

// What stands for the part that is left out.
inline constexpr std::wstring_view Dots = L"...";

// `text` without its end, or with `inMiddle` without its middle, so that `widthOf` a text (a function of a
// std::wstring that gives pixels, and no less for more characters) is at most `width`; as it is when it fits,
// and at least the dots. Surrogate pairs stay together.
template <class WidthOf>
std::wstring Shortened(std::wstring_view text, bool inMiddle, long width, WidthOf widthOf)
{
    std::wstring whole(text);
    if (widthOf(whole) <= width)
        return whole;
    const auto isSecondHalf = [text](std::size_t i) {
        return i < text.size() && text[i] >= 0xDC00 && text[i] <= 0xDFFF;
    };
    const auto keeping = [&](std::size_t kept) {
        std::size_t head = inMiddle ? (kept + 1) / 2 : kept;
        std::size_t tail = text.size() - (kept - head);
        head -= isSecondHalf(head) ? 1 : 0;
        tail += isSecondHalf(tail) ? 1 : 0;
        return std::wstring(text.substr(0, head)).append(Dots).append(text.substr(tail));
    };
    std::size_t fits = 0;
    std::size_t tooMany = text.size();
    while (tooMany - fits > 1)
    {
        const std::size_t middle = (fits + tooMany) / 2;
        (widthOf(keeping(middle)) <= width ? fits : tooMany) = middle;
    }
    return keeping(fits);
}

} // namespace QuorUiCtr
