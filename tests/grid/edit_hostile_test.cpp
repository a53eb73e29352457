// Every hook that editing and painting call, with everything that a host could do to the grid inside it.
#include "tests/grid/HostileGrid.h"

#include "grid/TGCellCtrl.h"
#include "tests/support/Input.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// ---- The grid that is played with

enum Column : long
{
    Plain,
    Button,
    Spin,
    Combo,
    List
};

// One column of each kind. A tree has a root with three children, unfolded, and three roots without.
void FillHostile(HostileGrid& grid)
{
    for (long col = 0; col < 5; ++col)
        grid.AppendCol(L"Column", 60);
    grid.GetCol(Button).SetRightButton(true);
    grid.GetCol(Spin).SetRightSpin(true);
    grid.GetCol(Combo).SetComboEdit(true);
    grid.GetCol(List).SetComboSel(true);
    grid.AppendRow(nullptr);
    if (grid.IsTreeGrid())
    {
        for (int child = 0; child < 3; ++child)
            grid.GetTreeRow(0).AppendChild(nullptr);
        grid.GetTreeRow(0).UnFold();
    }
    while (grid.GetRowNum() < 7)
        grid.AppendRow(nullptr);
    for (long row = 0; row < grid.GetRowNum(); ++row)
        grid.GetCell(row, 0).SetText(L"text");
}

// ---- What the user does

void OpenCell(HostileGrid& grid, long row, long col)
{
    if (grid.GetSafeHwnd())
        grid.BeginEditCell(row, col);
}

// Types into whatever editor is open, by messages as the keyboard causes them, then commits.
void TypeAndCommit(HostileGrid& grid)
{
    CWnd* focus = CWnd::GetFocus();
    if (grid.GetSafeHwnd() && grid.IsEditing() && focus && grid.IsMyFocus(focus))
        focus->SendMessage(WM_CHAR, L'7', 1);
    if (grid.GetSafeHwnd())
        grid.EndEditCell();
}

void EditPlain(HostileGrid& grid)
{
    OpenCell(grid, 2, Plain);
    TypeAndCommit(grid);
}

void EditSpin(HostileGrid& grid)
{
    OpenCell(grid, 2, Spin);
    TypeAndCommit(grid);
}

void EditCombo(HostileGrid& grid)
{
    OpenCell(grid, 2, Combo);
    TypeAndCommit(grid);
}

void EditNewRowLine(HostileGrid& grid)
{
    OpenCell(grid, grid.GetRowNum(), Plain);
    TypeAndCommit(grid);
}

// A click on the line makes it a row, or is refused.
template <bool letsInsert> void CommitNewRowLine(HostileGrid& grid)
{
    grid.letsEdit = false;
    grid.letsInsert = letsInsert;
    OpenCell(grid, grid.GetRowNum(), Plain);
    grid.letsEdit = true;
    grid.letsInsert = true;
}

// In a grid without a tree just a click on a cell.
void ClickFoldBox(HostileGrid& grid)
{
    SendMouse(grid, WM_LBUTTONDOWN, grid.ToClient(10, 10));
}

void PressButton(HostileGrid& grid)
{
    OpenCell(grid, 2, Button);
    CWnd* editor = grid.GetSafeHwnd() ? grid.EditorWindow() : nullptr;
    if (CWnd* button = editor ? editor->GetDlgItem(105) : nullptr)
        button->SendMessage(BM_CLICK);
    TypeAndCommit(grid);
}

// Tells the grid or the editor that the combo box reports something.
void NotifyCombo(HostileGrid& grid, WORD code, HWND from)
{
    grid.SendMessage(WM_COMMAND, MAKEWPARAM(101, code), reinterpret_cast<LPARAM>(from));
}

void ChooseFromList(HostileGrid& grid)
{
    OpenCell(grid, 2, List);
    CWnd* combo = grid.GetSafeHwnd() && grid.IsEditing() ? grid.EditorWindow() : nullptr;
    if (!combo)
        return;
    combo->SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"item"));
    combo->SendMessage(CB_SETCURSEL, 0);
    NotifyCombo(grid, CBN_SELCHANGE, combo->m_hWnd);
    TypeAndCommit(grid);
}

// A notification that the editor does not take, so that the grid's own handler runs.
void TypeIntoForeignCombo(HostileGrid& grid)
{
    OpenCell(grid, 2, Combo);
    if (grid.GetSafeHwnd() && grid.IsEditing())
        NotifyCombo(grid, CBN_EDITCHANGE, grid.GetDlgItem(103)->m_hWnd);
    TypeAndCommit(grid);
}

