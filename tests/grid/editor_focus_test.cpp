// Cell editors and the focus: who ends the session, what the grid's parent is told, what the corner shows.
#include "tests/grid/EditGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

using Lines = std::vector<std::string>;

class EditorFocus : public EditTest
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(grid.Create(CRect(10, 10, 410, 310), WS_CHILD | WS_VISIBLE, &host));
        grid.SetDlgCtrlID(77);
        Fill(grid, 3, 5);
        grid.recording = true;
        grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"item"); };
        grid.GetCol(Button).SetRightButton(true);
        grid.GetCol(Spin).SetRightSpin(true);
        grid.GetCol(Combo).SetComboEdit(true);
        grid.GetCol(List).SetComboSel(true);
        outside.Create(WS_CHILD | WS_VISIBLE, CRect(500, 10, 600, 30), &host, 5);
        grid.SetFocus();
    }
    void Open(long col)
    {
        grid.BeginEditCell(1, col);
        ASSERT_TRUE(grid.IsEditing());
        PumpPending();
        host.TakeLog();
        grid.TakeText();
    }
    // "command 77 code 512" of the lines that the host got.
    Lines KillFocusLines()
    {
        Lines found;
        for (const std::string& line : host.TakeLog())
            if (line == "command 77 code 512")
                found.push_back(line);
        return found;
    }

    enum Column : long
    {
        Plain,
        Button,
        Spin,
        Combo,
        List
    };
    EditGrid grid;
    CEdit outside;
};

TEST_F(EditorFocus, FocusToAnotherControl_CommitsAndTurnsTheCornerOff)
{
    for (long col = Plain; col <= List; ++col)
    {
        grid.SetFocus();
        Open(col);
        EXPECT_TRUE(grid.ShowsFocus()) << col;
        outside.SetFocus();
        EXPECT_FALSE(grid.IsEditing()) << col;
        EXPECT_FALSE(grid.ShowsFocus()) << col;
        EXPECT_EQ(CWnd::GetFocus(), &outside) << col;
    }
}

TEST_F(EditorFocus, FocusToTheGridItself_CommitsAndLeavesTheCornerOn)
{
    for (long col = Plain; col <= List; ++col)
    {
        Open(col);
        grid.SetFocus();
        EXPECT_FALSE(grid.IsEditing()) << col;
        EXPECT_TRUE(grid.ShowsFocus()) << col;
    }
}

TEST_F(EditorFocus, EditThatLosesTheFocus_TellsTheParentOfTheGridAfterTheCommit)
{
    for (const long col : {Plain, Button, Spin})
    {
        Open(col);
        grid.Enter(L"typed");
        Lines toldBefore = {"none"};
        grid.modifiedText = [&](TGGridCell&, CString&) {
            toldBefore = KillFocusLines();
            return true;
        };
        outside.SetFocus();
        EXPECT_EQ(toldBefore, Lines()) << col;
        EXPECT_EQ(TextOf(grid, 1, col), L"typed");
        EXPECT_EQ(KillFocusLines(), Lines({"command 77 code 512"})) << col;
        grid.modifiedText = nullptr;
        grid.SetFocus();
    }
}

TEST_F(EditorFocus, OrderOfTheNotifications_IsChangeThenLostFocus)
{
    Open(Plain);
    grid.Enter(L"typed");
    outside.SetFocus();
    Lines fromGrid;
    for (const std::string& line : host.TakeLog())
        if (line.starts_with("command 77"))
            fromGrid.push_back(line);
    EXPECT_EQ(fromGrid, Lines({"command 77 code 768", "command 77 code 512"}));
}

