// Tables as text, and random tables.
#include "tests/rules/CellTables.h"

#include <cstdio>
#include <cstdlib>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// The code at a place: that of both halves of a pair, where texts have such.
unsigned long CodeAt(std::wstring_view text, std::size_t& at)
{
    const auto code = static_cast<unsigned long>(text[at]);
    const auto next = at + 1 < text.size() ? static_cast<unsigned long>(text[at + 1]) : 0UL;
    const bool isPair =
        sizeof(wchar_t) == 2 && code >= 0xD800 && code < 0xDC00 && next >= 0xDC00 && next < 0xE000;
    if (!isPair)
        return code;
    ++at;
    return 0x10000 + ((code - 0xD800) << 10) + (next - 0xDC00);
}

void Show(std::string& shown, std::wstring_view text)
{
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        const unsigned long code = CodeAt(text, at);
        char escaped[16];
        if (code == '\r' || code == '\n' || code == '\t')
            shown += code == '\r' ? "\\r" : code == '\n' ? "\\n" : "\\t";
        else if (code >= 0x20 && code < 0x7F && code != '|' && code != '\\')
            shown += static_cast<char>(code);
        else
            shown.append(escaped,
                         static_cast<std::size_t>(std::snprintf(escaped, sizeof escaped, "\\{%lX}", code)));
    }
}

template <class TextOf> void ShowCells(std::string& shown, std::size_t number, TextOf textOf)
{
    for (std::size_t col = 0; col < number; ++col)
    {
        Show(shown, textOf(col));
        shown += '|';
    }
    shown += '\n';
}

constexpr wchar_t Hostile[] = L"\t\"\r\n ,;|&<>'\xA0=\f\v\x01\x7F\x85\x2028\xFEFF\xFFFD\xFFFF-+0";

std::size_t Below(std::mt19937& random, std::size_t limit)
{
    return static_cast<std::size_t>(random()) % limit;
}

// A character beyond the 16 bits that some systems' have.
void AppendHigh(std::wstring& text, std::size_t offset)
{
    const auto code = static_cast<unsigned long>(0x10000 + offset);
    if (sizeof(wchar_t) > 2)
        text += static_cast<wchar_t>(code);
    else
    {
        text += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + (code & 0x3FF));
    }
}

void AppendRandom(std::wstring& text, std::mt19937& random, const TableKind& kind)
{
    switch (Below(random, 12))
    {
    case 0:
        AppendHigh(text, Below(random, 0x100000));
        return;
    case 1:
        text += static_cast<wchar_t>(0xA0 + Below(random, 0xD700));
        return;
    case 2:
        text += kind.hasNuls ? L'\0' : L'x';
        return;
    case 3:
        // Two in a row would be a whole pair.
        if (kind.hasHalves)
            text.append({static_cast<wchar_t>(0xD800 + Below(random, 0x800)), L'h'});
        return;
    case 4:
    case 5:
        text += static_cast<wchar_t>(L'a' + static_cast<wchar_t>(Below(random, 26)));
        return;
    default:
        text += Hostile[Below(random, std::size(Hostile) - 1)];
    }
}

std::wstring RandomText(std::mt19937& random, const TableKind& kind)
{
    std::wstring text;
    if (Below(random, 4) == 0)
        return text;
    const std::size_t most = Below(random, 200) == 0 ? kind.longest * 100 : kind.longest;
    for (std::size_t length = Below(random, most + 1); length > 0; --length)
        AppendRandom(text, random, kind);
    return text;
}

void AddCells(CellSink& sink, std::mt19937& random, const TableKind& kind)
{
    const std::size_t least = kind.hasEmptyRows ? 0 : 1;
    for (std::size_t cells = least + Below(random, kind.mostCols + 1 - least); cells > 0; --cells)
        sink.Cell(RandomText(random, kind));
    sink.EndRow();
}

} // namespace

std::string Shown(const CellTable& table)
{
    std::string shown;
    if (table.HasCaptions())
    {
        shown += '^';
        ShowCells(shown, table.GetCaptionNum(), [&](std::size_t col) { return table.GetCaption(col); });
    }
    for (std::size_t row = 0; row < table.GetRowNum(); ++row)
    {
        const RowMark mark = table.GetMark(row);
        if (mark != RowMark())
            shown += std::to_string(mark.level) + (mark.isFolded ? "+" : "-") +
                     std::to_string(mark.identifier) + ":";
        ShowCells(shown, table.GetCellNum(row), [&](std::size_t col) { return table.GetText(row, col); });
    }
    return shown;
}

CellTable RandomTable(std::mt19937& random, const TableKind& kind)
{
    CellTable table;
    if (kind.hasCaptions && Below(random, 3) == 0)
    {
        table.BeginCaptions();
        AddCells(table, random, kind);
    }
    const bool isTree = kind.hasMarks && Below(random, 2) == 0;
    for (std::size_t rows = Below(random, kind.mostRows + 1); rows > 0; --rows)
    {
        table.BeginRow(isTree ? RowMark{static_cast<int>(Below(random, 4)), Below(random, 2) == 0,
                                        static_cast<std::int64_t>(random()) * 7919 - (1LL << 40)}
                              : RowMark());
        AddCells(table, random, kind);
    }
    return table;
}

int RandomTableNum()
{
    const char* const asked = std::getenv("QUOR_RANDOM_TABLES");
    return asked != nullptr ? std::atoi(asked) : HasSlowMemory ? 1500 : 10000;
}

} // namespace quor::test
