// The timers of the edit session: a cell that is opened later, an edit that is closed later.
#include "tests/grid/EditGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

constexpr UINT_PTR OpenTimer = 0;
constexpr UINT_PTR CloseTimer = 1;

class EditTimer : public EditTest
{
protected:
    static bool WaitForTimer(EditGrid& grid, UINT_PTR id, int count = 1)
    {
        return PumpUntil([&] { return grid.timerMessages[id] >= count; });
    }
    // A timer that goes on for ever would have sent its second message before this one's third.
    static void LetTimePass(EditGrid& grid)
    {
        constexpr UINT_PTR OwnTimer = 7;
        grid.SetTimer(OwnTimer, 20, nullptr);
        EXPECT_TRUE(WaitForTimer(grid, OwnTimer, grid.timerMessages[OwnTimer] + 3));
        grid.KillTimer(OwnTimer);
    }
    static void ExpectCurrent(EditGrid& grid, long expectedRow, long expectedCol)
    {
        long row = -1;
        long col = -1;
        ASSERT_TRUE(grid.GetCurCell(row, col));
        EXPECT_EQ(row, expectedRow);
        EXPECT_EQ(col, expectedCol);
    }
};

TEST_F(EditTimer, AutoEdit_OpensTheCellAndDropsWhatIsOpen)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(0, 0);
    grid.Enter(L"dropped");
    grid.AutoEditCell(&grid.GetCell(2, 1));
    EXPECT_TRUE(grid.IsCellLocking());
    grid.AutoEditCell(&grid.GetCell(1, 1));
    ASSERT_TRUE(WaitForTimer(grid, OpenTimer));
    EXPECT_FALSE(grid.IsCellLocking());
    ExpectCurrent(grid, 2, 1);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
}

TEST_F(EditTimer, AutoEdit_OpensTheCellOnce)
{
    EditGrid grid;
    Make(grid);
    grid.AutoEditCell(&grid.GetCell(2, 1));
    ASSERT_TRUE(WaitForTimer(grid, OpenTimer));
    grid.BeginEditCell(0, 0);
    LetTimePass(grid);
    EXPECT_EQ(grid.timerMessages[OpenTimer], 1);
    ExpectCurrent(grid, 0, 0);
}

TEST_F(EditTimer, AutoEditOfNothing_WithNoSession_StartsTheTimerAndDoesNothing)
{
    EditGrid grid;
    Make(grid);
    PumpPending();
    grid.TakeText();
    grid.AutoEditCell(nullptr);
    EXPECT_FALSE(grid.IsCellLocking());
    ASSERT_TRUE(WaitForTimer(grid, OpenTimer));
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.TakeText(), "");
}

TEST_F(EditTimer, AutoEditOfNothing_ReopensTheCellUnderEdit)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    PumpPending();
    grid.TakeText();
    grid.AutoEditCell(nullptr);
    EXPECT_TRUE(grid.IsCellLocking());
    ASSERT_TRUE(WaitForTimer(grid, OpenTimer));
    EXPECT_NE(grid.TakeText().find("OnBeforeEdit 1,1 | OnGetCellEdit 1,1 | OnCurChanged 1,1"),
              std::string::npos);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(EditTimer, AutoEdit_OfACellThatIsDeletedMeanwhile_OpensNothing)
{
    EditGrid grid;
    Make(grid);
    grid.AutoEditCell(&grid.GetCell(1, 1));
    grid.DelRow(1);
    EXPECT_FALSE(grid.IsCellLocking());
    ASSERT_TRUE(WaitForTimer(grid, OpenTimer));
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(EditTimer, AutoEditOnTheNewRowLine_OutlastsALayout)
{
    EditGrid grid;
    Make(grid);
    TGGridCell* onNewRow = nullptr;
    grid.beforeEdit = [&](TGGridCell& cell, bool&) {
        onNewRow = &cell;
        return false;
    };
    grid.BeginEditCell(3, 1);
    grid.beforeEdit = nullptr;
    ASSERT_NE(onNewRow, nullptr);
    grid.AutoEditCell(onNewRow);
    grid.RecalcLayout(1);
    EXPECT_TRUE(grid.IsCellLocking());
    ASSERT_TRUE(WaitForTimer(grid, OpenTimer));
    ExpectCurrent(grid, 3, 1);
}

TEST_F(EditTimer, AutoEditOnTheNewRowLine_EndsWithItsColumn)
{
    EditGrid grid;
    Make(grid);
    TGGridCell* onNewRow = nullptr;
    grid.beforeEdit = [&](TGGridCell& cell, bool&) {
        onNewRow = &cell;
        return false;
    };
    grid.BeginEditCell(3, 2);
    ASSERT_NE(onNewRow, nullptr);
    grid.AutoEditCell(onNewRow);
    grid.SetColNum(2);
    EXPECT_FALSE(grid.IsCellLocking());
}

TEST_F(EditTimer, AutoClose_CommitsWhenTheTimerFires)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    grid.Enter(L"late");
    grid.AutoCloseCell(10);
    EXPECT_TRUE(grid.IsEditing());
    ASSERT_TRUE(WaitForTimer(grid, CloseTimer));
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 1, 1), L"late");
}

TEST_F(EditTimer, AutoClose_ClosesOnce)
{
    EditGrid grid;
    Make(grid);
    grid.AutoCloseCell(10);
    ASSERT_TRUE(WaitForTimer(grid, CloseTimer));
    grid.BeginEditCell(0, 0);
    LetTimePass(grid);
    EXPECT_EQ(grid.timerMessages[CloseTimer], 1);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(EditTimer, AutoClose_WithNoSession_DoesNothing)
{
    EditGrid grid;
    Make(grid);
    PumpPending();
    grid.TakeText();
    grid.AutoCloseCell(1);
    ASSERT_TRUE(WaitForTimer(grid, CloseTimer));
    EXPECT_EQ(grid.TakeEditText(), "");
}

TEST_F(EditTimer, WithoutAWindow_NothingWaits)
{
    EditGrid grid;
    Fill(grid, 2, 2);
    grid.AutoEditCell(&grid.GetCell(0, 0));
    EXPECT_FALSE(grid.IsCellLocking());
    grid.AutoCloseCell(1);
}

TEST_F(EditTimer, AutoEditInsideACommit_OpensTheNextCell)
{
    EditGrid grid;
    Make(grid);
    grid.dataChanged = [&] { grid.AutoEditCell(&grid.GetCell(2, 2)); };
    grid.BeginEditCell(1, 1);
    grid.Enter(L"text");
    grid.EndEditCell();
    EXPECT_FALSE(grid.IsEditing());
    ASSERT_TRUE(WaitForTimer(grid, OpenTimer));
    ExpectCurrent(grid, 2, 2);
}

} // namespace
} // namespace quor::test
