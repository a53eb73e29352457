// The key map: each key with an editor open and without, as a table; and what keys pass on the way to it.
#include "tests/grid/HeaderFixture.h"

#include <ostream>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// The state that a key finds.
struct KeyState
{
    const char* rows = "abc";
    int cols = 3;
    bool tree = false;
    std::vector<long> selectedRows;
    std::vector<long> selectedCols;
    int style = 0;
    long editRow = -1;
    long editCol = -1;
};

struct KeyCase
{
    const char* name;
    UINT key;
    bool control;
    KeyState state;
    // "hooks / rows / cols / edit" after the key.
    const char* expected;
};

void PrintTo(const KeyCase& test, std::ostream* out)
{
    *out << test.name;
}

constexpr int FixedRows = 0x0002;
constexpr int NoSort = 0x0020;
constexpr int PosFix = 0x0100;
constexpr int SingleSel = 0x0400;
constexpr int NoAppend = 0x4000;
constexpr int ReadOnly = 0x0001;

KeyState Rows(std::vector<long> selected, int style = 0, const char* rows = "abc")
{
    KeyState state;
    state.selectedRows = std::move(selected);
    state.style = style;
    state.rows = rows;
    return state;
}
KeyState Cols(std::vector<long> selected, int cols = 3)
{
    KeyState state;
    state.selectedCols = std::move(selected);
    state.cols = cols;
    return state;
}
KeyState Edit(long row, long col, int style = 0, const char* rows = "abc", int cols = 3)
{
    KeyState state;
    state.editRow = row;
    state.editCol = col;
    state.style = style;
    state.rows = rows;
    state.cols = cols;
    return state;
}
KeyState Tree(std::vector<long> selected)
{
    KeyState state;
    state.tree = true;
    state.selectedRows = std::move(selected);
    return state;
}

