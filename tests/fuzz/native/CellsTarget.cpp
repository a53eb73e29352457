// What other programs may put on the clipboard: every reader has an answer for any bytes, and what it gives
// is written and read again as the same.
#include "tests/fuzz/native/Bytes.h"

#include "rules/CellHtml.h"
#include "rules/CellPack.h"
#include "rules/CellText.h"
#include "rules/TextSeries.h"
#include "rules/Utf8.h"

#include <algorithm>
#include <cstring>
#include <string>

using namespace QuorUiCtr;
using namespace quor::fuzz;

namespace
{

// Every text is looked at, so that a view beyond its buffer is noticed.
std::size_t SumOf(const CellTable& table)
{
    std::size_t sum = 0;
    const auto add = [&](std::wstring_view text) {
        for (const wchar_t unit : text)
            sum += static_cast<std::size_t>(unit);
        sum += text.size();
    };
    for (std::size_t col = 0; col < table.GetCaptionNum(); ++col)
        add(table.GetCaption(col));
    for (std::size_t row = 0; row < table.GetRowNum(); ++row)
    {
        Require(table.GetCellNum(row) <= table.GetColNum(), "a row is longer than the longest");
        for (std::size_t col = 0; col < table.GetCellNum(row); ++col)
            add(table.GetText(row, col));
    }
    return sum;
}

// What text cannot say is taken off.
CellTable PlainCopy(CellTable table)
{
    table.MakeCaptionsARow();
    CellTable plain;
    for (std::size_t row = 0; row < table.GetRowNum(); ++row)
    {
        plain.BeginRow();
        for (std::size_t col = 0; col < (std::max)(table.GetCellNum(row), std::size_t{1}); ++col)
            plain.Cell(table.GetText(row, col));
        plain.EndRow();
    }
    return plain;
}

void RequireTextRoundTrip(const CellTable& table, wchar_t separator)
{
    CellTextWriter writer(separator);
    table.WriteTo(writer);
    Require(ReadCellText(writer.GetText(), separator) == PlainCopy(table), "text comes back otherwise");
}

void RequirePackRoundTrip(const CellTable& table)
{
    CellPackWriter writer;
    table.WriteTo(writer);
    CellTable read;
    Require(ReadCellPack(writer.GetBytes(), read) == CellPackError::None && read == table,
            "a pack comes back otherwise");
}

// Twice, because the first time replaces what HTML does not have.
void RequireHtmlRoundTrip(const CellTable& table)
{
    const auto again = [](const CellTable& written) {
        CellHtmlWriter writer;
        written.WriteTo(writer);
        CellHtmlNotes notes;
        CellTable read = ReadCellHtml(writer.TakeHtml(), &notes);
        Require(!notes.hasWrongOffsets && !notes.isCut && notes.wrongBytes == 0, "the HTML is not right");
        return read;
    };
    const CellTable once = again(table);
    Require(once.GetAllCellNum() == table.GetAllCellNum(), "HTML has other cells");
    Require(again(once) == once, "HTML comes back otherwise");
}

void CheckText(std::string_view bytes)
{
    const wchar_t separator = L"\t;,|\n"[bytes.size() % 5];
    const std::wstring text = FromUtf8(bytes);
    CellTextNotes notes;
    const CellTable table =
        separator == L'\n' ? ReadCsv(text, &notes) : ReadCellText(text, separator, &notes);
    Require(table.GetCharacterNum() + table.GetAllCellNum() <= 2 * text.size() + 1,
            "text comes from nowhere");
    SumOf(table);
    RequireTextRoundTrip(table, notes.separator);
    const BlockText block = TextOfBlock(text);
    Require(block.text.size() <= text.size() && block.text.find(L'\0') == std::wstring_view::npos,
            "the text of a block has no end");
}

void CheckHtml(std::string_view bytes)
{
    CellHtmlNotes notes;
    const CellTable table = ReadCellHtml(bytes, &notes);
    SumOf(table);
    RequirePackRoundTrip(table);
    RequireHtmlRoundTrip(table);
}

// Bytes as they are, and with the beginning and the sum of a pack, which chance does not find.
void CheckPack(std::string_view bytes)
{
    std::string mended(bytes);
    if (mended.size() >= 64 && mended[0] != 'Q')
    {
        std::memcpy(mended.data(), "QCELPACK\1\0\0", 11);
        std::uint64_t sum = 0;
        for (std::size_t i = 64; i < mended.size(); ++i)
            sum += static_cast<std::uint64_t>(static_cast<unsigned char>(mended[i])) << (8 * (i % 8));
        const std::uint64_t size = mended.size();
        std::memcpy(mended.data() + 16, &size, 8);
        std::memcpy(mended.data() + 56, &sum, 8);
    }
    CellTable table;
    if (ReadCellPack(mended, table) != CellPackError::None)
    {
        Require(table.IsEmpty(), "something of a refused pack is used");
        return;
    }
    SumOf(table);
    CellPackWriter writer;
    table.WriteTo(writer);
    Require(mended.starts_with(writer.GetBytes()), "a pack that is read is another");
    RequireTextRoundTrip(table, L'\t');
    RequireHtmlRoundTrip(table);
}

void CheckSeries(std::string_view bytes)
{
    const std::wstring text = FromUtf8(bytes);
    const std::size_t half = (std::min)(text.find(L'\n'), text.size());
    const std::wstring_view first = std::wstring_view(text).substr(0, half);
    const std::wstring_view second = std::wstring_view(text).substr((std::min)(half + 1, text.size()));
    if (const auto series = TextSeries::Of(first, second))
        for (const long place : {0L, 1L, 2L, 1000L, 2147483647L})
            series->At(place);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr void (*checks[])(std::string_view) = {CheckText, CheckHtml, CheckPack, CheckSeries};
    if (size == 0)
        return 0;
    // A buffer of its own, of which no byte too many can be read unseen.
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    checks[data[0] % std::size(checks)](bytes);
    return 0;
}
