// Packs of tables: nothing gets lost, and bytes that are none are refused.
#include "rules/CellPack.h"

#include "tests/rules/CellTables.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::string Packed(const CellTable& table)
{
    CellPackWriter writer;
    table.WriteTo(writer);
    EXPECT_TRUE(writer.IsComplete());
    return writer.GetBytes();
}

CellTable Small()
{
    using namespace std::string_view_literals;
    CellTable table;
    table.BeginCaptions();
    table.Cell(L"Name");
    table.Cell(L"Größe");
    table.EndRow();
    table.BeginRow({0, true, 1234567890123});
    table.Cell(L"a\tb\r\n\"c\"");
    table.EndRow();
    table.BeginRow({1, false, -5});
    table.Cell(L"");
    table.Cell(L"nul\0s"sv);
    table.Cell(L"\xD800");
    table.EndRow();
    table.BeginRow();
    table.EndRow();
    return table;
}

// Changes one number of a pack and mends the sum, so that the number itself is what is refused.
std::string WithNumber(std::string bytes, std::size_t at, std::uint64_t number, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        bytes[at + i] = static_cast<char>(number >> (8 * i));
    std::uint64_t sum = 0;
    for (std::size_t i = 64; i < bytes.size(); ++i)
        sum += static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << (8 * ((i - 64) % 8));
    for (std::size_t i = 0; i < 8; ++i)
        bytes[56 + i] = static_cast<char>(sum >> (8 * i));
    return bytes;
}

CellPackError ErrorOf(std::string_view bytes)
{
    CellTable table;
    const CellPackError error = ReadCellPack(bytes, table);
    EXPECT_EQ(table.IsEmpty(), error != CellPackError::None);
    return error;
}

TEST(CellPack, KeepsTextsCaptionsLevelsFoldsAndIdentifiers)
{
    CellTable table;
    ASSERT_EQ(ReadCellPack(Packed(Small()), table), CellPackError::None);
    EXPECT_EQ(Shown(table), "^Name|Gr\\{F6}\\{DF}e|\n"
                            "0+1234567890123:a\\tb\\r\\n\"c\"|\n"
                            "1--5:|nul\\{0}s|\\{D800}|\n"
                            "\n");
    EXPECT_EQ(table, Small());
}

TEST(CellPack, TellsCaptionsWithoutCells_FromNone)
{
    CellTable without;
    without.BeginRow();
    without.EndRow();
    CellTable with;
    with.BeginCaptions();
    with.EndRow();
    with.BeginRow();
    with.EndRow();
    CellTable read;
    ASSERT_EQ(ReadCellPack(Packed(with), read), CellPackError::None);
    EXPECT_EQ(read, with);
    CellTable readToo;
    ASSERT_EQ(ReadCellPack(Packed(without), readToo), CellPackError::None);
    EXPECT_EQ(readToo, without);
}

TEST(CellPack, HasOneFormOnly_WhateverTheMachine)
{
    CellTable table;
    table.BeginRow({3, true, 0x0102030405060708});
    table.Cell(L"A\x20AC");
    table.EndRow();
    const std::string_view header("QCELPACK\1\0\0\0\0\0\0\0"           // name, version, flags
                                  "\x60\0\0\0\0\0\0\0\1\0\0\0\0\0\0\0" // bytes, rows
                                  "\1\0\0\0\0\0\0\0\2\0\0\0\0\0\0\0"   // cells, units
                                  "\0\0\0\0\0\0\0\0",                  // captions
                                  56);
    const std::string bytes = Packed(table);
    ASSERT_EQ(bytes.size(), 96U);
    EXPECT_EQ(bytes.substr(0, 56), header);
    EXPECT_EQ(bytes.substr(64, 8), "\x08\x07\x06\x05\x04\x03\x02\x01");
    EXPECT_EQ(bytes.substr(92), std::string("A\0\xAC\x20", 4));
}

TEST(CellPack, BytesBehindIt_AreNotItsOwn)
{
    CellTable table;
    EXPECT_EQ(ReadCellPack(Packed(Small()) + std::string(100, 'x'), table), CellPackError::None);
    EXPECT_EQ(table, Small());
}

