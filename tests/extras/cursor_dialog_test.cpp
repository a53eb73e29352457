// The cell cursor in a dialog: the order of Tab, the default button, Esc.
#include "grid/extras/TGCellCursor.h"
#include "grid/TGGrid.h"
#include "tests/extras/CursorDialogResource.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class CursorDialog : public CDialog
{
public:
    TGGrid grid;
    TGCellCursor cursor;
    int okCalls = 0;
    int cancelCalls = 0;

    CursorDialog()
    {
        Create(IDD_CURSOR_DIALOG);
        grid.Create(this, IDC_CURSOR_GRID, WS_CHILD | WS_VISIBLE | WS_TABSTOP);
        grid.SetColNum(2);
        grid.SetRowNum(2);
        grid.SetNoAppendButton(true);
        cursor.AttachTo(grid);
        Activate(m_hWnd);
        grid.SetFocus();
        PumpPending();
    }
    ~CursorDialog() override { DestroyWindow(); }

protected:
    void OnOK() override { ++okCalls; }
    void OnCancel() override { ++cancelCalls; }
};

TEST(CursorInADialog, Tab_GoesThroughTheCellsAndOn)
{
    CursorDialog dialog;
    for (int i = 0; i < 3; ++i)
        KeyPress(VK_TAB);
    EXPECT_EQ(dialog.cursor.GetRow(), 1);
    EXPECT_EQ(dialog.cursor.GetCol(), 1);
    EXPECT_EQ(::GetFocus(), dialog.grid.m_hWnd);
    KeyPress(VK_TAB);
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(IDOK)->m_hWnd);
    KeyPress(VK_TAB, Modifiers::Shift);
    EXPECT_EQ(::GetFocus(), dialog.grid.m_hWnd);
    dialog.cursor.MoveTo(0, 0);
    KeyPress(VK_TAB, Modifiers::Shift);
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(IDC_CURSOR_EDIT)->m_hWnd);
    EXPECT_EQ(dialog.okCalls, 0);
}

TEST(CursorInADialog, ControlTab_Leaves_AndAGridThatIsNotLeftBeginsAnew)
{
    CursorDialog dialog;
    dialog.cursor.SetLeaving(false);
    for (int i = 0; i < 4; ++i)
        KeyPress(VK_TAB);
    EXPECT_EQ(dialog.cursor.GetRow(), 0);
    EXPECT_EQ(dialog.cursor.GetCol(), 0);
    KeyPress(VK_TAB, Modifiers::Control);
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(IDOK)->m_hWnd);
}

TEST(CursorInADialog, Enter_IsTheDefaultButtonsOnlyWhenItIsNoStep)
{
    CursorDialog dialog;
    KeyPress(VK_RETURN);
    EXPECT_EQ(dialog.cursor.GetRow(), 1);
    EXPECT_EQ(dialog.okCalls, 0);
    dialog.cursor.SetEnterStep(TGCellCursor::Step::None);
    KeyPress(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return dialog.okCalls == 1; }));
    EXPECT_EQ(dialog.cursor.GetRow(), 1);
}

TEST(CursorInADialog, Escape_DropsTheEditAndTheRange_AndThenCancels)
{
    CursorDialog dialog;
    TypeText(L"x");
    EXPECT_TRUE(dialog.grid.IsEditing());
    KeyPress(VK_ESCAPE);
    EXPECT_FALSE(dialog.grid.IsEditing());
    KeyPress(VK_RIGHT, Modifiers::Shift);
    KeyPress(VK_ESCAPE);
    EXPECT_EQ(dialog.cursor.GetRanges().front().left, 1);
    PumpPending();
    EXPECT_EQ(dialog.cancelCalls, 0);
    KeyPress(VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return dialog.cancelCalls == 1; }));
}

TEST(CursorInADialog, DialogCode_LeavesToTheDialogWhatIsItsOwn)
{
    CursorDialog dialog;
    const auto code = [&](WPARAM key) {
        MSG message = {dialog.grid.m_hWnd, WM_KEYDOWN, key, 0, 0, {}};
        return dialog.grid.SendMessage(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&message));
    };
    EXPECT_NE(code(VK_RETURN) & DLGC_WANTALLKEYS, 0);
    EXPECT_NE(code(VK_TAB) & DLGC_WANTALLKEYS, 0);
    EXPECT_EQ(code(VK_ESCAPE) & DLGC_WANTALLKEYS, 0);
    dialog.cursor.SetEnterStep(TGCellCursor::Step::None);
    EXPECT_EQ(code(VK_RETURN) & DLGC_WANTALLKEYS, 0);
}

} // namespace
} // namespace quor::test
