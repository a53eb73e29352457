// What the documents say of extensions is what is compiled: the example, and the table of keys.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"
#include "samples/extension/ChangeMarks.h"
#include "tests/grid/WindowGrid.h"

#include <fstream>
#include <iterator>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::string ReadSource(const std::string& path)
{
    std::ifstream file(QUOR_SOURCE_FOLDER "/" + path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// What stands between two texts, from behind the first one.
std::string Between(const std::string& text, const std::string& begin, const std::string& end)
{
    const std::size_t first = text.find(begin);
    if (first == std::string::npos)
        return "";
    const std::size_t from = first + begin.size();
    return text.substr(from, text.find(end, from) - from);
}

TEST(Documents, TheExampleOfAnExtension_IsTheSample)
{
    EXPECT_EQ(Between(ReadSource("docs/EXTENDING.md"), "```cpp\n", "```"),
              ReadSource("samples/extension/ChangeMarks.h"));
}

std::string LinesOf(const std::vector<TGKeyDescription>& keys)
{
    std::string table;
    for (const TGKeyDescription& key : keys)
    {
        const std::wstring line = std::wstring(L"| ") + key.keys + L" | " + key.action + L" |\n";
        for (const wchar_t character : line)
            table += static_cast<char>(character);
    }
    return table;
}

TEST(Documents, TheTablesOfKeys_AreThoseOfCursorAndClipboard)
{
    const std::string page = ReadSource("docs/KEYS.md");
    EXPECT_EQ(Between(page, "|---|---|\n", "\n\n") + "\n", LinesOf(TGCellCursor::GetKeys()));
    EXPECT_EQ(Between(page.substr(page.find("## With a clipboard")), "|---|---|\n", "\n\n"),
              LinesOf(TGClipboard::GetKeys()));
}

class Marks : public GridWindowTest
{
};

TEST_F(Marks, ColourChangedCells_UntilTheyAreAccepted)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 3, 2);
    samples::ChangeMarks marks(grid);
    grid.GetCell(1, 1).SetText(L"new");
    constexpr COLORREF yellow = RGB(255, 244, 200);
    EXPECT_GT(Snapshot(grid).CountColour(grid.InsideOf(1, 1), yellow), 0);
    EXPECT_EQ(Snapshot(grid).CountColour(grid.InsideOf(1, 0), yellow), 0);
    grid.SendMessage(WM_COMMAND, 0x114);
    EXPECT_EQ(Snapshot(grid).CountColour(grid.InsideOf(1, 1), yellow), 0);
}

TEST_F(Marks, GoWithTheTextTheRowAndTheColumn)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 3, 3);
    samples::ChangeMarks marks(grid);
    grid.GetCell(0, 0).SetText(L"new");
    grid.GetCell(0, 0).SetText(L"0,0");
    EXPECT_EQ(marks.GetNumber(), 0U);
    for (long i = 0; i < 3; ++i)
        grid.GetCell(i, i).SetText(L"new");
    grid.DelRow(0);
    EXPECT_EQ(marks.GetNumber(), 2U);
    grid.DelCol(1);
    EXPECT_EQ(marks.GetNumber(), 1U);
}

} // namespace
} // namespace quor::test