TEST_F(EditorFocus, LostFocus_NamesTheEditWindow)
{
    struct Parent : HostWindow
    {
        HWND named = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_COMMAND && HIWORD(wParam) == EN_KILLFOCUS && LOWORD(wParam) == 77)
                named = reinterpret_cast<HWND>(lParam);
            return HostWindow::WindowProc(message, wParam, lParam);
        }
    } parent;
    EditGrid inner;
    ASSERT_TRUE(inner.Create(CRect(10, 10, 410, 310), WS_CHILD | WS_VISIBLE, &parent));
    inner.SetDlgCtrlID(77);
    Fill(inner, 2, 2);
    inner.BeginEditCell(1, 1);
    const HWND edit = inner.EditorWindow()->m_hWnd;
    parent.SetFocus();
    EXPECT_EQ(parent.named, edit);
}

TEST_F(EditorFocus, ComboThatLosesTheFocus_TellsTheParentNothing)
{
    for (const long col : {Combo, List})
    {
        Open(col);
        outside.SetFocus();
        EXPECT_EQ(KillFocusLines(), Lines()) << col;
        grid.SetFocus();
    }
}

TEST_F(EditorFocus, FocusToButtonOrSpinOfTheEditor_ChangesNothing)
{
    for (const long col : {Button, Spin})
    {
        Open(col);
        grid.EditorPart()->SetFocus();
        EXPECT_TRUE(grid.IsEditing()) << col;
        EXPECT_TRUE(grid.ShowsFocus()) << col;
        EXPECT_EQ(KillFocusLines(), Lines()) << col;
        EXPECT_EQ(grid.TakeText(), "") << col;
        grid.CancelEditCell();
    }
}

TEST_F(EditorFocus, FocusToAnotherChildOfTheGrid_EndsTheSessionAndLeavesTheCornerOn)
{
    Open(Plain);
    grid.GetDlgItem(104)->SetFocus();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_TRUE(grid.ShowsFocus());
}

TEST_F(EditorFocus, EditorThatGetsTheFocusBack_TurnsTheCornerOn)
{
    for (long col = Plain; col <= List; ++col)
    {
        Open(col);
        grid.ShowActive(false);
        CWnd* editor = grid.EditorWindow();
        if (col < Combo)
            editor->SendMessage(WM_SETFOCUS);
        else
            grid.SendMessage(WM_COMMAND, MAKEWPARAM(101, CBN_SETFOCUS),
                             reinterpret_cast<LPARAM>(editor->m_hWnd));
        EXPECT_TRUE(grid.ShowsFocus()) << col;
        grid.CancelEditCell();
        grid.SetFocus();
    }
}

TEST_F(EditorFocus, CommitOfOneGrid_LeavesTheSessionOfAnotherOpen)
{
    EditGrid other;
    ASSERT_TRUE(other.Create(CRect(420, 50, 700, 300), WS_CHILD | WS_VISIBLE, &host));
    Fill(other, 2, 2);
    other.makeEditor = [](TGGridCell& cell) {
        // One that does not end its session when it loses the focus.
        struct Stubborn : CEdit, TGCellCtrl
        {
            explicit Stubborn(TGGridCell& edited) : TGCellCtrl(edited) {}
            CWnd* GetWnd() override { return this; }
            void Create(CRect& rect) override
            {
                CEdit::Create(WS_CHILD | WS_VISIBLE, rect, &GetCell().GetGrid(), 101);
            }
            bool IsModified() override { return true; }
            void GetNewText(CString& text) override { GetWindowText(text); }
            bool IsLeftEnd() override { return false; }
            bool IsRightEnd() override { return false; }
            bool IsUpEnd() override { return false; }
            bool IsDownEnd() override { return false; }
            void PostNcDestroy() override { delete this; }
        };
        return new Stubborn(cell);
    };
    other.BeginEditCell(1, 1);
    Open(Plain);
    grid.Enter(L"typed");
    // The guard is shared: while one grid commits, the other's end has no effect.
    grid.modifiedText = [&](TGGridCell&, CString&) {
        other.EndEditCell();
        return true;
    };
    grid.EndEditCell();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_TRUE(other.IsEditing());
    other.EndEditCell();
    EXPECT_FALSE(other.IsEditing());
}

// ---- Button

