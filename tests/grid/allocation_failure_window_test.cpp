// Operations of a shown grid whose n-th allocation fails, for every n, and what the window sends it.
#include "tests/grid/EditGrid.h"
#include "tests/grid/FailingOperations.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/FailingNew.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// What a user and the system do; nothing of the model changes but by an edit.
const Operation windowOperations[] = {
    {"painting",
     [](TGGrid& grid) {
         grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
     }},
    {"a size", [](TGGrid& grid) { grid.SetWindowPos(nullptr, 0, 0, 200, 90, SWP_NOMOVE | SWP_NOZORDER); }},
    {"a click", [](TGGrid& grid) { grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 50)); }},
    {"a double click",
     [](TGGrid& grid) { grid.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(150, 50)); }},
    {"a click beside",
     [](TGGrid& grid) { grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(390, 290)); }},
    {"a mouse move", [](TGGrid& grid) { grid.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(150, 50)); }},
    {"a wheel", [](TGGrid& grid) { grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0); }},
    {"a scroll code", [](TGGrid& grid) { grid.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0); }},
    {"a key", [](TGGrid& grid) { grid.SendMessage(WM_KEYDOWN, VK_DOWN, 1); }},
    {"a focus", [](TGGrid& grid) { grid.SetFocus(); }},
    {"no focus", [](TGGrid& grid) { grid.SendMessage(WM_KILLFOCUS, 0, 0); }},
    {"layout", [](TGGrid& grid) { grid.RecalcLayout(1); }},
    {"an edit begun", [](TGGrid& grid) { grid.BeginEditCell(1, 1); }},
    {"an edit on the new-row line", [](TGGrid& grid) { grid.BeginEditCell(grid.GetRowNum(), 1); }},
    {"an edit with a list",
     [](TGGrid& grid) {
         grid.GetCol(1).SetComboEdit(true);
         grid.BeginEditCell(1, 1);
     }},
    {"a choice from a list",
     [](TGGrid& grid) {
         grid.GetCol(1).SetComboSel(true);
         grid.BeginEditCell(1, 1);
     }},
    {"an edit with a button",
     [](TGGrid& grid) {
         grid.GetCol(1).SetRightButton(true);
         grid.BeginEditCell(1, 1);
     }},
    {"an edit with a spin",
     [](TGGrid& grid) {
         grid.GetCol(1).SetRightSpin(true);
         grid.BeginEditCell(1, 1);
     }},
    {"an edit ended",
     [](TGGrid& grid) {
         grid.BeginEditCell(1, 1);
         if (CWnd* editor = grid.GetDlgItem(101))
         {
             editor->SetWindowText(L"typed");
             editor->SendMessage(EM_SETMODIFY, TRUE, 0);
         }
         grid.EndEditCell();
     }},
    {"an edit cancelled",
     [](TGGrid& grid) {
         grid.BeginEditCell(1, 1);
         grid.CancelEditCell();
     }},
};

class AllocationFailureWindow : public GridWindowTest
{
protected:
    // Refilling a window that stands takes a tenth of the time of making another.
    void Refill(WindowGrid& grid)
    {
        const TGGridUpdate update(grid);
        grid.Clear();
        grid.SetColNum(0);
        grid.UnSelect();
        grid.ClearKey();
        FillModel(grid);
    }

    void FailEach(std::span<const Operation> operations, bool tree, bool strict)
    {
        for (const Operation& operation : operations)
        {
            SCOPED_TRACE(operation.name);
            WindowGrid grid(tree);
            Create(grid);
            for (long n = 1; FailOnce(operation, grid, n, strict) && !HasFailure(); ++n)
                ;
            if (HasFailure())
                return;
        }
    }

    bool FailOnce(const Operation& operation, WindowGrid& grid, long n, bool strict)
    {
        SCOPED_TRACE(n);
        Refill(grid);
        const std::string before = Describe(grid);
        bool thrown = false;
        const bool failed = RunFailing(operation, grid, n, thrown);
        if (thrown && strict)
        {
            EXPECT_EQ(Describe(grid), before);
        }
        EXPECT_NE(grid.GetSafeHwnd(), nullptr);
        EXPECT_FALSE(grid.IsUpdating());
        grid.CancelEditCell();
        EXPECT_FALSE(grid.IsEditing());
        ExpectUsable(grid);
        return failed;
    }
};

TEST_F(AllocationFailureWindow, AStructureOperationOfAPlainGridChangesNothing)
{
    FailEach(StructureOperations, false, true);
}

TEST_F(AllocationFailureWindow, AStructureOperationOfATreeGridChangesNothing)
{
    FailEach(StructureOperations, true, true);
    FailEach(TreeOperations, true, true);
}

TEST_F(AllocationFailureWindow, ACommandLosesNothing)
{
    FailEach(Commands, false, false);
    FailEach(Commands, true, false);
}

// An edit drops the selection before it begins. In the checked variant a message to a window that there was
// no memory for is an assertion.
#ifndef _DEBUG
TEST_F(AllocationFailureWindow, WhatTheWindowIsSentLeavesItUsable)
{
    FailEach(windowOperations, false, false);
    FailEach(windowOperations, true, false);
}
#endif

// What fails in the layout at the end of the update is made up for by the next one.
TEST_F(AllocationFailureWindow, RowsAreAddedToAShownGridOrNot)
{
    const Operation more = {"SetRowNum", [](TGGrid& grid) { grid.SetRowNum(20); }};
    for (long n = 1;; ++n)
    {
        SCOPED_TRACE(n);
        WindowGrid grid;
        AddCols(grid, 3);
        Create(grid);
        bool thrown = false;
        const bool failed = RunFailing(more, grid, n, thrown);
        EXPECT_EQ(grid.GetRowNum(), thrown ? 0 : 20);
        ExpectUsable(grid);
        if (!failed || HasFailure())
            break;
    }
}

} // namespace
} // namespace quor::test
