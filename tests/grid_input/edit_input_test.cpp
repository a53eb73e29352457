// Editing cells with the real mouse and keyboard, one way at a time.
#include "tests/grid_input/EditDriver.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class GridEditInput : public EditInputTest
{
};

TEST_F(GridEditInput, TypedText_IsCommittedByAClickElsewhere)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(1, Plain);
    user.Type(L"汉字 and Latin");
    EXPECT_STRNE(grid.GetCell(1, Plain).GetText(), L"汉字 and Latin");
    user.ClickCell(2, Plain);
    EXPECT_STREQ(grid.GetCell(1, Plain).GetText(), L"汉字 and Latin");
    EXPECT_TRUE(grid.IsEditing());
    user.ClickBelowRows();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_STREQ(grid.GetCell(2, Plain).GetText(), L"2,0");
}

TEST_F(GridEditInput, CaretClickInsideTheEditor_InsertsThere)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    grid.GetCell(1, Plain).SetText(L"ends");
    EditDriver user(grid);
    user.ClickCell(1, Plain);
    // The second click puts the caret behind the text.
    user.ClickCell(1, Plain);
    user.Type(L" here");
    user.ClickBelowRows();
    EXPECT_STREQ(grid.GetCell(1, Plain).GetText(), L"ends here");
}

TEST_F(GridEditInput, ArrowsOfTheSpin_Count)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(1, Spin);
    user.SpinUp(3);
    CString text;
    grid.editor->GetNewText(text);
    EXPECT_STREQ(text, L"13");
    user.SpinDown();
    user.ClickBelowRows();
    EXPECT_STREQ(grid.GetCell(1, Spin).GetText(), L"12");
}

TEST_F(GridEditInput, SpinGoesOnFromATypedNumber)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(1, Spin);
    user.Type(L"57");
    user.SpinUp();
    user.ClickBelowRows();
    EXPECT_STREQ(grid.GetCell(1, Spin).GetText(), L"58");
}

TEST_F(GridEditInput, ClickedItemOfAList_IsInTheCellAtOnce)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(1, List);
    user.ChooseItem(2);
    EXPECT_STREQ(grid.GetCell(1, List).GetText(), L"无花果 fig");
    EXPECT_TRUE(grid.IsEditing());
    grid.TakeText();
    user.ClickBelowRows();
    EXPECT_EQ(grid.TakeEditText().substr(0, 14), "OnModified 1,4");
    EXPECT_STREQ(grid.GetCell(1, List).GetText(), L"无花果 fig");
}

TEST_F(GridEditInput, EditableCombo_TakesAnItemOrTypedText)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(1, Combo);
    user.ChooseItem(1);
    user.ClickCell(2, Combo);
    user.Type(L"樱桃 tart");
    user.ClickBelowRows();
    EXPECT_STREQ(grid.GetCell(1, Combo).GetText(), L"梨 pear");
    EXPECT_STREQ(grid.GetCell(2, Combo).GetText(), L"樱桃 tart");
}

TEST_F(GridEditInput, FieldOfTheEditableCombo_TakesNoMoreThanItShows)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(2, Combo);
    user.Type(L"a text that is much wider than its column");
    user.ClickBelowRows();
    EXPECT_GT(grid.GetCell(2, Combo).GetText().GetLength(), 5);
    EXPECT_LT(grid.GetCell(2, Combo).GetText().GetLength(), 20);
}

TEST_F(GridEditInput, PressedCellButton_ChangesTheTextAndKeepsTheEditor)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(1, Button);
    user.Type(L"按");
    user.PressButton();
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(FocusedWindow(), grid.EditorWindow());
    CString text;
    grid.editor->GetNewText(text);
    EXPECT_STREQ(text, L"按!");
    user.ClickBelowRows();
    EXPECT_STREQ(grid.GetCell(1, Button).GetText(), L"按!");
}