const KeyCase keyCases[] = {
    // With an editor open.
    {"TabGoesToTheNextColumn", VK_TAB, false, Edit(1, 0), " / a b c / A B C / 1,1"},
    {"TabWrapsInTheRow", VK_TAB, false, Edit(1, 2), " / a b c / A B C / 1,0"},
    {"TabEndsTheEditOfTheOnlyColumn", VK_TAB, false, Edit(1, 0, 0, "abc", 1), " / a b c / A / -"},
    {"ReturnGoesDown", VK_RETURN, false, Edit(1, 1), " / a b c / A B C / 2,1"},
    {"ReturnGoesOnToTheNewRow", VK_RETURN, false, Edit(2, 1), " / a b c / A B C / 3,1"},
    {"ReturnInTheNewRowAppendsARow", VK_RETURN, false, Edit(3, 1),
     "OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged / a b c  / A B C / 4,1"},
    {"ReturnWrapsWithoutANewRow", VK_RETURN, false, Edit(2, 1, NoAppend), " / a b c / A B C / 0,1"},
    {"ReturnEndsTheEditOfTheOnlyRow", VK_RETURN, false, Edit(0, 1, NoAppend, "a"), " / a / A B C / -"},
    {"EscapeDropsTheEdit", VK_ESCAPE, false, Edit(1, 1), " / a b c / A B C / -"},
    {"LeftWraps", VK_LEFT, false, Edit(1, 0), " / a b c / A B C / 1,2"},
    {"LeftGoesBack", VK_LEFT, false, Edit(1, 2), " / a b c / A B C / 1,1"},
    {"LeftInTheOnlyColumnStays", VK_LEFT, false, Edit(1, 0, 0, "abc", 1), " / a b c / A / 1,0"},
    {"RightWraps", VK_RIGHT, false, Edit(1, 2), " / a b c / A B C / 1,0"},
    {"UpGoesUp", VK_UP, false, Edit(2, 1), " / a b c / A B C / 1,1"},
    {"UpWrapsToTheNewRow", VK_UP, false, Edit(0, 1), " / a b c / A B C / 3,1"},
    {"UpFromTheNewRow", VK_UP, false, Edit(3, 1), " / a b c / A B C / 2,1"},
    {"UpWrapsToTheLastRow", VK_UP, false, Edit(0, 1, NoAppend), " / a b c / A B C / 2,1"},
    {"UpInTheOnlyRowStays", VK_UP, false, Edit(0, 1, NoAppend, "a"), " / a / A B C / 0,1"},
    {"UpInAnEmptyGridStays", VK_UP, false, Edit(0, 1, 0, ""), " /  / A B C / 0,1"},
    {"DownGoesDown", VK_DOWN, false, Edit(0, 1), " / a b c / A B C / 1,1"},
    {"DownGoesOnToTheNewRow", VK_DOWN, false, Edit(2, 1), " / a b c / A B C / 3,1"},
    {"DownInTheNewRowAppendsARow", VK_DOWN, false, Edit(3, 2),
     "OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged / a b c  / A B C / 4,2"},
    {"DownWrapsWithoutANewRow", VK_DOWN, false, Edit(2, 1, NoAppend), " / a b c / A B C / 0,1"},
    {"DownInTheOnlyRowStays", VK_DOWN, false, Edit(0, 1, NoAppend, "a"), " / a / A B C / 0,1"},
    // Without.
    {"TabDoesNothing", VK_TAB, false, Rows({1}), " / a b* c / A B C / -"},
    {"ReturnEditsTheSelectedRow", VK_RETURN, false, Rows({1}), " / a b c / A B C / 1,0"},
    {"ReturnWithTwoRowsDoesNothing", VK_RETURN, false, Rows({0, 1}), " / a* b* c / A B C / -"},
    {"ReturnWithAColumnDoesNothing", VK_RETURN, false, Cols({1}), " / a b c / A B* C / -"},
    {"EscapeUnselects", VK_ESCAPE, false, Rows({0, 1}), " / a b c / A B C / -"},
    {"UpSelectsThePreviousRow", VK_UP, false, Rows({1}), " / a* b c / A B C / -"},
    {"UpWrapsTheSelection", VK_UP, false, Rows({0}), " / a b c* / A B C / -"},
    {"DownSelectsTheNextRow", VK_DOWN, false, Rows({1}), " / a b c* / A B C / -"},
    {"DownWrapsTheSelection", VK_DOWN, false, Rows({2}), " / a* b c / A B C / -"},
    {"DownWithTwoRowsDoesNothing", VK_DOWN, false, Rows({0, 1}), " / a* b* c / A B C / -"},
    {"DownInTheOnlyRow", VK_DOWN, false, Rows({0}, 0, "a"), " / a* / A B C / -"},
    {"DownWithAColumn", VK_DOWN, false, Cols({1}), " / a b c / A B* C / -"},
    {"LeftSelectsThePreviousColumn", VK_LEFT, false, Cols({1}), " / a b c / A* B C / -"},
    {"LeftWrapsTheSelection", VK_LEFT, false, Cols({0}), " / a b c / A B C* / -"},
    {"RightSelectsTheNextColumn", VK_RIGHT, false, Cols({1}), " / a b c / A B C* / -"},
    {"RightWrapsTheSelection", VK_RIGHT, false, Cols({2}), " / a b c / A* B C / -"},
    {"RightWithARow", VK_RIGHT, false, Rows({1}), " / a b* c / A B C / -"},
    {"RightInTheOnlyColumn", VK_RIGHT, false, Cols({0}, 1), " / a b c / A* / -"},
    {"InsertWithARow", VK_INSERT, false, Rows({1}),
     "OnBeforeInsertRow 1 | OnInsertRow 1 | OnDataChanged / a * b c / A B C / -"},
    {"InsertWithAColumn", VK_INSERT, false, Cols({1}),
     "OnBeforeInsertCol 1 | OnInsertCol 1 | OnDataChanged / a b c / A * B C / -"},
    {"InsertWithNothing", VK_INSERT, false, Rows({}), " / a b c / A B C / -"},
    {"InsertWithTwoRows", VK_INSERT, false, Rows({0, 1}), " / a* b* c / A B C / -"},
    {"ControlInsertInAPlainGrid", VK_INSERT, true, Rows({1}), " / a b* c / A B C / -"},
    {"ControlInsertInATree", VK_INSERT, true, Tree({1}),
     "OnBeforeInsertRow 1 | OnInsertRow 1 | OnDataChanged / a *() b c / A B C / -"},
    {"DeleteRows", VK_DELETE, false, Rows({0, 2}),
     "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged / b / A B C / -"},
    {"DeleteColumns", VK_DELETE, false, Cols({0}),
     "OnBeforeDeleteCol | OnEndDeleteCol | OnDataChanged /  / B C / -"},
    {"DeleteNothing", VK_DELETE, false, Rows({}), " / a b c / A B C / -"},
    {"SelectAll", 'A', false, Rows({}), " / a* b* c* / A B C / -"},
    {"SelectAllWithSingleSelection", 'A', false, Rows({}, SingleSel), " / a b c / A B C / -"},
    {"SelectAllOfOneRow", 'A', false, Rows({}, SingleSel, "a"), " / a* / A B C / -"},
    {"Copy", 'C', false, Rows({1}), "OnBeforeCopy | OnEndCopy / a b* c / A B C / -"},
    {"ControlCopy", 'C', true, Rows({1}), "OnBeforeCopy | OnEndCopy / a b* c / A B C / -"},
    {"NewBehindTheColumn", 'N', false, Cols({1}),
     "OnBeforeInsertCol 2 | OnInsertCol 2 | OnDataChanged / a b c / A B * C / -"},
    {"NewBehindTheRow", 'N', false, Rows({1}),
     "OnBeforeInsertRow 2 | OnInsertRow 2 | OnDataChanged / a b * c / A B C / -"},
    {"NewAtTheEnd", 'N', false, Rows({}),
     "OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged / a b c * / A B C / -"},
    {"NewWithFixedRows", 'N', false, Rows({}, FixedRows), " / a b c / A B C / -"},
    {"ControlNewBehindTheRowOfATree", 'N', true, Tree({1}),
     "OnBeforeInsertRow 2 | OnInsertRow 2 | OnDataChanged / a b *() c / A B C / -"},
    {"ControlNewAtTheEndOfATree", 'N', true, Tree({}),
     "OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged / a b c () / A B C / -"},
    {"ControlNewInAPlainGrid", 'N', true, Rows({}), " / a b c / A B C / -"},
    {"SortUp", 'R', false, Rows({}, 0, "bca"), "OnDataChanged / a b c / A B C / -"},
    {"SortUpSwitchedOff", 'R', false, Rows({}, NoSort, "bca"), " / b c a / A B C / -"},
    {"SortUpWithFixedPositions", 'R', false, Rows({}, PosFix, "bca"), " / b c a / A B C / -"},
    {"SortUpReadOnly", 'R', false, Rows({}, ReadOnly, "bca"), " / b c a / A B C / -"},
    {"SortDown", 'U', false, Rows({}, 0, "bca"), "OnDataChanged / c b a / A B C / -"},
    {"SortDownSwitchedOff", 'U', false, Rows({}, NoSort, "bca"), " / b c a / A B C / -"},
    {"AppendChild", 'T', false, Tree({1}),
     "OnBeforeInsertChild b 0 | OnInsertRow -1 | OnDataChanged / a b*() c / A B C / -"},
    {"AppendChildInAPlainGrid", 'T', false, Rows({1}), " / a b* c / A B C / -"},
    {"Paste", 'V', false, Rows({1}), "OnBeforePaste 1 | OnEndPaste | OnDataChanged / a a* b c / A B C / -"},
    {"PasteAtTheEnd", 'V', false, Rows({}),
     "OnBeforePaste 3 | OnEndPaste | OnDataChanged / a b c a* / A B C / -"},
    {"ControlPasteInAPlainGrid", 'V', true, Rows({1}), " / a b* c / A B C / -"},
    {"ControlPasteInATree", 'V', true, Tree({1}),
     "OnBeforePasteChild b | OnEndPaste | OnDataChanged / a b(a*) c / A B C / -"},
    {"PasteInATree", 'V', false, Tree({1}),
     "OnBeforePaste 1 | OnEndPaste | OnDataChanged / a a* b c / A B C / -"},
    {"Cut", 'X', false, Rows({1}), "OnBeforeClip | OnEndClip | OnDataChanged / a c / A B C / -"},
    {"EndDoesNothing", VK_END, false, Rows({1}), " / a b* c / A B C / -"},
    {"OtherLettersDoNothing", 'B', false, Rows({1}), " / a b* c / A B C / -"},
};