void RightClickCell(HostileGrid& grid)
{
    SendMouse(grid, WM_RBUTTONUP, grid.ToClient(30, 45));
}

void Paint(HostileGrid& grid)
{
    grid.Invalidate(TRUE);
    grid.UpdateWindow();
}

template <bool (TGGrid::*command)()> void RowCommand(HostileGrid& grid)
{
    grid.SelectRow(4, true);
    if (grid.GetSafeHwnd())
        (grid.*command)();
}

void AskTip(HostileGrid& grid, UINT window)
{
    CWnd* asked = window ? grid.GetDlgItem(static_cast<int>(window)) : &grid;
    TOOLINFO info = {};
    info.cbSize = sizeof info;
    if (asked && asked->OnToolHitTest(window ? CPoint(25, 5) : grid.ToClient(30, 45), &info) != -1)
        std::free(info.lpszText);
}

template <UINT window> void HoverOver(HostileGrid& grid)
{
    AskTip(grid, window);
}

void HoverOverRows(HostileGrid& grid)
{
    TOOLINFO info = {};
    info.cbSize = sizeof info;
    if (grid.GetDlgItem(104)->OnToolHitTest(CPoint(5, 45), &info) != -1)
        std::free(info.lpszText);
}

void HoverOverButton(HostileGrid& grid)
{
    OpenCell(grid, 2, Button);
    TOOLINFO info = {};
    info.cbSize = sizeof info;
    if (grid.EditorWindow()->GetDlgItem(105)->OnToolHitTest(CPoint(5, 5), &info) != -1)
        std::free(info.lpszText);
}

struct Scenario
{
    const char* hook;
    void (*run)(HostileGrid& grid);
};

const Scenario Scenarios[] = {
    {"OnRClickCell", RightClickCell},
    {"OnBeforeEdit", EditPlain},
    {"OnBeforeEdit", EditNewRowLine},
    {"OnGetCellEdit", EditPlain},
    {"OnGetCellEdit", EditCombo},
    {"OnCellComboString", EditCombo},
    {"OnCellComboString", ChooseFromList},
    {"OnCellButtonDown", PressButton},
    {"OnCellSpinInit", EditSpin},
    {"OnModified", EditPlain},
    {"OnModified", EditSpin},
    {"OnModified", EditCombo},
    {"OnModified", EditNewRowLine},
    {"OnModified", TypeIntoForeignCombo},
    {"OnDataChanged", EditPlain},
    {"OnDataChanged", ChooseFromList},
    {"OnDataChanged", EditNewRowLine},
    {"OnBeforeEdit", CommitNewRowLine<true>},
    {"OnBeforeInsertRow", CommitNewRowLine<true>},
    {"OnBeforeInsertRow", CommitNewRowLine<false>},
    {"OnInsertRow", CommitNewRowLine<true>},
    {"OnDataChanged", CommitNewRowLine<true>},
    {"OnCurChanged", EditPlain},
    {"OnCurChanged", ClickFoldBox},
    {"OnCurChanged", PressButton},
    {"OnCurChanged", EditNewRowLine},
    {"OnCmbSelchange", ChooseFromList},
    {"OnCmbEditchange", TypeIntoForeignCombo},
    {"OnBeforeRefresh", Paint},
    {"OnBeforeRefresh", EditPlain},
    {"OnRefresh cell", Paint},
    {"OnRefresh cell", EditPlain},
    {"OnRefresh cell", EditNewRowLine},
    {"OnRefresh row", Paint},
    {"OnBeforeInsertRow", EditNewRowLine},
    {"OnInsertRow", EditNewRowLine},
    {"OnCellTip", HoverOver<0>},
    {"OnRowTip", HoverOverRows},
    {"OnColTip", HoverOver<103>},
    {"OnCellButtonTip", HoverOverButton},
    {"OnActiveQuadTip", HoverOver<102>},
};

// ---- What the hook does

struct Action
{
    const char* name;
    void (*run)(HostileGrid& grid, CWnd& host);
    bool always = false;
};

void DeleteRowIfThere(HostileGrid& grid, long row)
{
    if (grid.IsValidRow(row))
        grid.DelRowEx(row);
}

