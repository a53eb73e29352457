// Numbers as users type them: what counts is the number at the beginning of a text.
#pragma once

#include <optional>
#include <string>

namespace quorfx
{

// Nothing when there is none, or none from `least` to `most`.
std::optional<long long> ReadInteger(const std::wstring& text, long long least, long long most);
// Nothing when there is none, or one that is not finite.
std::optional<double> ReadReal(const std::wstring& text);

} // namespace quorfx
