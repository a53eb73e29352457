// Random texts.
#pragma once

namespace quor::fuzz
{

// A character: mostly plain, sometimes a control character, a half of a pair, a mark that combines.
wchar_t AnyCharacter();
// A text of at most `longest` characters, valid until the next call but three.
const wchar_t* AnyText(long longest = 24);

} // namespace quor::fuzz
