// Packing and unpacking of tables.
#include "rules/CellPack.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

namespace QuorUiCtr
{
namespace
{

constexpr std::string_view PackName = "QCELPACK";
constexpr std::uint32_t PackVersion = 1;
constexpr std::uint32_t CaptionsFlag = 1;
constexpr std::uint32_t FoldedFlag = 1;
constexpr std::size_t HeaderBytes = 64;
constexpr std::size_t RowBytes = 24;
constexpr std::size_t LengthBytes = 4;
constexpr std::size_t UnitBytes = 2;
constexpr std::size_t MostUnits = (std::numeric_limits<std::uint32_t>::max)();

// Places in the header.
enum HeaderPlace : std::size_t
{
    VersionAt = 8,
    FlagsAt = 12,
    SizeAt = 16,
    RowsAt = 24,
    CellsAt = 32,
    UnitsAt = 40,
    CaptionsAt = 48,
    SumAt = 56
};

template <class Number> void Put(unsigned char* at, Number number)
{
    if constexpr (std::endian::native == std::endian::little)
        std::memcpy(at, &number, sizeof number);
    else
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            at[i] = static_cast<unsigned char>(number >> (8 * i));
}

template <class Number> Number Get(const unsigned char* at)
{
    Number number = 0;
    if constexpr (std::endian::native == std::endian::little)
        std::memcpy(&number, at, sizeof number);
    else
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            number = static_cast<Number>(number | static_cast<Number>(static_cast<Number>(at[i]) << (8 * i)));
    return number;
}

std::uint64_t SumOf(const unsigned char* first, std::size_t size)
{
    std::uint64_t sum = 0;
    for (; size >= 8; first += 8, size -= 8)
        sum += Get<std::uint64_t>(first);
    for (std::size_t i = 0; i < size; ++i)
        sum += static_cast<std::uint64_t>(first[i]) << (8 * i);
    return sum;
}

// Units of UTF-16, whatever the size of wchar_t.
void AppendUnits(std::u16string& units, std::wstring_view text)
{
    if constexpr (sizeof(wchar_t) == sizeof(char16_t))
    {
        const std::size_t before = units.size();
        units.resize(before + text.size());
        std::copy(text.begin(), text.end(), units.data() + before);
        return;
    }
    for (const wchar_t character : text)
    {
        const auto code = static_cast<std::uint32_t>(character);
        if (code < 0x10000)
            units += static_cast<char16_t>(code);
        else if (code < 0x110000)
        {
            units += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
        }
        else
            units += char16_t{0xFFFD};
    }
}

// The other way; `text` keeps its room from one text to the next.
void ReadUnits(const unsigned char* bytes, std::size_t number, std::wstring& text)
{
    text.resize(number);
    if constexpr (sizeof(wchar_t) == UnitBytes && std::endian::native == std::endian::little)
    {
        if (number > 0)
            std::memcpy(text.data(), bytes, number * UnitBytes);
        return;
    }
    std::size_t length = 0;
    for (std::size_t i = 0; i < number; ++i)
    {
        const std::uint32_t unit = Get<std::uint16_t>(bytes + i * UnitBytes);
        const bool isSecond = sizeof(wchar_t) > sizeof(char16_t) && length > 0 && (unit & 0xFC00) == 0xDC00 &&
                              (static_cast<std::uint32_t>(text[length - 1]) & 0xFFFFFC00) == 0xD800;
        if (isSecond)
            text[length - 1] = static_cast<wchar_t>(
                0x10000 + ((static_cast<std::uint32_t>(text[length - 1]) & 0x3FF) << 10) + (unit & 0x3FF));
        else
            text[length++] = static_cast<wchar_t>(unit);
    }
    text.resize(length);
}

// A pack whose sections lie within its bytes, and add up.
class PackReader
{
public:
    explicit PackReader(std::string_view bytes)
        : first(reinterpret_cast<const unsigned char*>(bytes.data())), size(bytes.size())
    {
    }

