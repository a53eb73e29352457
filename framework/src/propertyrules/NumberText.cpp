// Numbers as users type them.
#include "propertyrules/NumberText.h"

#include <cerrno>
#include <cmath>
#include <cwchar>

namespace quorfx
{

std::optional<long long> ReadInteger(const std::wstring& text, long long least, long long most)
{
    wchar_t* end = nullptr;
    errno = 0;
    const long long number = std::wcstoll(text.c_str(), &end, 10);
    if (end == text.c_str() || errno == ERANGE || number < least || number > most)
        return std::nullopt;
    return number;
}

std::optional<double> ReadReal(const std::wstring& text)
{
    wchar_t* end = nullptr;
    const double number = std::wcstod(text.c_str(), &end);
    if (end == text.c_str() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

} // namespace quorfx