void DeleteColIfThere(HostileGrid& grid, long col)
{
    if (grid.IsValidCol(col))
        grid.DelCol(col);
}

const Action Actions[] = {
    {"edit another cell", [](HostileGrid& grid, CWnd&) { grid.BeginEditCell(3, Button); }, true},
    {"edit the same cell", [](HostileGrid& grid, CWnd&) { grid.BeginEditCell(2, Plain); }},
    {"edit the new-row line", [](HostileGrid& grid, CWnd&) { grid.BeginEditCell(grid.GetRowNum(), Plain); }},
    {"end the edit", [](HostileGrid& grid, CWnd&) { grid.EndEditCell(); }},
    {"cancel the edit", [](HostileGrid& grid, CWnd&) { grid.CancelEditCell(); }},
    {"cancel and edit another",
     [](HostileGrid& grid, CWnd&) {
         grid.CancelEditCell();
         grid.BeginEditCell(5, Combo);
     },
     true},
    {"reopen by timer", [](HostileGrid& grid, CWnd&) { grid.AutoEditCell(nullptr); }},
    {"close by timer", [](HostileGrid& grid, CWnd&) { grid.AutoCloseCell(0); }},
    {"select a row", [](HostileGrid& grid, CWnd&) { grid.SelectRow(1, true); }},
    {"select a column", [](HostileGrid& grid, CWnd&) { grid.SelectCol(1, true); }},
    {"select all", [](HostileGrid& grid, CWnd&) { grid.SelectAll(); }},
    {"unselect", [](HostileGrid& grid, CWnd&) { grid.UnSelect(); }},
    {"insert a row", [](HostileGrid& grid, CWnd&) { grid.InsertRow(0, nullptr); }},
    {"append a row", [](HostileGrid& grid, CWnd&) { grid.AppendRow(nullptr); }},
    {"insert by command", [](HostileGrid& grid, CWnd&) { RowCommand<&TGGrid::DoInsertRow>(grid); }},
    {"delete the edited row", [](HostileGrid& grid, CWnd&) { DeleteRowIfThere(grid, 2); }, true},
    {"delete the selected row", [](HostileGrid& grid, CWnd&) { DeleteRowIfThere(grid, 4); }},
    {"delete the first row", [](HostileGrid& grid, CWnd&) { DeleteRowIfThere(grid, 0); }},
    {"delete the last row", [](HostileGrid& grid, CWnd&) { DeleteRowIfThere(grid, grid.GetRowNum() - 1); }},
    {"delete by command", [](HostileGrid& grid, CWnd&) { grid.DoDelete(); }},
    {"cut by command", [](HostileGrid& grid, CWnd&) { grid.DoClip(); }},
    {"paste by command", [](HostileGrid& grid, CWnd&) { grid.DoPaste(); }},
    {"empty the row buffer", [](HostileGrid& grid, CWnd&) { grid.GetRowPaste().Clear(); }},
    {"insert a column", [](HostileGrid& grid, CWnd&) { grid.InsertCol(0, L"new", 30); }},
    {"delete the first column", [](HostileGrid& grid, CWnd&) { DeleteColIfThere(grid, 0); }},
    {"delete the second column", [](HostileGrid& grid, CWnd&) { DeleteColIfThere(grid, 1); }},
    {"delete the last column",
     [](HostileGrid& grid, CWnd&) { DeleteColIfThere(grid, grid.GetColNum() - 1); }},
    {"delete all columns", [](HostileGrid& grid, CWnd&) { grid.SetColNum(0); }, true},
    {"delete all rows", [](HostileGrid& grid, CWnd&) { grid.SetRowNum(0); }},
    {"clear", [](HostileGrid& grid, CWnd&) { grid.Clear(); }, true},
    {"sort",
     [](HostileGrid& grid, CWnd&) {
         if (grid.IsValidCol(0))
             grid.AppendKey(0);
         grid.Arrange(true);
     }},
    {"fold or unfold",
     [](HostileGrid& grid, CWnd&) {
         if (grid.IsTreeGrid() && grid.IsValidRow(0) && grid.GetTreeRow(0).IsFold())
             grid.GetTreeRow(0).UnFold();
         else if (grid.IsTreeGrid() && grid.IsValidRow(0))
             grid.GetTreeRow(0).Fold();
     }},
    {"lay out", [](HostileGrid& grid, CWnd&) { grid.RecalcLayout(1); }},
    {"scroll", [](HostileGrid& grid, CWnd&) { grid.MoveView(20, 20); }},
    {"resize", [](HostileGrid& grid, CWnd&) { grid.SetWindowPos(nullptr, 0, 0, 90, 90, SWP_NOMOVE); }},
    {"draw",
     [](HostileGrid& grid, CWnd&) {
         grid.Invalidate(TRUE);
         grid.UpdateWindow();
     }},
    {"make read-only", [](HostileGrid& grid, CWnd&) { grid.SetReadOnly(true); }},
    {"postpone the layout",
     [](HostileGrid& grid, CWnd&) {
         const TGGridUpdate update(grid);
         grid.AppendRow(nullptr);
         grid.BeginEditCell(3, Spin);
     }},
    {"move the focus away", [](HostileGrid&, CWnd& host) { host.SetFocus(); }},
    {"run a message loop", [](HostileGrid&, CWnd&) { PumpPending(); }},
    {"hide", [](HostileGrid& grid, CWnd&) { grid.ShowWindow(SW_HIDE); }},
    {"destroy the window", [](HostileGrid& grid, CWnd&) { grid.DestroyWindow(); }, true},
    {"destroy the editor",
     [](HostileGrid& grid, CWnd&) {
         if (CWnd* editor = grid.EditorWindow())
             editor->DestroyWindow();
     },
     true},
    {"destroy and create anew",
     [](HostileGrid& grid, CWnd& host) {
         grid.DestroyWindow();
         grid.Create(CRect(0, 0, 300, 200), WS_CHILD | WS_VISIBLE, &host);
     }},
};