TEST_F(EditorFocus, PressedButton_HandsTheEditorsTextToTheHookAndGivesTheFocusBack)
{
    Open(Button);
    grid.EditorWindow()->SetWindowText(L"typed");
    grid.editor->SetModified(false);
    grid.EditorPart()->SetFocus();
    grid.EditorPart()->SendMessage(BM_CLICK);
    EXPECT_EQ(grid.TakeText(), "OnCellButtonDown 1,1 typed");
    EXPECT_EQ(CWnd::GetFocus(), grid.EditorWindow());
    EXPECT_FALSE(grid.editor->IsModified());
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(EditorFocus, TextOfTheButtonHook_IsTakenOverOnlyWhenItReturnsTrue)
{
    bool taken = false;
    grid.buttonDown = [&](TGGridCell&, CString& text) {
        text = L"from the hook";
        return taken;
    };
    Open(Button);
    CString text;
    grid.EditorPart()->SendMessage(BM_CLICK);
    grid.editor->GetNewText(text);
    EXPECT_EQ(text, L"1,1");
    taken = true;
    grid.EditorPart()->SendMessage(BM_CLICK);
    grid.editor->GetNewText(text);
    EXPECT_EQ(text, L"from the hook");
    EXPECT_TRUE(grid.editor->IsModified());
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 1, Button), L"from the hook");
}

TEST_F(EditorFocus, DialogOfTheButtonHook_LeavesTheSessionOpen)
{
    grid.buttonDown = [&](TGGridCell&, CString& text) {
        // What a modal dialog does to the focus.
        HostWindow dialog(200, 100);
        host.EnableWindow(FALSE);
        dialog.SetFocus();
        EXPECT_TRUE(grid.IsEditing());
        host.EnableWindow(TRUE);
        text = L"chosen";
        return true;
    };
    Open(Button);
    grid.EditorPart()->SetFocus();
    grid.EditorPart()->SendMessage(BM_CLICK);
    EXPECT_TRUE(grid.IsEditing());
    outside.SetFocus();
    EXPECT_EQ(TextOf(grid, 1, Button), L"chosen");
}

// ---- Tip of the button

class ButtonTip : public EditorFocus
{
protected:
    // "id text" of the tip, "none" without one.
    std::string Ask(const wchar_t* tip)
    {
        grid.buttonTip = [tip](long, long, CString& text) {
            text = tip ? tip : L"unused";
            return tip != nullptr;
        };
        CWnd* button = grid.EditorPart();
        TOOLINFO info = {};
        info.cbSize = sizeof info;
        const INT_PTR id = button->OnToolHitTest(CPoint(3, 3), &info);
        if (id == -1)
            return "none";
        EXPECT_EQ(info.hwnd, button->m_hWnd);
        EXPECT_EQ(info.uId, reinterpret_cast<UINT_PTR>(button->m_hWnd));
        EXPECT_EQ(info.uFlags & 0xC0000003u, 0xC0000003u);
        const std::string text(CStringA(info.lpszText).GetString());
        std::free(info.lpszText);
        return std::to_string(id) + " " + text;
    }
};

TEST_F(ButtonTip, IsAskedForWithTheCellAndAnsweredWithItsRow)
{
    Open(Button);
    EXPECT_EQ(Ask(nullptr), "none");
    EXPECT_EQ(Ask(L"press me"), "1 press me");
    std::string asked;
    grid.buttonTip = [&](long row, long col, CString&) {
        asked = std::to_string(row) + "," + std::to_string(col);
        return false;
    };
    TOOLINFO info = {};
    grid.EditorPart()->OnToolHitTest(CPoint(3, 3), &info);
    EXPECT_EQ(asked, "1,1");
}

TEST_F(ButtonTip, IsFormattedAndCutToNineteenCharacters)
{
    Open(Button);
    EXPECT_EQ(Ask(L"take %d of 100%%"), "1 take 0 of 100%");
    EXPECT_EQ(Ask(L"a tip that is longer than the buffer"), "1 a tip that is longe");
    EXPECT_EQ(Ask(L"%s"), "1 (null)");
}

} // namespace
} // namespace quor::test
