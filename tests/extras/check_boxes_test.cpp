// Check boxes in formatted columns, by mouse and keyboard.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGColumnFormats.h"
#include "tests/extras/ExtraGrid.h"

#include <memory>
#include <tuple>
#include <utility>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class CheckBoxes : public ExtraTest<TGColumnFormats>
{
protected:
    void Make()
    {
        ExtraTest::Make();
        extra.SetFormat(1, {.checkBox = true});
        for (long row = 0; row < grid.GetRowNum(); ++row)
            grid.GetCell(row, 1).SetText(L"0");
        Focus();
        host.TakeLog();
        grid.TakeLog();
    }
    CPoint Box(long row) { return grid.InsideOf(row, 1).CenterPoint(); }
    // The second column, "0 1 0 0".
    std::string States()
    {
        std::string states;
        for (long row = 0; row < grid.GetRowNum(); ++row)
            states += (row > 0 ? " " : "") + Narrow(grid.GetCell(row, 1).GetText());
        return states;
    }
};

TEST_F(CheckBoxes, AreDrawn_CheckedOrNot)
{
    Make();
    const CRect box = Ink(1, 1);
    EXPECT_GT(box.Width(), 8);
    EXPECT_LE(box.Width(), 13);
    EXPECT_NEAR(box.CenterPoint().x, Box(1).x, 2);
    EXPECT_NEAR(box.CenterPoint().y, Box(1).y, 2);
    const int unchecked = Picture().CountColour(box, black);
    grid.GetCell(1, 1).SetText(L"1");
    EXPECT_GT(Picture().CountColour(box, black), unchecked);
    grid.GetCell(1, 1).SetText(L"no value");
    EXPECT_GT(Ink(1, 1).Width(), 13) << "a text that is no value is shown";
}

TEST_F(CheckBoxes, AClick_TurnsOver_AsIfTyped)
{
    Make();
    Click(grid, Box(2));
    EXPECT_EQ(States(), "0 0 1 0");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(Changes(), 1);
    EXPECT_EQ(grid.TakeEditText(),
              "OnCurChanged -1,-1 | OnBeforeEdit 2,1 | OnModified 2,1 1 | OnDataChanged");
    Click(grid, Box(2));
    EXPECT_EQ(States(), "0 0 0 0");
}

TEST_F(CheckBoxes, ADoubleClick_TurnsOverTwice)
{
    Make();
    DoubleClick(grid, Box(2));
    EXPECT_EQ(States(), "0 0 0 0");
    EXPECT_EQ(Changes(), 2);
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(CheckBoxes, ClicksBesideTheBox_AndReleasesElsewhere_DoNothing)
{
    Make();
    Click(grid, CPoint(grid.InsideOf(2, 1).left + 8, Box(2).y));
    EXPECT_EQ(States(), "0 0 0 0");
    EXPECT_FALSE(grid.IsEditing());
    PressMouse(grid, Box(2));
    ReleaseMouse(grid, Box(1));
    EXPECT_EQ(States(), "0 0 0 0");
    PressMouse(grid, grid.InsideOf(0, 0).CenterPoint());
    ReleaseMouse(grid, Box(2));
    EXPECT_EQ(States(), "0 0 0 0");
}

TEST_F(CheckBoxes, KeepTheNotationOfTheirCells)
{
    Make();
    grid.GetCell(0, 1).SetText(L"Yes");
    grid.GetCell(1, 1).SetText(L"FALSE");
    grid.GetCell(2, 1).SetText(L"");
    for (const long row : {0L, 1L, 2L})
        EXPECT_TRUE(extra.Toggle(row, 1));
    EXPECT_EQ(States(), "No TRUE 1 0");
    extra.SetFormat(1, {.checkBox = true, .checkedText = L"yes"});
    grid.GetCell(2, 1).SetText(L" ");
    EXPECT_TRUE(extra.Toggle(2, 1));
    EXPECT_EQ(States(), "No TRUE yes 0");
    bool checked = false;
    EXPECT_TRUE(extra.IsCheckBox(2, 1, &checked));
    EXPECT_TRUE(checked);
}

TEST_F(CheckBoxes, ATextThatIsNoValue_IsEdited)
{
    Make();
    grid.GetCell(1, 1).SetText(L"maybe");
    EXPECT_FALSE(extra.IsCheckBox(1, 1));
    EXPECT_FALSE(extra.Toggle(1, 1));
    Click(grid, Box(1));
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 1, 1), L"maybe");
}