TEST(CellPack, OtherBytes_AreRefusedWithAReason)
{
    const std::string bytes = Packed(Small());
    EXPECT_EQ(ErrorOf(""), CellPackError::NoPack);
    EXPECT_EQ(ErrorOf("QCEL"), CellPackError::Cut);
    EXPECT_EQ(ErrorOf("a table"), CellPackError::NoPack);
    EXPECT_EQ(ErrorOf(std::string(200, '\0')), CellPackError::NoPack);
    EXPECT_EQ(ErrorOf(WithNumber(bytes, 8, 2, 4)), CellPackError::OtherVersion);
    EXPECT_EQ(ErrorOf(bytes.substr(0, bytes.size() - 1)), CellPackError::Cut);
    EXPECT_EQ(ErrorOf(bytes.substr(0, 40)), CellPackError::Cut);
    std::string changed = bytes;
    changed.back() = static_cast<char>(changed.back() ^ 1);
    EXPECT_EQ(ErrorOf(changed), CellPackError::Damaged);
}

TEST(CellPack, EveryNumber_IsChecked)
{
    const std::string bytes = Packed(Small());
    const auto wrong = [&](std::size_t at, std::uint64_t number, std::size_t size) {
        return ErrorOf(WithNumber(bytes, at, number, size)) == CellPackError::Damaged;
    };
    EXPECT_TRUE(wrong(12, 3, 4)) << "an unknown flag";
    EXPECT_TRUE(wrong(12, 0, 4)) << "cells of captions without captions";
    EXPECT_TRUE(wrong(16, 63, 8)) << "shorter than the header";
    EXPECT_TRUE(wrong(16, bytes.size() - 1, 8)) << "shorter than its sections";
    EXPECT_TRUE(wrong(24, 4, 8)) << "rows";
    EXPECT_TRUE(wrong(24, ~0ULL / 24 + 2, 8)) << "rows that overflow";
    EXPECT_TRUE(wrong(32, 7, 8)) << "cells";
    EXPECT_TRUE(wrong(32, 1ULL << 62, 8)) << "cells that overflow";
    EXPECT_TRUE(wrong(40, 1ULL << 63, 8)) << "units that overflow";
    EXPECT_TRUE(wrong(48, 3, 8)) << "captions";
    EXPECT_TRUE(wrong(48, 1ULL << 40, 8)) << "more captions than cells";
    EXPECT_TRUE(wrong(64 + 8, 0x80000000, 4)) << "a negative level";
    EXPECT_TRUE(wrong(64 + 12, 2, 4)) << "cells of a row";
    EXPECT_TRUE(wrong(64 + 16, 2, 4)) << "a flag of a row";
    EXPECT_TRUE(wrong(64 + 20, 1, 4)) << "what is to be nothing";
    EXPECT_TRUE(wrong(64 + 3 * 24, 5, 4)) << "a length";
    EXPECT_FALSE(wrong(64 + 8, 9, 4)) << "another level";
}

TEST(CellPack, RandomTables_ComeBackAsTheyWere)
{
    std::mt19937 random(20262);
    for (int i = 0; i < RandomTableNum(); ++i)
    {
        const CellTable table = RandomTable(random, {});
        const std::string bytes = Packed(table);
        CellTable read;
        ASSERT_EQ(ReadCellPack(bytes, read), CellPackError::None) << "table " << i;
        ASSERT_TRUE(read == table) << "table " << i << "\n" << Shown(read) << "\nfor\n" << Shown(table);
        ASSERT_EQ(Packed(read), bytes);
    }
}

TEST(CellPack, DamagedPacks_AreReadExactlyOrRefused)
{
    std::mt19937 random(20263);
    for (int i = 0; i < RandomTableNum() / 5; ++i)
    {
        std::string bytes = Packed(RandomTable(random, {}));
        for (auto changes = random() % 3 + 1; changes > 0; --changes)
        {
            // Anywhere but in the sum, which is mended.
            const std::size_t at = random() % bytes.size();
            bytes = WithNumber(bytes, at / 8 == 7 ? at - 8 : at, random() % 256, 1);
        }
        CellTable read;
        if (ReadCellPack(bytes, read) != CellPackError::None)
            continue;
        const std::string again = Packed(read);
        ASSERT_EQ(again, bytes.substr(0, again.size())) << "table " << i;
    }
}

} // namespace
} // namespace quor::test
