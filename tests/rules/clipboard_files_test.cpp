// What other programs put on the clipboard, as files, and the tables that are to come out;
// clipboard/README.md says who writes such.
#include "rules/CellHtml.h"
#include "rules/CellText.h"
#include "rules/Utf8.h"

#include "tests/rules/CellTables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

const std::string FilesFolder = QUOR_CLIPBOARD_FILES;

struct FileCase
{
    const char* name;
    const char* expected;
};

constexpr FileCase TextFiles[] = {
    {"spreadsheet.txt", "Article|Price|Remark|\n"
                        "bolt, 5\"|1.50|first line\\nsecond line|\n"
                        "nut||  two blanks|\n"
                        "|||\n"
                        "a\\tb|-3|say \"please\"|\n"},
    {"spreadsheet-raw-quotes.txt", "\"so\" they said|5\" pipe|\n"
                                   "\"\"\"|two\\nlines|\n"
                                   "\"left open|1|\n"
                                   "end|2|\n"},
    {"spreadsheet-unix.txt", "Gr\\{F6}\\{DF}e|\\{20AC} 12|\n"
                             "a\\nb|\\{1F600}|\n"
                             "last|line|\n"},
    {"database-tool.txt", "id|name         |since|\n"
                          "1|Miller       |NULL|\n"
                          "2| O'Brien|2024-01-31 00:00:00|\n"},
    {"browser-table.txt", "Name |Length||\n"
                          "Thames |346 km||\n"
                          "Severn |354 km||\n"},
    {"word-processor-table.txt", "One|Two\\{B}halves|\n"
                                 "Three|\\{2022}|Four|\n"},
    {"old-system.txt", "a|b|\n"
                       "c|d\\re|\n"},
    {"file-with-nul.txt", "a\\{0}b|c|\n"
                          "d|\\{0}|\n"},
};

constexpr FileCase CsvFiles[] = {
    {"semicolons.csv", "Artikel|Preis|Text|\n"
                       "Schraube|1,50|3;4|\n"
                       "Mutter|0,05||\n"},
    {"commas.csv", "name|note|\n"
                   "Smith, John|said \"hi\"|\n"
                   " Ann ||\n"},
    {"named-separator.csv", "a|b;c,d|\n"
                            "x\\{7C}y|z|\n"},
};

// With what is noticed: offsets that are wrong (o), an end that is missing (c), and bytes that are no UTF-8
// (b).
constexpr FileCase HtmlFiles[] = {
    {"spreadsheet.html", "Prices & sizes|||\n"
                         "bolt|1,234.50|first\\nsecond   line|\n"
                         "|-3|5\" <steel> red|\n"
                         "|Long text that is cut|Gr\\{F6}\\{DF}e \\{1F600}|\n"},
    {"free-spreadsheet.html", "Name|Value||\n"
                              "two\\nlines|1.5|a < b|\n"
                              "|  indented||\n"},
    {"web-spreadsheet.html", "a>b|12|\n"
                             "|x\\ny|\n"},
    {"browser-selection.html", "The longest rivers:|\n"
                               "Name|Length[1]|\n"
                               "Severn|354 km|\n"
                               "Thames\\n|346 km\\n215 mi|\n"},
    {"browser-cells.html", "b \\{2014} c|folded text|\n"
                           "d||\n"},
    {"word-processor.html", "A sentence that is so long that the program has wrapped it twice or\\nmore||\n"
                            "1.   First \\{2013} \\{201C}quoted\\{201D}||\n"},
    {"mail.html", "^Order|Sum|\n"
                  "4711|12,00 \\{20AC}|\n"
                  "Dear Ann,\\n\\nthanks|0|\n"},
    {"list-without-table.html", "Shopping|\n"
                                "Milk & eggs|\n"
                                "Bread|\n"
                                "rye|\n"
                                "Thanks!|\n"},
    {"old-page.html", "^Year|Births||\n"
                      "|North|South|\n"
                      "1994|12|7|\n"
                      "1996 \\{A9}|?|1 < 2|\n"},
    {"offsets-in-characters.html", "\\{C4}rmel|\\{DF}|\n"
                                   "o"},
    {"offsets-of-nothing.html", "a|\n"
                                "o"},
    {"other-encoding.html", "Gr\\{FFFD}\\{FFFD}e|caf\\{FFFD}|\n"
                            "b"},
    {"cut-short.html", "<td class=\"b|\n"
                       "one|two &am|\n"
                       "three|\n"
                       "c"},
};

std::string ContentOf(const char* name)
{
    std::ifstream file(FilesFolder + "/" + name, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ClipboardFiles, TextOfOtherPrograms_GivesTheirTable)
{
    for (const FileCase& test : TextFiles)
        EXPECT_EQ(Shown(ReadCellText(FromUtf8(ContentOf(test.name)))), test.expected) << test.name;
}

TEST(ClipboardFiles, SeparatedTextOfOtherPrograms_GivesTheirTable)
{
    for (const FileCase& test : CsvFiles)
        EXPECT_EQ(Shown(ReadCsv(FromUtf8(ContentOf(test.name)))), test.expected) << test.name;
}

TEST(ClipboardFiles, HtmlOfOtherPrograms_GivesTheirTable)
{
    for (const FileCase& test : HtmlFiles)
    {
        CellHtmlNotes notes;
        std::string shown = Shown(ReadCellHtml(ContentOf(test.name), &notes));
        shown += notes.hasWrongOffsets ? "o" : "";
        shown += notes.isCut ? "c" : "";
        shown += notes.wrongBytes > 0 ? "b" : "";
        EXPECT_EQ(shown, test.expected) << test.name;
    }
}

// A file that was changed on its way, by its line ends, would test nothing.
TEST(ClipboardFiles, HaveTheLineEndsThatTheyWereWrittenWith)
{
    EXPECT_NE(ContentOf("spreadsheet.txt").find("\r\n"), std::string::npos);
    EXPECT_NE(ContentOf("spreadsheet.txt").find("line\nsecond"), std::string::npos);
    EXPECT_EQ(ContentOf("old-system.txt").find('\n'), std::string::npos);
    EXPECT_EQ(ContentOf("spreadsheet-unix.txt").find('\r'), std::string::npos);
}

TEST(ClipboardFiles, AreAllRead)
{
    std::set<std::string> names = {"README.md"};
    for (const FileCase& test : TextFiles)
        names.insert(test.name);
    for (const FileCase& test : CsvFiles)
        names.insert(test.name);
    for (const FileCase& test : HtmlFiles)
        names.insert(test.name);
    for (const auto& entry : std::filesystem::directory_iterator(FilesFolder))
        EXPECT_EQ(names.count(entry.path().filename().string()), 1U) << entry.path().filename().string();
}

} // namespace
} // namespace quor::test