class KeyMap : public HeaderFixture, public testing::WithParamInterface<KeyCase>
{
protected:
    static std::string Edited(CommandGrid& grid)
    {
        long row = -1;
        long col = -1;
        return grid.GetCurCell(row, col) ? std::to_string(row) + "," + std::to_string(col) : "-";
    }
};

TEST_P(KeyMap, DoesWhatTheTableSays)
{
    const KeyState& state = GetParam().state;
    CommandGrid grid(state.tree);
    Make(grid, state.rows, state.cols);
    grid.AppendKey(0);
    if (grid.GetRowNum() > 0)
        grid.SelectRows({0});
    grid.DoCopy();
    grid.UnSelect();
    for (const long row : state.selectedRows)
        grid.SelectRow(row, true);
    for (const long col : state.selectedCols)
        grid.SelectCol(col, true);
    if (state.editRow >= 0)
        grid.BeginEditCell(state.editRow, state.editCol);
    grid.SetStyle(state.style);
    grid.TakeLog();
    const HeldKeys held{GetParam().control ? VK_CONTROL : 0};
    grid.SendMessage(WM_KEYDOWN, GetParam().key);
    const std::string outcome =
        grid.TakeText() + " / " + grid.Rows() + " / " + grid.Cols() + " / " + Edited(grid);
    EXPECT_EQ(outcome, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyMap, testing::ValuesIn(keyCases),
                         [](const testing::TestParamInfo<KeyCase>& test) {
                             return std::string(test.param.name);
                         });

// ---- Scrolling keys

class ScrollKeys : public HeaderFixture
{
protected:
    void SetUp() override
    {
        Make(grid, std::string(100, 'r'), 30, 420, 220);
        ASSERT_EQ(grid.VScroll() + grid.HScroll(), 0);
    }
    std::string Press(UINT key)
    {
        grid.SendMessage(WM_KEYDOWN, key);
        return std::to_string(grid.HScroll()) + "," + std::to_string(grid.VScroll());
    }
    CommandGrid grid;
};

TEST_F(ScrollKeys, ScrollWhenNothingIsSelected)
{
    const int page = grid.Area().Height();
    EXPECT_EQ(Press(VK_DOWN), "0,20");
    EXPECT_EQ(Press(VK_DOWN), "0,40");
    EXPECT_EQ(Press(VK_UP), "0,20");
    EXPECT_EQ(Press(VK_RIGHT), "100,20");
    EXPECT_EQ(Press(VK_RIGHT), "200,20");
    EXPECT_EQ(Press(VK_LEFT), "100,20");
    EXPECT_EQ(Press(VK_NEXT), "100," + std::to_string(20 + page));
    EXPECT_EQ(Press(VK_PRIOR), "100,20");
    EXPECT_EQ(Press(VK_HOME), "0,0");
}

TEST_F(ScrollKeys, ScrollTheOtherDirectionOfASelection)
{
    grid.SelectRow(0, true);
    EXPECT_EQ(Press(VK_RIGHT), "100,0");
    grid.SelectCol(2, true);
    EXPECT_EQ(Press(VK_DOWN), "100,20");
}

TEST_F(ScrollKeys, PagesEndAnEdit)
{
    grid.BeginEditCell(0, 0);
    EXPECT_EQ(Press(VK_NEXT), "0," + std::to_string(grid.Area().Height()));
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(ScrollKeys, WithoutBars_DoNothing)
{
    CommandGrid small;
    Make(small, "ab");
    for (const UINT key : {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT, VK_HOME})
        small.SendMessage(WM_KEYDOWN, key);
    EXPECT_EQ(small.VScroll() + small.HScroll(), 0);
    EXPECT_EQ(small.TakeText(), "");
}

} // namespace
} // namespace quor::test
