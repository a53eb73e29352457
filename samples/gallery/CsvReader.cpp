// The CSV reader: the line parser with its recovery after bad lines, and file reading.
#include "CsvReader.h"

#include "TextBytes.h"

#include <algorithm>
#include <cstddef>
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

// What separates the fields: of comma, semicolon and tab the one that stands most often, outside quotes, in
// the first line that is not blank; the comma where none does.
wchar_t SeparatorOf(std::wstring_view text)
{
    constexpr std::wstring_view Separators = L",;\t";
    const std::size_t start = text.find_first_not_of(L" \t\r\n");
    std::size_t counts[Separators.size()] = {};
    bool quoted = false;
    for (std::size_t i = start; i < text.size() && (quoted || !IsLineBreak(text[i])); ++i)
    {
        if (text[i] == L'"')
            quoted = !quoted;
        const std::size_t separator = quoted ? std::wstring_view::npos : Separators.find(text[i]);
        if (separator != std::wstring_view::npos)
            ++counts[separator];
    }
    return Separators[static_cast<std::size_t>(std::max_element(std::begin(counts), std::end(counts)) -
                                               std::begin(counts))];
}

// Walks over the text once, field by field; only the lines under a quote that is not closed properly are read
// again.
class CsvParser
{
public:
    CsvParser(std::wstring_view wholeText, const CsvProgress& whomToAsk)
        : text(wholeText), separator(SeparatorOf(wholeText)), progress(whomToAsk)
    {
    }

    CsvTable Parse();

private:
    struct Place
    {
        std::size_t offset;
        std::size_t line;
    };

    bool IsAtEnd() const { return place.offset == text.size(); }
    bool IsAt(wchar_t c) const { return !IsAtEnd() && text[place.offset] == c; }
    bool IsAtEndOfField() const { return IsAtEnd() || IsAt(separator) || IsLineBreak(text[place.offset]); }
    bool IsBlankLine() const;
    bool MayGoOn();
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

    static constexpr std::size_t CharactersBetweenQuestions = 1 << 18;

    std::wstring_view text;
    wchar_t separator;
    const CsvProgress& progress;
    std::size_t nextQuestion = CharactersBetweenQuestions;
    Place place{0, 1};
    CsvTable table;
};

CsvTable CsvParser::Parse()
{
    while (!IsAtEnd() && !(table.header.empty() && !table.errors.empty()))
    {
        if (!MayGoOn())
            return Refused(L"stopped");
        if (IsBlankLine())
            SkipRestOfLine();
        else
            ReadLine();
    }
    if (table.header.empty() && table.errors.empty())
        return Refused(L"the file is empty");
    return std::move(table);
}

bool CsvParser::MayGoOn()
{
    if (!progress || place.offset < nextQuestion)
        return true;
    nextQuestion = place.offset + CharactersBetweenQuestions;
    return progress(static_cast<double>(place.offset) / static_cast<double>(text.size()));
}

// A line of nothing but separators that are blanks is a line of empty fields.
bool CsvParser::IsBlankLine() const
{
    if (IsAt(separator))
        return false;
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
        if (!IsAt(separator))
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

CsvTable ParseCsv(std::string_view bytes, const CsvProgress& progress)
{
    std::wstring text;
    std::wstring problem = DecodeText(bytes, text);
    if (!problem.empty())
        return Refused(std::move(problem));
    return CsvParser(text, progress).Parse();
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

CsvTable ReadCsvFile(const std::filesystem::path& path, const CsvProgress& progress)
{
    const std::optional<std::string> bytes = ReadFileBytes(path);
    if (!bytes)
        return Refused(L"cannot read the file " + path.wstring());
    return ParseCsv(*bytes, progress);
}
} // namespace gallery