TEST_F(CheckBoxes, Space_IsForTheCurrentCell)
{
    Make();
    TGCellCursor cursor(grid);
    cursor.MoveTo(1, 1);
    KeyPress(VK_SPACE);
    PumpPending();
    EXPECT_EQ(States(), "0 1 0 0");
    EXPECT_EQ(Changes(), 1);
    EXPECT_FALSE(grid.IsEditing());
    KeyPress(VK_SPACE);
    PumpPending();
    EXPECT_EQ(States(), "0 0 0 0");
    // In another column a space is typed.
    cursor.MoveTo(1, 0);
    KeyPress(VK_SPACE);
    PumpPending();
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(CheckBoxes, OtherKeysOpenNoEditorOverThem)
{
    Make();
    TGCellCursor cursor(grid);
    cursor.MoveTo(1, 1);
    TypeText(L"x");
    PumpPending();
    EXPECT_FALSE(grid.IsEditing());
    KeyPress(VK_F2);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(States(), "0 0 0 0");
    KeyPress(VK_DELETE);
    EXPECT_EQ(States(), "0  0 0") << "an empty cell is not checked";
}

TEST_F(CheckBoxes, Space_TurnsTheSelectedRowsToTheSameValue)
{
    Make();
    grid.GetCell(2, 1).SetText(L"1");
    for (const long row : {0L, 2L, 3L})
        grid.SelectRow(row, true);
    grid.TakeLog();
    KeyPress(VK_SPACE);
    PumpPending();
    EXPECT_EQ(States(), "1 0 1 1");
    EXPECT_EQ(Changes(), 1);
    KeyPress(VK_SPACE);
    PumpPending();
    EXPECT_EQ(States(), "0 0 0 0");
}

TEST_F(CheckBoxes, ReadOnly_StayAsTheyAre)
{
    Make();
    grid.GetCell(0, 1).SetReadOnly(true);
    extra.SetCellFormat(1, 1, {.readOnly = true});
    for (const long row : {0L, 1L})
    {
        Click(grid, Box(row));
        EXPECT_FALSE(extra.Toggle(row, 1));
    }
    EXPECT_EQ(States(), "0 0 0 0");
    EXPECT_EQ(Changes(), 0);
}

// ---- Hooks

TEST_F(CheckBoxes, HooksRefuseAndChange)
{
    Make();
    grid.vetoes = {"OnBeforeEdit"};
    Click(grid, Box(0));
    EXPECT_EQ(States(), "0 0 0 0");
    grid.vetoes = {"OnModified"};
    Click(grid, Box(0));
    EXPECT_EQ(States(), "0 0 0 0");
    EXPECT_EQ(Changes(), 0);
    grid.vetoes.clear();
    grid.modifiedText = [](TGGridCell&, CString& text) {
        text = L"yes";
        return true;
    };
    Click(grid, Box(0));
    EXPECT_EQ(States(), "yes 0 0 0");
}

// What a hook does while a check box is turned over, by mouse or by Space.
enum class Deed
{
    Detach,
    DeleteExtra,
    CloseWindow,
    DeleteRow,
    DeleteCol
};

class HostileHooks : public EditTest, public testing::WithParamInterface<std::tuple<const char*, Deed, bool>>
{
};

TEST_P(HostileHooks, DoTheirWorst)
{
    const auto [hook, deed, byMouse] = GetParam();
    EditGrid grid;
    EditTest::Make(grid, 4, 3);
    auto formats = std::make_unique<TGColumnFormats>(grid);
    formats->SetFormat(1, {.checkBox = true});
    for (long row = 0; row < 4; ++row)
        grid.GetCell(row, 1).SetText(L"0");
    for (const long row : {1L, 2L, 3L})
        grid.SelectRow(row, true);
    bool struck = false;
    grid.actions[hook] = [&, what = deed] {
        if (std::exchange(struck, true))
            return;
        if (what == Deed::Detach)
            formats->Detach();
        else if (what == Deed::DeleteExtra)
            formats.reset();
        else if (what == Deed::CloseWindow)
            grid.DestroyWindow();
        else if (what == Deed::DeleteRow)
            grid.DelRow(1);
        else
            grid.DelCol(1);
    };
    const CPoint box = grid.InsideOf(1, 1).CenterPoint();
    if (byMouse)
        SendMouse(grid, WM_LBUTTONDOWN, box, MK_LBUTTON);
    byMouse ? SendMouse(grid, WM_LBUTTONUP, box) : grid.SendMessage(WM_CHAR, L' ', 1);
    EXPECT_TRUE(struck);
    EXPECT_EQ(grid.GetRowNum(), deed == Deed::DeleteRow ? 3 : 4);
    EXPECT_EQ(grid.GetColNum(), deed == Deed::DeleteCol ? 2 : 3);
}

INSTANTIATE_TEST_SUITE_P(, HostileHooks,
                         testing::Combine(testing::Values("OnBeforeEdit", "OnModified", "OnDataChanged"),
                                          testing::Values(Deed::Detach, Deed::DeleteExtra, Deed::CloseWindow,
                                                          Deed::DeleteRow, Deed::DeleteCol),
                                          testing::Bool()));

} // namespace
} // namespace quor::test
