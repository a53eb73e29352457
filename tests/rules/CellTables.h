// Tables of the tests of clipboard formats: written down as text, compared as text, and random ones.
#pragma once

#include "rules/CellTable.h"

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace quor::test
{

// One line for each row, cells between bars, what cannot be read as numbers: "a|b~9|". Captions begin with
// "^", rows of a tree with level, fold and identifier: "1+42:".
std::string Shown(const QuorUiCtr::CellTable& table);

// What random tables are made of.
struct TableKind
{
    std::size_t mostRows = 6;
    std::size_t mostCols = 5;
    std::size_t longest = 12;
    bool hasNuls = true;
    // Halves of surrogate pairs.
    bool hasHalves = true;
    bool hasCaptions = true;
    // Rows without a cell.
    bool hasEmptyRows = true;
    bool hasMarks = true;
};

// Tables of hostile texts: separators, quotes, breaks, blanks, markup, characters of all planes.
QuorUiCtr::CellTable RandomTable(std::mt19937& random, const TableKind& kind);

// With the guard allocator each text takes pages of its own: what is to be many is fewer there.
#ifdef NDEBUG
constexpr bool HasSlowMemory = false;
#else
constexpr bool HasSlowMemory = sizeof(wchar_t) == 2;
#endif

// How many random tables a test makes: QUOR_RANDOM_TABLES, else 10,000; 1,500 in the checked variant.
int RandomTableNum();

} // namespace quor::test