TEST_F(GridEditInput, FoldBox_FoldsAndUnfoldsWithoutAnEditor)
{
    EditGrid grid(true);
    Create(grid, 600, 400);
    grid.AppendCol(L"tree", 200);
    grid.AppendRow(nullptr);
    for (int child = 0; child < 3; ++child)
        grid.GetTreeRow(0).AppendChild(nullptr);
    grid.GetTreeRow(0).GetLastChild().AppendChild(nullptr);
    ASSERT_TRUE(Activate(host));
    EditDriver user(grid);
    user.ClickFoldBox(0, 0);
    EXPECT_EQ(grid.GetRowNum(), 4);
    user.ClickFoldBox(3, 1);
    EXPECT_EQ(grid.GetRowNum(), 5);
    EXPECT_FALSE(grid.IsEditing());
    user.ClickFoldBox(0, 0);
    EXPECT_EQ(grid.GetRowNum(), 1);
    EXPECT_FALSE(grid.IsEditing());
    // Right of the box the same cell is edited.
    user.ClickCell(0, 0);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(GridEditInput, FoldBox_CommitsTheEditFirst)
{
    EditGrid grid(true);
    Create(grid, 600, 400);
    grid.AppendCol(L"tree", 200);
    grid.AppendCol(L"text", 200);
    grid.AppendRow(nullptr);
    grid.GetTreeRow(0).AppendChild(nullptr);
    grid.GetTreeRow(0).UnFold();
    ASSERT_TRUE(Activate(host));
    EditDriver user(grid);
    user.ClickCell(1, 1);
    user.Type(L"child");
    user.ClickFoldBox(0, 0);
    ASSERT_EQ(grid.GetRowNum(), 1);
    EXPECT_STREQ(grid.GetTreeRow(0).GetLastChild()[1].GetText(), L"child");
}

TEST_F(GridEditInput, RightClick_EndsTheEditAndNamesTheCell)
{
    struct RightClickGrid : EditGrid
    {
        std::string clicked;
        void OnRClickCell(TGGridCell& cell, CPoint) override
        {
            clicked = std::to_string(cell.GetRowIndex()) + "," + std::to_string(cell.GetColIndex());
            EXPECT_FALSE(IsEditing());
        }
    } grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(1, Plain);
    user.Type(L"typed");
    user.RightClickCell(2, Combo);
    EXPECT_EQ(grid.clicked, "2,3");
    EXPECT_STREQ(grid.GetCell(1, Plain).GetText(), L"typed");
}

TEST_F(GridEditInput, NewRowLine_BecomesARowWithTheTypedText)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(3, Plain);
    ASSERT_TRUE(grid.IsEditing());
    EXPECT_EQ(grid.GetRowNum(), 3);
    user.Type(L"新行 new");
    grid.TakeText();
    user.ClickCell(0, Plain);
    ASSERT_EQ(grid.GetRowNum(), 4);
    EXPECT_STREQ(grid.GetCell(3, Plain).GetText(), L"新行 new");
    EXPECT_EQ(grid.TakeEditText().substr(0, 14), "OnModified 3,0");
    // The next line stands below.
    user.ClickCell(4, List);
    user.ChooseItem(0);
    user.ClickBelowRows();
    ASSERT_EQ(grid.GetRowNum(), 5);
    EXPECT_STREQ(grid.GetCell(4, List).GetText(), L"苹果 apple");
}

TEST_F(GridEditInput, NewRowLineLeftWithoutTyping_StaysALine)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    EditDriver user(grid);
    user.ClickCell(3, Plain);
    user.ClickCell(0, Plain);
    user.ClickBelowRows();
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(GridEditInput, ReadOnlyCell_IsNotOpened)
{
    EditGrid grid;
    MakeAllKinds(grid, 3);
    grid.GetCol(Plain).SetReadOnly(true);
    EditDriver user(grid);
    user.ClickCell(1, Plain);
    user.Type(L"nowhere");
    EXPECT_FALSE(grid.IsEditing());
    user.ClickBelowRows();
    EXPECT_STREQ(grid.GetCell(1, Plain).GetText(), L"1,0");
}

TEST_F(GridEditInput, ScrollBarUsedDuringAnEdit_CommitsIt)
{
    EditGrid grid;
    MakeAllKinds(grid, 60);
    EditDriver user(grid);
    user.ClickCell(1, Plain);
    user.Type(L"typed");
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    PumpPending();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_STREQ(grid.GetCell(1, Plain).GetText(), L"typed");
}

} // namespace
} // namespace quor::test
