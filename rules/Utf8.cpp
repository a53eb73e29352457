// Characters as UTF-8, and as UTF-16 or UTF-32 in texts of wchar_t.
#include "rules/Utf8.h"

namespace QuorUiCtr
{
namespace
{

constexpr char32_t LastCharacter = 0x10FFFF;

constexpr bool IsHalf(char32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

// What the first byte of a character says of the others.
struct Sequence
{
    int others = 0;
    char32_t bits = 0;
    // The range of the byte that follows: no longer forms, no halves of pairs, nothing beyond the last
    // character.
    unsigned char least = 0x80;
    unsigned char most = 0xBF;
};

Sequence SequenceOf(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return {1, static_cast<char32_t>(lead & 0x1F)};
    if (lead >= 0xE0 && lead <= 0xEF)
        return {2, static_cast<char32_t>(lead & 0x0F), static_cast<unsigned char>(lead == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(lead == 0xED ? 0x9F : 0xBF)};
    if (lead >= 0xF0 && lead <= 0xF4)
        return {3, static_cast<char32_t>(lead & 0x07), static_cast<unsigned char>(lead == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(lead == 0xF4 ? 0x8F : 0xBF)};
    return {};
}

} // namespace

char32_t TakeCharacter(std::wstring_view& text, bool& isWrong)
{
    const auto code = static_cast<char32_t>(text.front());
    text.remove_prefix(1);
    if (!IsHalf(code) && code <= LastCharacter)
        return code;
    if (code <= 0xDBFF && !text.empty())
        if (const auto second = static_cast<char32_t>(text.front()); second >= 0xDC00 && second <= 0xDFFF)
        {
            text.remove_prefix(1);
            return 0x10000 + ((code - 0xD800) << 10) + (second - 0xDC00);
        }
    isWrong = true;
    return ReplacementCharacter;
}

char32_t TakeUtf8(std::string_view& bytes, bool& isWrong)
{
    const auto lead = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    if (lead < 0x80)
        return lead;
    Sequence sequence = SequenceOf(lead);
    isWrong = isWrong || sequence.others == 0;
    if (sequence.others == 0)
        return ReplacementCharacter;
    for (; sequence.others > 0; --sequence.others)
    {
        const auto next = static_cast<unsigned char>(bytes.empty() ? 0 : bytes.front());
        if (next < sequence.least || next > sequence.most)
        {
            isWrong = true;
            return ReplacementCharacter;
        }
        sequence.bits = sequence.bits << 6 | (next & 0x3F);
        sequence.least = 0x80;
        sequence.most = 0xBF;
        bytes.remove_prefix(1);
    }
    return sequence.bits;
}

void AppendCharacter(std::wstring& text, char32_t character)
{
    if (sizeof(wchar_t) > 2 || character < 0x10000)
    {
        text += static_cast<wchar_t>(character);
        return;
    }
    text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
    text += static_cast<wchar_t>(0xDC00 + (character & 0x3FF));
}

void AppendUtf8(std::string& bytes, char32_t character)
{
    const auto follow = [&](int shift) { bytes += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80)
    {
        bytes += static_cast<char>(character);
        return;
    }
    if (character < 0x800)
        bytes += static_cast<char>(0xC0 | (character >> 6));
    else if (character < 0x10000)
    {
        bytes += static_cast<char>(0xE0 | (character >> 12));
        follow(6);
    }
    else
    {
        bytes += static_cast<char>(0xF0 | (character >> 18));
        follow(12);
        follow(6);
    }
    follow(0);
}

std::string ToUtf8(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    bool isWrong = false;
    while (!text.empty())
        AppendUtf8(bytes, TakeCharacter(text, isWrong));
    return bytes;
}

std::wstring FromUtf8(std::string_view bytes)
{
    std::wstring text;
    text.reserve(bytes.size());
    bool isWrong = false;
    while (!bytes.empty())
        AppendCharacter(text, TakeUtf8(bytes, isWrong));
    return text;
}

bool IsUtf8(std::string_view bytes)
{
    bool isWrong = false;
    while (!bytes.empty() && !isWrong)
        TakeUtf8(bytes, isWrong);
    return !isWrong;
}

} // namespace QuorUiCtr
