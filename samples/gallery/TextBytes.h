// Text as the bytes of files; knows nothing of windows or of the framework.
#pragma once

#include <string>
#include <string_view>

namespace gallery
{
// Decodes all bytes into `text`: UTF-8, with or without a byte order mark, or UTF-16 with one. Where wchar_t
// has 16 bits, characters beyond U+FFFF become surrogate pairs. Returns an empty text, or what is wrong with
// the bytes; a NUL character is wrong too.
std::wstring DecodeText(std::string_view bytes, std::wstring& text);

// Appends `text` as UTF-8; half a surrogate pair becomes U+FFFD.
void AppendAsUtf8(std::string& bytes, std::wstring_view text);
} // namespace gallery
