// The keyboard as a user presses it.
#include "tests/grid/HeaderFixture.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class KeyInput : public HeaderFixture
{
protected:
    static std::string Edited(CommandGrid& grid)
    {
        long row = -1;
        long col = -1;
        return grid.GetCurCell(row, col) ? std::to_string(row) + "," + std::to_string(col) : "-";
    }
    void Start(CommandGrid& grid, const std::string& rows, int cols = 3)
    {
        Make(grid, rows, cols);
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        grid.TakeLog();
    }
    // The state after a key: "hooks / rows / cols / edit".
    static std::string After(CommandGrid& grid, WORD key, Modifiers modifiers = Modifiers::None)
    {
        KeyPress(key, modifiers);
        return grid.TakeText() + " / " + grid.Rows() + " / " + grid.Cols() + " / " + Edited(grid);
    }
};

TEST_F(KeyInput, KeysOfAPlainGrid_OneAfterTheOther)
{
    CommandGrid grid;
    Start(grid, "cab");
    grid.AppendKey(0);
    EXPECT_EQ(After(grid, 'R'), "OnDataChanged / a b c / A B C / -");
    EXPECT_EQ(After(grid, 'U'), "OnDataChanged / c b a / A B C / -");
    EXPECT_EQ(After(grid, 'A'), " / c* b* a* / A B C / -");
    EXPECT_EQ(After(grid, VK_ESCAPE), " / c b a / A B C / -");
    grid.SelectRows({0});
    EXPECT_EQ(After(grid, VK_DOWN), " / c b* a / A B C / -");
    EXPECT_EQ(After(grid, VK_UP), " / c* b a / A B C / -");
    EXPECT_EQ(After(grid, 'C'), "OnBeforeCopy | OnEndCopy / c* b a / A B C / -");
    EXPECT_EQ(After(grid, 'V'), "OnBeforePaste 0 | OnEndPaste | OnDataChanged / c* c b a / A B C / -");
    EXPECT_EQ(After(grid, 'X'), "OnBeforeClip | OnEndClip | OnDataChanged / c b a / A B C / -");
    EXPECT_EQ(After(grid, 'V'), "OnBeforePaste 3 | OnEndPaste | OnDataChanged / c b a c* / A B C / -");
    EXPECT_EQ(After(grid, VK_DELETE),
              "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged / c b a / A B C / -");
    EXPECT_EQ(After(grid, 'N'), "OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged / c b a * / A B C / -");
    EXPECT_EQ(After(grid, VK_INSERT),
              "OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged / c b a *  / A B C / -");
    EXPECT_EQ(After(grid, 'N'),
              "OnBeforeInsertRow 4 | OnInsertRow 4 | OnDataChanged / c b a  *  / A B C / -");
    EXPECT_EQ(After(grid, VK_RETURN), " / c b a    / A B C / 4,0");
    EXPECT_EQ(After(grid, VK_TAB), " / c b a    / A B C / 4,1");
    EXPECT_EQ(After(grid, VK_RIGHT), " / c b a    / A B C / 4,2");
    EXPECT_EQ(After(grid, VK_LEFT), " / c b a    / A B C / 4,1");
    EXPECT_EQ(After(grid, VK_UP), " / c b a    / A B C / 3,1");
    EXPECT_EQ(After(grid, VK_DOWN), " / c b a    / A B C / 4,1");
    EXPECT_EQ(After(grid, VK_ESCAPE), " / c b a    / A B C / -");
    grid.SelectCols({1});
    EXPECT_EQ(After(grid, VK_RIGHT), " / c b a    / A B C* / -");
    EXPECT_EQ(After(grid, VK_LEFT), " / c b a    / A B* C / -");
    EXPECT_EQ(After(grid, VK_INSERT),
              "OnBeforeInsertCol 1 | OnInsertCol 1 | OnDataChanged / c b a    / A * B C / -");
    EXPECT_EQ(After(grid, 'N'),
              "OnBeforeInsertCol 2 | OnInsertCol 2 | OnDataChanged / c b a    / A  * B C / -");
    EXPECT_EQ(After(grid, VK_DELETE),
              "OnBeforeDeleteCol | OnEndDeleteCol | OnDataChanged / c b a    / A  B C / -");
    EXPECT_EQ(After(grid, VK_TAB), " / c b a    / A  B C / -");
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(KeyInput, KeysOfATreeGrid)
{
    CommandGrid grid(true);
    Start(grid, "ab");
    grid.SelectRows({1});
    EXPECT_EQ(After(grid, 'T'),
              "OnBeforeInsertChild b 0 | OnInsertRow -1 | OnDataChanged / a b*() / A B C / -");
    EXPECT_EQ(After(grid, VK_INSERT, Modifiers::Control),
              "OnBeforeInsertRow 1 | OnInsertRow 1 | OnDataChanged / a *() b() / A B C / -");
    EXPECT_EQ(After(grid, 'N', Modifiers::Control),
              "OnBeforeInsertRow 2 | OnInsertRow 2 | OnDataChanged / a () *() b() / A B C / -");
    EXPECT_EQ(After(grid, 'X', Modifiers::Control),
              "OnBeforeClip | OnEndClip | OnDataChanged / a () b() / A B C / -");
    grid.SelectRows({0});
    EXPECT_EQ(After(grid, 'V', Modifiers::Control),
              "OnBeforePasteChild a | OnEndPaste | OnDataChanged / a(*()) () b() / A B C / -");
    grid.UnSelect();
    EXPECT_EQ(After(grid, 'N', Modifiers::Control),
              "OnBeforeInsertRow 4 | OnInsertRow 4 | OnDataChanged / a(()) () b() () / A B C / -");
}

TEST_F(KeyInput, PageKeysAndHome_Scroll)
{
    CommandGrid grid;
    Start(grid, std::string(100, 'r'));
    KeyPress(VK_NEXT);
    EXPECT_EQ(grid.VScroll(), grid.Area().Height());
    KeyPress(VK_DOWN);
    EXPECT_EQ(grid.VScroll(), grid.Area().Height() + 20);
    KeyPress(VK_PRIOR);
    EXPECT_EQ(grid.VScroll(), 20);
    KeyPress(VK_HOME);
    EXPECT_EQ(grid.VScroll(), 0);
}

TEST_F(KeyInput, TypedText_IsCommittedByTheKeysThatGoOn)
{
    CommandGrid grid;
    Start(grid, "ab");
    grid.SelectRows({0});
    KeyPress(VK_RETURN);
    TypeText(L"x1");
    KeyPress(VK_TAB);
    TypeText(L"x2");
    KeyPress(VK_DOWN);
    TypeText(L"y2");
    KeyPress(VK_ESCAPE);
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"x1");
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"x2");
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"");
}