    CellPackError Check()
    {
        const std::string_view begin(reinterpret_cast<const char*>(first), size);
        if (!begin.starts_with(PackName))
            return size < PackName.size() && PackName.starts_with(begin) && size > 0 ? CellPackError::Cut
                                                                                     : CellPackError::NoPack;
        if (size < VersionAt + 4)
            return CellPackError::Cut;
        if (Get<std::uint32_t>(first + VersionAt) != PackVersion)
            return CellPackError::OtherVersion;
        if (size < HeaderBytes)
            return CellPackError::Cut;
        const auto whole = Get<std::uint64_t>(first + SizeAt);
        if (whole < HeaderBytes)
            return CellPackError::Damaged;
        if (whole > size)
            return CellPackError::Cut;
        size = static_cast<std::size_t>(whole);
        return HasSections() && AddsUp() ? CellPackError::None : CellPackError::Damaged;
    }
    void Read(CellTable& table) const
    {
        table.Reserve(rows, cells, units);
        const unsigned char* length = first + HeaderBytes + rows * RowBytes;
        const unsigned char* text = length + cells * LengthBytes;
        std::wstring buffer;
        const auto readCells = [&](std::size_t number) {
            for (; number > 0; --number, length += LengthBytes)
            {
                const std::size_t textUnits = Get<std::uint32_t>(length);
                ReadUnits(text, textUnits, buffer);
                table.Cell(buffer);
                text += textUnits * UnitBytes;
            }
            table.EndRow();
        };
        if (hasCaptions)
        {
            table.BeginCaptions();
            readCells(captions);
        }
        for (std::size_t row = 0; row < rows; ++row)
        {
            const unsigned char* const record = RowAt(row);
            table.BeginRow(MarkAt(record));
            readCells(Get<std::uint32_t>(record + 12));
        }
    }

private:
    const unsigned char* RowAt(std::size_t row) const { return first + HeaderBytes + row * RowBytes; }
    static RowMark MarkAt(const unsigned char* record)
    {
        return {static_cast<int>(Get<std::uint32_t>(record + 8)),
                (Get<std::uint32_t>(record + 16) & FoldedFlag) != 0,
                static_cast<std::int64_t>(Get<std::uint64_t>(record))};
    }
    // Takes `number` things of a size off the bytes that are left; false when there are not so many.
    static bool Take(std::uint64_t& left, std::uint64_t number, std::size_t bytes)
    {
        if (number > left / bytes)
            return false;
        left -= number * bytes;
        return true;
    }
    bool HasSections()
    {
        const auto flags = Get<std::uint32_t>(first + FlagsAt);
        const auto rowNum = Get<std::uint64_t>(first + RowsAt);
        const auto cellNum = Get<std::uint64_t>(first + CellsAt);
        const auto unitNum = Get<std::uint64_t>(first + UnitsAt);
        const auto captionNum = Get<std::uint64_t>(first + CaptionsAt);
        hasCaptions = (flags & CaptionsFlag) != 0;
        std::uint64_t left = size - HeaderBytes;
        if (!Take(left, rowNum, RowBytes) || !Take(left, cellNum, LengthBytes) ||
            !Take(left, unitNum, UnitBytes) || left != 0)
            return false;
        rows = static_cast<std::size_t>(rowNum);
        cells = static_cast<std::size_t>(cellNum);
        units = static_cast<std::size_t>(unitNum);
        captions = static_cast<std::size_t>((std::min)(captionNum, cellNum));
        return (flags & ~CaptionsFlag) == 0 && captionNum <= cellNum && (hasCaptions || captionNum == 0);
    }
    bool AddsUp() const
    {
        if (Get<std::uint64_t>(first + SumAt) != SumOf(first + HeaderBytes, size - HeaderBytes))
            return false;
        // Sums of 32-bit numbers, of which there are fewer than 2 to the power of 62: they do not overflow.
        std::uint64_t cellSum = captions;
        for (std::size_t row = 0; row < rows; ++row)
        {
            const unsigned char* const record = RowAt(row);
            if (Get<std::uint32_t>(record + 8) >
                    static_cast<std::uint32_t>((std::numeric_limits<int>::max)()) ||
                (Get<std::uint32_t>(record + 16) & ~FoldedFlag) != 0 || Get<std::uint32_t>(record + 20) != 0)
                return false;
            cellSum += Get<std::uint32_t>(record + 12);
        }
        std::uint64_t unitSum = 0;
        const unsigned char* const lengths = RowAt(rows);
        for (std::size_t cell = 0; cell < cells; ++cell)
            unitSum += Get<std::uint32_t>(lengths + cell * LengthBytes);
        return cellSum == cells && unitSum == units;
    }

