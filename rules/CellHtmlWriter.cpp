// Writing tables as HTML for the clipboard.
#include "rules/CellHtml.h"

#include "rules/Utf8.h"

#include <array>
#include <utility>

namespace QuorUiCtr
{
namespace
{

constexpr std::string_view ClipboardHeader = "Version:0.9\r\n"
                                             "StartHTML:0000000000\r\n"
                                             "EndHTML:0000000000\r\n"
                                             "StartFragment:0000000000\r\n"
                                             "EndFragment:0000000000\r\n";
constexpr std::string_view BeforeFragment = "<html><head><meta charset=\"utf-8\"></head><body>\r\n"
                                            "<!--StartFragment-->";
constexpr std::string_view AfterFragment = "<!--EndFragment-->\r\n</body></html>";
constexpr std::size_t OffsetDigits = 10;
constexpr std::uint64_t LargestOffset = 9'999'999'999;

bool IsLineBreak(wchar_t unit)
{
    return unit == L'\r' || unit == L'\n';
}

// What browsers fold to one blank.
bool IsHtmlSpace(wchar_t unit)
{
    return unit == L' ' || unit == L'\t' || unit == L'\f' || IsLineBreak(unit);
}

// Characters that are written as they are, in one byte.
constexpr auto PlainCharacters = [] {
    std::array<bool, 128> plain = {};
    for (std::size_t code = 1; code < plain.size(); ++code)
        plain[code] = code != '&' && code != '<' && code != '>' && code != '"' && code != ' ' &&
                      code != '\r' && code != '\n';
    return plain;
}();

bool IsPlain(wchar_t unit)
{
    const auto code = static_cast<std::size_t>(unit);
    return code < PlainCharacters.size() && PlainCharacters[code];
}

// Only a marked cell keeps white space that has no name, and is not taken for an empty one that others filled
// with something invisible.
bool NeedsMark(std::wstring_view text)
{
    return text == L" " || text == L"\n" || text == L"\r" || text == L"\r\n" ||
           text.find_first_of(L"\t\f") != std::wstring_view::npos;
}

// The name of a character that may not stand as it is; empty for others.
std::string_view NameOf(wchar_t unit)
{
    switch (unit)
    {
    case L'&':
        return "&amp;";
    case L'<':
        return "&lt;";
    case L'>':
        return "&gt;";
    case L'"':
        return "&quot;";
    case L'\xA0':
        return "&#160;";
    case L'\0':
        // The picture of the character.
        return "\xE2\x90\x80";
    default:
        return {};
    }
}

// An indentation in steps of one and a half times the size of the font.
std::string Indentation(int level)
{
    return "padding-left:" + std::to_string(level / 2 * 3 + level % 2) + (level % 2 != 0 ? ".5em" : "em");
}

void WriteOffset(std::string& html, std::string_view name, std::size_t offset)
{
    const std::size_t at = html.find(name) + name.size();
    for (std::size_t digit = OffsetDigits; digit > 0; --digit, offset /= 10)
        html[at + digit - 1] = static_cast<char>('0' + offset % 10);
}

} // namespace

CellHtmlWriter::CellHtmlWriter()
{
    html.append(ClipboardHeader).append(BeforeFragment).append("<table>\r\n");
}

void CellHtmlWriter::BeginCaptions()
{
    BeginRow(RowMark());
    inCaptions = true;
}

void CellHtmlWriter::BeginRow(const RowMark& mark)
{
    html += "<tr>";
    indent = mark.level;
}

void CellHtmlWriter::Cell(std::wstring_view text)
{
    OpenCell(text);
    AppendText(text);
    html += inCaptions ? "</th>" : "</td>";
}

void CellHtmlWriter::OpenCell(std::wstring_view text)
{
    const bool isMarked = NeedsMark(text);
    const int level = std::exchange(indent, 0);
    html += inCaptions ? "<th" : "<td";
    if (isMarked || level > 0)
    {
        html += " style=\"";
        if (level > 0)
            html += Indentation(level);
        if (isMarked)
            html += level > 0 ? ";white-space:pre-wrap" : "white-space:pre-wrap";
        html += '"';
    }
    html += '>';
}

void CellHtmlWriter::AppendText(std::wstring_view text)
{
    for (std::size_t at = 0; at < text.size();)
    {
        std::size_t end = at;
        while (end < text.size() && IsPlain(text[end]))
            ++end;
        const std::size_t before = html.size();
        html.resize(before + (end - at));
        for (std::size_t i = at; i < end; ++i)
            html[before + (i - at)] = static_cast<char>(text[i]);
        at = end < text.size() ? end + AppendOther(text, end) : end;
    }
}

std::size_t CellHtmlWriter::AppendOther(std::wstring_view text, std::size_t at)
{
    const wchar_t unit = text[at];
    if (unit == L' ')
    {
        const bool isFolded =
            at == 0 || at + 1 == text.size() || IsHtmlSpace(text[at - 1]) || IsLineBreak(text[at + 1]);
        html += isFolded ? "&nbsp;" : " ";
        return 1;
    }
    if (IsLineBreak(unit))
    {
        html += "<br>";
        return text.substr(at).starts_with(L"\r\n") ? 2 : 1;
    }
    if (const std::string_view name = NameOf(unit); !name.empty())
    {
        html += name;
        replacedNum += unit == L'\0' ? 1 : 0;
        return 1;
    }
    std::wstring_view rest = text.substr(at);
    const std::size_t before = rest.size();
    bool isWrong = false;
    AppendUtf8(html, TakeCharacter(rest, isWrong));
    replacedNum += isWrong ? 1 : 0;
    return before - rest.size();
}

void CellHtmlWriter::EndRow()
{
    html += "</tr>\r\n";
    inCaptions = false;
}

std::string CellHtmlWriter::TakeHtml()
{
    html += "</table>";
    const std::size_t fragmentEnd = html.size();
    html += AfterFragment;
    if (html.size() > LargestOffset)
        return {};
    WriteOffset(html, "StartHTML:", ClipboardHeader.size());
    WriteOffset(html, "EndHTML:", html.size());
    WriteOffset(html, "StartFragment:", ClipboardHeader.size() + BeforeFragment.size());
    WriteOffset(html, "EndFragment:", fragmentEnd);
    return std::exchange(html, std::string());
}

} // namespace QuorUiCtr