// ---- The table

class HostileHook : public testing::TestWithParam<size_t>
{
protected:
    // The grid can be used as ever afterwards.
    static void UseNormally(HostileGrid& grid)
    {
        PumpPending();
        if (!grid.GetSafeHwnd())
            return;
        grid.SetReadOnly(false);
        grid.CancelEditCell();
        Paint(grid);
        if (grid.IsColEmpty())
            grid.AppendCol(L"new", 60);
        grid.AppendRow(nullptr);
        const long row = grid.GetRowNum() - 1;
        grid.BeginEditCell(row, 0);
        EXPECT_TRUE(grid.IsEditing());
        TypeAndCommit(grid);
        EXPECT_FALSE(grid.IsEditing());
        for (long index = 0; index < grid.GetRowNum(); ++index)
            EXPECT_EQ(grid.GetRow(index).GetIndex(), index);
        PumpPending();
    }
    // A soak run plays everything. An ordinary one plays the actions that have most to break, and a part of
    // the others that differs from hook to hook, with and without a tree in turn.
    static bool IsInSample(const Action& action, size_t index, bool tree)
    {
        return (action.always && tree == ((GetParam() + index) % 2 == 0)) ||
               (index + 2 * GetParam()) % 12 == (tree ? 0 : 6);
    }
    // Returns whether the hook was called at all.
    bool Play(bool tree, const Action& action)
    {
        HostileGrid grid(tree);
        FillHostile(grid);
        EXPECT_TRUE(grid.Create(CRect(0, 0, 300, 200), WS_CHILD | WS_VISIBLE, &host));
        grid.SetFocus();
        const Scenario& scenario = Scenarios[GetParam()];
        grid.Arm(scenario.hook, [&] {
            if (grid.GetSafeHwnd())
                action.run(grid, host);
        });
        scenario.run(grid);
        PumpPending();
        const bool reached = grid.Strikes() > 0;
        grid.Disarm();
        UseNormally(grid);
        return reached;
    }

    HostWindow host{400, 300};
};

TEST_P(HostileHook, DoesNotBreakTheGrid)
{
    const bool all = std::getenv("QUOR_SOAK") != nullptr;
    for (size_t index = 0; index < std::size(Actions); ++index)
        for (const bool tree : {false, true})
        {
            const Action& action = Actions[index];
            if (!all && !IsInSample(action, index, tree))
                continue;
            const std::string what = std::string(Scenarios[GetParam()].hook) + ": " + action.name;
            SCOPED_TRACE(what);
            if (all)
                std::printf("%s%s\n", what.c_str(), tree ? ", in a tree" : "");
            EXPECT_TRUE(Play(tree, action));
        }
}

INSTANTIATE_TEST_SUITE_P(All, HostileHook, testing::Range(size_t(0), std::size(Scenarios)));

} // namespace
} // namespace quor::test
