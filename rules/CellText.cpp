// Writing and reading separated text.
#include "rules/CellText.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{
namespace
{

constexpr wchar_t Quote = L'"';
constexpr wchar_t NulPicture = L'\x2400';
constexpr wchar_t FileMark = L'\xFEFF';

bool IsBreak(wchar_t unit)
{
    return unit == L'\r' || unit == L'\n';
}

// Goes through a text once. A quote that seems to open a cell is followed to the quote that would close it,
// and when that closes nothing, the cell is read again without: all quotes passed over on the way stand in
// pairs, so that no cell between is followed again beyond its own quotes.
class TextReader
{
public:
    TextReader(std::wstring_view text, wchar_t itsSeparator, CellSink& itsSink)
        : next(text.data()), end(text.data() + text.size()), separator(itsSeparator), sink(itsSink)
    {
        if (next != end && *next == FileMark)
            ++next;
    }

    bool IsAtEnd() const { return next == end; }
    void ReadRow()
    {
        sink.BeginRow();
        for (ReadCell(); next != end && *next == separator; ReadCell())
            ++next;
        sink.EndRow();
        if (next != end && *next++ == L'\r' && next != end && *next == L'\n')
            ++next;
    }
    std::size_t GetStrayQuotes() const { return strayQuotes; }

private:
    void ReadCell()
    {
        if (next != end && *next == Quote)
        {
            if (ReadQuoted())
                return;
            ++strayQuotes;
        }
        const wchar_t* const first = next;
        while (next != end && *next != separator && !IsBreak(*next))
            ++next;
        sink.Cell({first, static_cast<std::size_t>(next - first)});
    }
    bool ReadQuoted()
    {
        const wchar_t* const first = next + 1;
        const wchar_t* closing = std::find(first, end, Quote);
        bool hasPairs = false;
        while (closing != end && closing + 1 != end && closing[1] == Quote)
        {
            hasPairs = true;
            closing = std::find(closing + 2, end, Quote);
        }
        if (closing == end || (closing + 1 != end && closing[1] != separator && !IsBreak(closing[1])))
            return false;
        next = closing + 1;
        const std::wstring_view inside(first, static_cast<std::size_t>(closing - first));
        sink.Cell(hasPairs ? WithoutPairs(inside) : inside);
        return true;
    }
    std::wstring_view WithoutPairs(std::wstring_view inside)
    {
        unquoted.clear();
        while (!inside.empty())
        {
            const std::size_t quote = (std::min)(inside.find(Quote), inside.size() - 1);
            unquoted.append(inside, 0, quote + 1);
            inside.remove_prefix((std::min)(quote + (inside[quote] == Quote ? 2 : 1), inside.size()));
        }
        return unquoted;
    }

    const wchar_t* next;
    const wchar_t* end;
    wchar_t separator;
    CellSink& sink;
    std::size_t strayQuotes = 0;
    std::wstring unquoted;
};

// Counts how many cells rows have, to tell separators from other characters.
class RowLengths final : public CellSink
{
public:
    void BeginCaptions() override {}
    void BeginRow(const RowMark&) override { length = 0; }
    void Cell(std::wstring_view text) override
    {
        ++length;
        hasText = hasText || !text.empty();
    }
    void EndRow() override
    {
        // Empty lines divide nothing under any separator.
        if (length == 1 && !std::exchange(hasText, false))
            return;
        hasText = false;
        divided += length > 1 ? 1 : 0;
        isEven = isEven && length > 1 && (first == 0 || first == length);
        first = length;
    }

    bool DividesAll() const { return isEven && divided > 0; }
    std::size_t GetDivided() const { return divided; }

private:
    std::size_t length = 0;
    std::size_t first = 0;
    std::size_t divided = 0;
    bool hasText = false;
    bool isEven = true;
};

// The separator that a first line "sep=;" names, which is taken off the text.
wchar_t TakeNamedSeparator(std::wstring_view& text)
{
    constexpr std::wstring_view Name = L"sep=";
    std::wstring_view rest = text;
    if (rest.starts_with(FileMark))
        rest.remove_prefix(1);
    if (!rest.starts_with(Name) || rest.size() <= Name.size())
        return L'\0';
    const wchar_t named = rest[Name.size()];
    rest.remove_prefix(Name.size() + 1);
    if (named == Quote || named == L'\0' || named == FileMark || IsBreak(named) ||
        (!rest.empty() && !IsBreak(rest.front())))
        return L'\0';
    rest.remove_prefix(rest.starts_with(L"\r\n") ? 2 : rest.empty() ? 0 : 1);
    text = rest;
    return named;
}

} // namespace

