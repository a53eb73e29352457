// UTF-8, whatever the size of wchar_t.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace QuorUiCtr
{

constexpr char32_t ReplacementCharacter = 0xFFFD;

// Takes the next character off a text that is not empty. A half of a surrogate pair, and a number that is no
// character, come as U+FFFD with `isWrong` set; it is not cleared.
char32_t TakeCharacter(std::wstring_view& text, bool& isWrong);
// The same of bytes: those that begin a character and do not end it become one U+FFFD, any other one each.
char32_t TakeUtf8(std::string_view& bytes, bool& isWrong);

void AppendCharacter(std::wstring& text, char32_t character);
void AppendUtf8(std::string& bytes, char32_t character);

// A whole text in the other form.
std::string ToUtf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view bytes);
// Whether all of the bytes are UTF-8, which texts in other encodings hardly ever are unless they are ASCII.
bool IsUtf8(std::string_view bytes);

} // namespace QuorUiCtr
