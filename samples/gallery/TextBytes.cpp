// Text as bytes: decoding of UTF-8 and UTF-16, encoding as UTF-8.
#include "TextBytes.h"

#include <cstddef>
#include <cstdint>

namespace gallery
{
namespace
{
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Utf16LittleMark = "\xFF\xFE";
constexpr std::string_view Utf16BigMark = "\xFE\xFF";

bool StartsWith(std::string_view bytes, std::string_view start)
{
    return bytes.substr(0, start.size()) == start;
}

// The length of the UTF-8 sequence that a lead byte announces, or 0 when it announces none.
std::size_t SequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// Decodes the sequence at the start of the bytes. Its length is 0 when it is malformed, overlong, cut off, a
// surrogate or beyond U+10FFFF.
struct Decoded
{
    std::uint32_t codePoint;
    std::size_t length;
};

Decoded DecodeSequence(std::string_view bytes)
{
    static constexpr std::uint32_t leadMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    static constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(bytes.front());
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || length > bytes.size())
        return {0, 0};
    std::uint32_t codePoint = lead & leadMask[length];
    for (std::size_t i = 1; i < length; ++i)
    {
        const auto next = static_cast<unsigned char>(bytes[i]);
        if ((next & 0xC0) != 0x80)
            return {0, 0};
        codePoint = codePoint << 6 | (next & 0x3Fu);
    }
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest[length] || codePoint > 0x10FFFF || isSurrogate)
        return {0, 0};
    return {codePoint, length};
}

void AppendCodePoint(std::wstring& text, std::uint32_t codePoint)
{
    if (sizeof(wchar_t) > 2 || codePoint < 0x10000)
    {
        text.push_back(static_cast<wchar_t>(codePoint));
        return;
    }
    text.push_back(static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
    text.push_back(static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
}

std::size_t LineOfByte(std::string_view bytes, std::size_t offset)
{
    std::size_t line = 1;
    for (std::size_t i = 0; i < offset; ++i)
    {
        const bool isFirstOfPair = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
        if (bytes[i] == '\n' || (bytes[i] == '\r' && !isFirstOfPair))
            ++line;
    }
    return line;
}

std::wstring BadByte(std::string_view bytes, std::size_t offset, const wchar_t* reason)
{
    return std::wstring(reason) + L" at byte " + std::to_wstring(offset + 1) + L" (line " +
           std::to_wstring(LineOfByte(bytes, offset)) + L")";
}

// Decodes all bytes into the text. Returns an empty string, or what is wrong with the bytes.
std::wstring DecodeUtf8(std::string_view bytes, std::wstring& text)
{
    text.reserve(bytes.size());
    std::size_t offset = StartsWith(bytes, Utf8Mark) ? Utf8Mark.size() : 0;
    while (offset < bytes.size())
    {
        const Decoded decoded = DecodeSequence(bytes.substr(offset));
        if (decoded.length == 0)
            return BadByte(bytes, offset, L"not UTF-8");
        if (decoded.codePoint == 0)
            return BadByte(bytes, offset, L"not text: a NUL");
        AppendCodePoint(text, decoded.codePoint);
        offset += decoded.length;
    }
    return {};
}

bool IsHighSurrogate(std::uint32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// The 16-bit unit at an offset.
std::uint32_t UnitAt(std::string_view bytes, std::size_t offset, bool littleEndian)
{
    const auto first = static_cast<unsigned char>(bytes[offset]);
    const auto second = static_cast<unsigned char>(bytes[offset + 1]);
    return littleEndian ? first | second << 8u : first << 8u | second;
}

std::wstring DecodeUtf16(std::string_view bytes, bool littleEndian, std::wstring& text)
{
    text.reserve(bytes.size() / 2);
    if (bytes.size() % 2 != 0)
        return L"not UTF-16: half a character at the end";
    for (std::size_t offset = Utf16LittleMark.size(); offset < bytes.size(); offset += 2)
    {
        const std::uint32_t unit = UnitAt(bytes, offset, littleEndian);
        const bool hasNext = offset + 2 < bytes.size();
        const std::uint32_t next = hasNext ? UnitAt(bytes, offset + 2, littleEndian) : 0;
        if (unit == 0)
            return L"not text: a NUL at byte " + std::to_wstring(offset + 1);
        if (IsLowSurrogate(unit) || (IsHighSurrogate(unit) && !IsLowSurrogate(next)))
            return L"not UTF-16 at byte " + std::to_wstring(offset + 1);
        if (IsHighSurrogate(unit))
            offset += 2;
        AppendCodePoint(text,
                        IsHighSurrogate(unit) ? 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00) : unit);
    }
    return {};
}

void AppendUtf8(std::string& bytes, std::uint32_t codePoint)
{
    const auto append = [&bytes](std::uint32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80)
        return append(codePoint);
    if (codePoint < 0x800)
        append(0xC0 | codePoint >> 6);
    else if (codePoint < 0x10000)
        append(0xE0 | codePoint >> 12);
    else
        append(0xF0 | codePoint >> 18);
    if (codePoint >= 0x10000)
        append(0x80 | (codePoint >> 12 & 0x3F));
    if (codePoint >= 0x800)
        append(0x80 | (codePoint >> 6 & 0x3F));
    append(0x80 | (codePoint & 0x3F));
}
} // namespace

std::wstring DecodeText(std::string_view bytes, std::wstring& text)
{
    if (StartsWith(bytes, Utf16LittleMark))
        return DecodeUtf16(bytes, true, text);
    if (StartsWith(bytes, Utf16BigMark))
        return DecodeUtf16(bytes, false, text);
    return DecodeUtf8(bytes, text);
}

void AppendAsUtf8(std::string& bytes, std::wstring_view text)
{
    constexpr std::uint32_t Replacement = 0xFFFD;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        auto codePoint = static_cast<std::uint32_t>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<std::uint32_t>(text[i + 1]) : 0;
        if (IsHighSurrogate(codePoint) && IsLowSurrogate(next))
        {
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (next - 0xDC00);
            ++i;
        }
        else if (IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint))
            codePoint = Replacement;
        AppendUtf8(bytes, codePoint);
    }
}
} // namespace gallery