    const unsigned char* first;
    std::size_t size;
    std::size_t rows = 0;
    std::size_t cells = 0;
    std::size_t units = 0;
    std::size_t captions = 0;
    bool hasCaptions = false;
};

} // namespace

// ---- Writing

void CellPackWriter::Reserve(std::size_t rowNum, std::size_t cellNum, std::size_t characterNum)
{
    rows.reserve(rowNum);
    lengths.reserve(cellNum);
    characters.reserve(characterNum);
}

void CellPackWriter::BeginCaptions()
{
    inCaptions = true;
}

void CellPackWriter::BeginRow(const RowMark& mark)
{
    rows.push_back({mark, 0});
}

void CellPackWriter::Cell(std::wstring_view text)
{
    const std::size_t before = characters.size();
    const bool hasRoom = text.size() <= MostUnits / 2 && lengths.size() - rowBegin < MostUnits;
    isComplete = isComplete && hasRoom;
    if (!hasRoom)
        return;
    AppendUnits(characters, text);
    lengths.push_back(static_cast<std::uint32_t>(characters.size() - before));
}

void CellPackWriter::EndRow()
{
    const std::size_t number = lengths.size() - rowBegin;
    rowBegin = lengths.size();
    if (inCaptions)
    {
        captionNum = number;
        hasCaptions = true;
        inCaptions = false;
    }
    else
        rows.back().cells = static_cast<std::uint32_t>(number);
}

std::size_t CellPackWriter::GetSize() const
{
    return HeaderBytes + rows.size() * RowBytes + lengths.size() * LengthBytes +
           characters.size() * UnitBytes;
}

void CellPackWriter::Write(unsigned char* bytes) const
{
    unsigned char* at = bytes + HeaderBytes;
    for (const Row& row : rows)
    {
        Put(at, static_cast<std::uint64_t>(row.mark.identifier));
        Put(at + 8, static_cast<std::uint32_t>((std::max)(row.mark.level, 0)));
        Put(at + 12, row.cells);
        Put(at + 16, row.mark.isFolded ? FoldedFlag : std::uint32_t{0});
        Put(at + 20, std::uint32_t{0});
        at += RowBytes;
    }
    for (const std::uint32_t length : lengths)
    {
        Put(at, length);
        at += LengthBytes;
    }
    for (const char16_t unit : characters)
    {
        Put(at, static_cast<std::uint16_t>(unit));
        at += UnitBytes;
    }
    std::memcpy(bytes, PackName.data(), PackName.size());
    Put(bytes + VersionAt, PackVersion);
    Put(bytes + FlagsAt, hasCaptions ? CaptionsFlag : std::uint32_t{0});
    Put(bytes + SizeAt, static_cast<std::uint64_t>(GetSize()));
    Put(bytes + RowsAt, static_cast<std::uint64_t>(rows.size()));
    Put(bytes + CellsAt, static_cast<std::uint64_t>(lengths.size()));
    Put(bytes + UnitsAt, static_cast<std::uint64_t>(characters.size()));
    Put(bytes + CaptionsAt, static_cast<std::uint64_t>(captionNum));
    Put(bytes + SumAt, SumOf(bytes + HeaderBytes, GetSize() - HeaderBytes));
}

std::string CellPackWriter::GetBytes() const
{
    std::string bytes(GetSize(), '\0');
    Write(reinterpret_cast<unsigned char*>(bytes.data()));
    return bytes;
}

// ---- Reading

CellPackError ReadCellPack(std::string_view bytes, CellTable& table)
{
    PackReader reader(bytes);
    const CellPackError error = reader.Check();
    if (error == CellPackError::None)
        reader.Read(table);
    return error;
}

} // namespace QuorUiCtr