// ---- Writing

CellTextWriter::CellTextWriter(wchar_t itsSeparator, std::wstring_view itsLineBreak)
    : lineBreak(itsLineBreak), separator(itsSeparator)
{
}

void CellTextWriter::BeginCaptions()
{
    isFirstCell = true;
}

void CellTextWriter::BeginRow(const RowMark&)
{
    isFirstCell = true;
}

void CellTextWriter::Cell(std::wstring_view cell)
{
    if (!std::exchange(isFirstCell, false))
        text += separator;
    // A file's mark that is none.
    bool needsQuotes = text.empty() && cell.starts_with(FileMark);
    bool hasNuls = false;
    for (const wchar_t unit : cell)
    {
        needsQuotes |= unit == separator || unit == Quote || IsBreak(unit);
        hasNuls |= unit == L'\0';
    }
    const std::size_t first = text.size();
    if (needsQuotes)
        AppendQuoted(cell);
    else
        text.append(cell);
    if (hasNuls)
        CountNuls(first);
}

void CellTextWriter::AppendQuoted(std::wstring_view cell)
{
    text += Quote;
    for (std::size_t quote; (quote = cell.find(Quote)) != std::wstring_view::npos;)
    {
        text.append(cell, 0, quote + 1);
        text += Quote;
        cell.remove_prefix(quote + 1);
    }
    text.append(cell);
    text += Quote;
}

void CellTextWriter::CountNuls(std::size_t first)
{
    for (std::size_t i = first; i < text.size(); ++i)
        if (text[i] == L'\0')
        {
            ++nulNum;
            if (replacesNuls)
                text[i] = NulPicture;
        }
}

void CellTextWriter::EndRow()
{
    text += lineBreak;
}

std::wstring CellTextWriter::TakeText()
{
    return std::exchange(text, std::wstring());
}

// ---- Reading

void ReadCellText(std::wstring_view text, wchar_t separator, CellSink& sink, CellTextNotes* notes)
{
    TextReader reader(text, separator, sink);
    while (!reader.IsAtEnd())
        reader.ReadRow();
    if (notes != nullptr)
        *notes = {separator, reader.GetStrayQuotes(),
                  static_cast<std::size_t>(std::count(text.begin(), text.end(), L'\0'))};
}

CellTable ReadCellText(std::wstring_view text, wchar_t separator, CellTextNotes* notes)
{
    // Counted first, so that the buffers of a long text are not moved again and again.
    std::size_t feeds = 0;
    std::size_t returns = 0;
    std::size_t separators = 0;
    for (const wchar_t unit : text)
    {
        feeds += unit == L'\n' ? 1U : 0U;
        returns += unit == L'\r' ? 1U : 0U;
        separators += unit == separator ? 1U : 0U;
    }
    const std::size_t rows = (std::max)(feeds, returns) + 1;
    CellTable table;
    table.Reserve(rows, rows + separators, text.size() - separators);
    ReadCellText(text, separator, table, notes);
    return table;
}

CellTable ReadCsv(std::wstring_view text, CellTextNotes* notes)
{
    const wchar_t named = TakeNamedSeparator(text);
    return ReadCellText(text, named != L'\0' ? named : RecognizeSeparator(text), notes);
}

wchar_t RecognizeSeparator(std::wstring_view text)
{
    constexpr std::size_t Looked = 65536;
    if (text.size() > Looked)
    {
        text = text.substr(0, Looked);
        // Without the line that was cut in two.
        text = text.substr(0, text.find_last_of(L"\r\n"));
    }
    wchar_t best = L',';
    std::size_t mostDivided = 0;
    for (const wchar_t separator : {L'\t', L';', L',', L'|'})
    {
        RowLengths lengths;
        TextReader reader(text, separator, lengths);
        while (!reader.IsAtEnd())
            reader.ReadRow();
        if (lengths.DividesAll())
            return separator;
        if (lengths.GetDivided() > mostDivided)
        {
            mostDivided = lengths.GetDivided();
            best = separator;
        }
    }
    return best;
}

BlockText TextOfBlock(std::wstring_view block)
{
    const std::size_t length = (std::min)(block.find(L'\0'), block.size());
    return {block.substr(0, length), block.find_first_not_of(L'\0', length) != std::wstring_view::npos};
}

} // namespace QuorUiCtr