TEST_F(KeyInput, FromNothingToATableOfFiveByFive)
{
    CommandGrid grid;
    Create(grid);
    ASSERT_TRUE(Activate(host));
    grid.SetFocus();
    // The first column is the host's; there is no key for it without one.
    grid.AppendCol(L"1", colWidth);
    grid.SelectCol(0, true);
    for (int col = 1; col < 5; ++col)
        KeyPress('N');
    KeyPress(VK_ESCAPE);
    KeyPress('N');
    KeyPress(VK_RETURN);
    for (char row = 'a'; row <= 'e'; ++row)
    {
        for (char col = '1'; col <= '5'; ++col)
        {
            TypeText(std::wstring{static_cast<wchar_t>(row), static_cast<wchar_t>(col)});
            KeyPress(VK_TAB);
        }
        if (row != 'e')
            KeyPress(VK_RETURN);
    }
    KeyPress(VK_ESCAPE);
    ASSERT_EQ(grid.GetRowNum(), 5);
    ASSERT_EQ(grid.GetColNum(), 5);
    std::string table;
    for (long row = 0; row < 5; ++row)
    {
        for (long col = 0; col < 5; ++col)
            table += std::string(CStringA(grid.GetCell(row, col).GetText()).GetString()) + " ";
        table += "| ";
    }
    EXPECT_EQ(table, "a1 a2 a3 a4 a5 | b1 b2 b3 b4 b5 | c1 c2 c3 c4 c5 | d1 d2 d3 d4 d5 | e1 e2 e3 e4 e5 | ");
}

} // namespace
} // namespace quor::test
