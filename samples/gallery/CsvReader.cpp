// The CSV reader: UTF-8 decoding, the line parser with its recovery after bad lines, and file reading.
#include "CsvReader.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace gallery
{
namespace
{
CsvTable Refused(std::wstring reason)
{
    CsvTable table;
    table.errors.push_back(std::move(reason));
    return table;
}

bool IsLineBreak(wchar_t c)
{
    return c == L'\r' || c == L'\n';
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
    static constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    text.reserve(bytes.size());
    std::size_t offset = bytes.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
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

// Walks over the text once, field by field; only the lines under a quote that is not closed properly are read
// again.
class CsvParser
{
public:
    explicit CsvParser(std::wstring_view wholeText) : text(wholeText) {}

    CsvTable Parse();

private:
    struct Place
    {
        std::size_t offset;
        std::size_t line;
    };

    bool IsAtEnd() const { return place.offset == text.size(); }
    bool IsAt(wchar_t c) const { return !IsAtEnd() && text[place.offset] == c; }
    bool IsAtEndOfField() const { return IsAtEnd() || IsAt(L',') || IsLineBreak(text[place.offset]); }
    bool IsBlankLine() const;
    void StepOverLineBreak();
    void SkipRestOfLine();

    void ReadLine();
    bool ReadFields(CsvRow& fields);
    bool ReadField(std::wstring& field);
    bool ReadPlainField(std::wstring& field);
    bool ReadQuotedField(std::wstring& field);
    void AppendQuotedUnit(std::wstring& field);
    void Take(std::size_t line, CsvRow&& fields);

    void Report(std::size_t line, const std::wstring& reason);
    bool FailAt(const Place& badLine, const std::wstring& reason);

    std::wstring_view text;
    Place place{0, 1};
    CsvTable table;
};

CsvTable CsvParser::Parse()
{
    while (!IsAtEnd() && !(table.header.empty() && !table.errors.empty()))
    {
        if (IsBlankLine())
            SkipRestOfLine();
        else
            ReadLine();
    }
    if (table.header.empty() && table.errors.empty())
        return Refused(L"the file is empty");
    return std::move(table);
}

bool CsvParser::IsBlankLine() const
{
    const std::size_t end = text.find_first_not_of(L" \t", place.offset);
    return end == std::wstring_view::npos || IsLineBreak(text[end]);
}

void CsvParser::StepOverLineBreak()
{
    place.offset += text.substr(place.offset, 2) == L"\r\n" ? 2 : 1;
    ++place.line;
}

void CsvParser::SkipRestOfLine()
{
    while (!IsAtEnd() && !IsLineBreak(text[place.offset]))
        ++place.offset;
    if (!IsAtEnd())
        StepOverLineBreak();
}

void CsvParser::ReadLine()
{
    const std::size_t line = place.line;
    CsvRow fields;
    if (ReadFields(fields))
        Take(line, std::move(fields));
}

// Leaves the place at the start of the next line to read, whether the fields are good or not.
bool CsvParser::ReadFields(CsvRow& fields)
{
    for (;;)
    {
        if (!ReadField(fields.emplace_back()))
            return false;
        if (!IsAt(L','))
            break;
        ++place.offset;
    }
    SkipRestOfLine();
    return true;
}

bool CsvParser::ReadField(std::wstring& field)
{
    return IsAt(L'"') ? ReadQuotedField(field) : ReadPlainField(field);
}

bool CsvParser::ReadPlainField(std::wstring& field)
{
    const std::size_t start = place.offset;
    while (!IsAtEndOfField())
    {
        if (IsAt(L'"'))
            return FailAt(place, L"a quote inside a field that does not start with one");
        ++place.offset;
    }
    field = text.substr(start, place.offset - start);
    return true;
}

// A field that goes wrong may have swallowed good lines because its closing quote is missing, so reading goes
// on with the line below its opening quote. Those lines hold no single quotes, so none of them is read a
// third time.
bool CsvParser::ReadQuotedField(std::wstring& field)
{
    const Place opening = place;
    ++place.offset;
    while (!IsAtEnd() && !(IsAt(L'"') && text.substr(place.offset, 2) != L"\"\""))
        AppendQuotedUnit(field);
    if (IsAtEnd())
        return FailAt(opening, L"a quote is never closed");
    ++place.offset;
    if (IsAtEndOfField())
        return true;
    if (place.line == opening.line)
        return FailAt(opening, L"text after a closing quote");
    return FailAt(opening,
                  L"the quote opened here closes inside a field on line " + std::to_wstring(place.line));
}

// Appends a character, a doubled quote as one, or a line break as it is.
void CsvParser::AppendQuotedUnit(std::wstring& field)
{
    const std::size_t start = place.offset;
    if (IsLineBreak(text[start]))
    {
        StepOverLineBreak();
        field += text.substr(start, place.offset - start);
        return;
    }
    field.push_back(text[start]);
    place.offset += IsAt(L'"') ? 2 : 1;
}

void CsvParser::Take(std::size_t line, CsvRow&& fields)
{
    const std::size_t expected = table.header.size();
    if (expected == 0)
        table.header = std::move(fields);
    else if (fields.size() == expected)
        table.rows.push_back(std::move(fields));
    else
        Report(line, std::to_wstring(fields.size()) + (fields.size() == 1 ? L" field" : L" fields") +
                         L", expected " + std::to_wstring(expected));
}

void CsvParser::Report(std::size_t line, const std::wstring& reason)
{
    table.errors.push_back(L"line " + std::to_wstring(line) + L": " + reason);
}

bool CsvParser::FailAt(const Place& badLine, const std::wstring& reason)
{
    Report(badLine.line, reason);
    place = badLine;
    SkipRestOfLine();
    return false;
}
} // namespace

CsvTable ParseCsv(std::string_view bytes)
{
    std::wstring text;
    std::wstring problem = DecodeUtf8(bytes, text);
    if (!problem.empty())
        return Refused(std::move(problem));
    return CsvParser(text).Parse();
}

std::optional<std::string> ReadFileBytes(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file.is_open() || file.bad())
        return std::nullopt;
    return bytes;
}

CsvTable ReadCsvFile(const std::filesystem::path& path)
{
    const std::optional<std::string> bytes = ReadFileBytes(path);
    if (!bytes)
        return Refused(L"cannot read the file " + path.wstring());
    return ParseCsv(*bytes);
}
} // namespace gallery
