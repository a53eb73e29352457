// Which formats stand on the clipboard, and how tables get into its memory and out of it.
#include "grid/extras/ClipboardFormats.h"

#include "rules/CellHtml.h"
#include "rules/CellPack.h"
#include "rules/CellText.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace QuorUiCtr
{
namespace
{

// Registered once; the numbers stay the same as long as the system runs.
struct FormatNumbers
{
    UINT pack = ::RegisterClipboardFormat(L"QuorUiCtrl Cells");
    UINT csv = ::RegisterClipboardFormat(L"Csv");
    UINT html = ::RegisterClipboardFormat(L"HTML Format");
};

const FormatNumbers& Formats()
{
    static const FormatNumbers numbers;
    return numbers;
}

// ---- Writing

// Memory for so many bytes, which `fill` fills.
template <class Fill> HGLOBAL MakeMemory(std::size_t bytes, Fill fill)
{
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    auto* const place = memory != nullptr ? static_cast<unsigned char*>(::GlobalLock(memory)) : nullptr;
    if (place == nullptr)
        return nullptr;
    fill(place);
    ::GlobalUnlock(memory);
    return memory;
}

// The text with a zero behind it.
template <class Character> HGLOBAL MemoryOf(const std::basic_string<Character>& text)
{
    const std::size_t bytes = (text.size() + 1) * sizeof(Character);
    return MakeMemory(bytes, [&](unsigned char* place) { std::memcpy(place, text.c_str(), bytes); });
}

// Programs that read CSV from the clipboard take it as text of the system's code page, unless a mark says
// that it is UTF-8.
std::string EncodedCsv(const std::wstring& text)
{
    const bool isPlain =
        std::all_of(text.begin(), text.end(), [](wchar_t unit) { return unit > 0 && unit < 0x80; });
    if (isPlain)
    {
        std::string narrow(text.size(), '\0');
        std::transform(text.begin(), text.end(), narrow.begin(),
                       [](wchar_t unit) { return static_cast<char>(unit); });
        return narrow;
    }
    const int units = static_cast<int>(text.size());
    const int bytes = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
    std::string encoded(static_cast<std::size_t>(bytes), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), units, encoded.data(), bytes, nullptr, nullptr);
    return "\xEF\xBB\xBF" + encoded;
}

// ---- Reading

// The memory of a format, locked for the length of a scope. The clipboard owns it.
class LockedMemory
{
public:
    explicit LockedMemory(UINT format) : memory(::GetClipboardData(format))
    {
        if (memory != nullptr)
            bytes = static_cast<const char*>(::GlobalLock(memory));
    }
    ~LockedMemory()
    {
        if (bytes != nullptr)
            ::GlobalUnlock(memory);
    }
    LockedMemory(const LockedMemory&) = delete;
    LockedMemory& operator=(const LockedMemory&) = delete;

    std::string_view Bytes() const
    {
        return bytes != nullptr ? std::string_view(bytes, ::GlobalSize(memory)) : std::string_view();
    }
    std::wstring_view Units() const
    {
        return bytes != nullptr ? std::wstring_view(reinterpret_cast<const wchar_t*>(bytes),
                                                    ::GlobalSize(memory) / sizeof(wchar_t))
                                : std::wstring_view();
    }

private:
    HANDLE memory;
    const char* bytes = nullptr;
};

std::wstring Decoded(std::string_view bytes, UINT codePage, DWORD flags)
{
    const int number = static_cast<int>(bytes.size());
    const int units = ::MultiByteToWideChar(codePage, flags, bytes.data(), number, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(units), L'\0');
    ::MultiByteToWideChar(codePage, flags, bytes.data(), number, text.data(), units);
    return text;
}

// UTF-8 where it is that, else the system's code page.
CellTable CsvTable(std::string_view bytes)
{
    bytes = bytes.substr(0, bytes.find('\0'));
    std::wstring text = Decoded(bytes, CP_UTF8, MB_ERR_INVALID_CHARS);
    if (text.empty())
        text = Decoded(bytes, CP_ACP, 0);
    return ReadCsv(text);
}

CellTable TableOf(UINT format)
{
    const LockedMemory memory(format);
    CellTable table;
    if (format == CF_UNICODETEXT)
        table = ReadCellText(TextOfBlock(memory.Units()).text);
    else if (format == Formats().csv)
        table = CsvTable(memory.Bytes());
    else if (format == Formats().html)
        table = ReadCellHtml(memory.Bytes());
    else
        ReadCellPack(memory.Bytes(), table);
    return table;
}

} // namespace

const std::vector<UINT>& ClipboardFormats()
{
    static const std::vector<UINT> formats = {Formats().pack, CF_UNICODETEXT, Formats().csv, Formats().html};
    return formats;
}

bool HasClipboardCells()
{
    return std::any_of(ClipboardFormats().begin(), ClipboardFormats().end(),
                       [](UINT format) { return ::IsClipboardFormatAvailable(format) != FALSE; });
}

bool IsOwnFormat(UINT format)
{
    return format == Formats().pack;
}

HGLOBAL RenderFormat(UINT format, const CellSource& write)
{
    if (format == CF_UNICODETEXT || format == Formats().csv)
    {
        CellTextWriter writer(format == CF_UNICODETEXT ? L'\t' : L',');
        writer.ReplaceNuls();
        write(writer);
        return format == CF_UNICODETEXT ? MemoryOf(writer.GetText()) : MemoryOf(EncodedCsv(writer.GetText()));
    }
    if (format == Formats().html)
    {
        CellHtmlWriter writer;
        write(writer);
        const std::string html = writer.TakeHtml();
        return html.empty() ? nullptr : MemoryOf(html);
    }
    CellPackWriter writer;
    write(writer);
    return writer.IsComplete()
               ? MakeMemory(writer.GetSize(), [&](unsigned char* place) { writer.Write(place); })
               : nullptr;
}

std::optional<CellTable> ReadClipboardCells()
{
    for (const UINT format : ClipboardFormats())
        if (::IsClipboardFormatAvailable(format))
            if (CellTable table = TableOf(format); table.GetRowNum() > 0 && table.GetColNum() > 0)
                return table;
    return std::nullopt;
}

} // namespace QuorUiCtr
