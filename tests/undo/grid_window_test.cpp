// Undo in windows: keys, open editors, menu entries, what is selected and shown.
#include "grid/extras/TGCellCursor.h"
#include "grid/TGUserAction.h"
#include "module/QuorTexts.h"
#include "tests/grid/EditGrid.h"
#include "tests/support/Input.h"
#include "tests/undo/GridSubject.h"
#include "tests/undo/UndoWorld.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class GridUndoWindow : public EditTest
{
protected:
    GridUndoWindow() { QuorTexts::SetLanguage(QuorLanguage::English); }
    ~GridUndoWindow() override { QuorTexts::SetLanguage(QuorLanguage::Default); }

    void Begin(long rows = 4)
    {
        EditTest::Make(grid, rows, 3);
        stack.Watch(grid);
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
        PumpPending();
        host.TakeLog();
    }
    int Changes()
    {
        int changes = 0;
        for (const std::string& line : host.TakeLog())
            changes += line.find("code " + std::to_string(EN_CHANGE)) != std::string::npos ? 1 : 0;
        return changes;
    }

    EditGrid grid;
    CountingStack stack;
};

// An entry that remembers what a handler says.
class SeenEntry : public CCmdUI
{
public:
    void Enable(BOOL on) override { enabled = on != FALSE; }
    void SetText(LPCTSTR words) override { text = words; }

    bool enabled = false;
    CString text;
};

TEST_F(GridUndoWindow, Keys_UndoAndRedo)
{
    Begin();
    grid.SelectRow(1, true);
    grid.DoDelete();
    KeyPress('Z', Modifiers::Control);
    EXPECT_EQ(grid.GetRowNum(), 4);
    KeyPress('Y', Modifiers::Control);
    EXPECT_EQ(grid.GetRowNum(), 3);
    KeyPress('Z', Modifiers::Control);
    EXPECT_EQ(grid.GetRowNum(), 4);
}

TEST_F(GridUndoWindow, TheParentGetsOneChange)
{
    Begin();
    grid.SelectRow(1, true);
    grid.DoDelete();
    Changes();
    stack.Undo();
    EXPECT_EQ(Changes(), 1);
}

TEST_F(GridUndoWindow, AnOpenEditor_IsServedFirst)
{
    Begin();
    const TGUndoStack& last = stack;
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 0).SetText(L"first");
    }
    grid.BeginEditCell(1, 1);
    PumpPending();
    TypeText(L"x");
    PumpPending();
    CString typed;
    grid.EditorWindow()->GetWindowText(typed);
    ASSERT_EQ(typed, L"x");
    KeyPress('Z', Modifiers::Control);
    ASSERT_TRUE(grid.IsEditing());
    grid.EditorWindow()->GetWindowText(typed);
    EXPECT_EQ(typed, L"1,1");
    EXPECT_EQ(TextOf(grid, 0, 0), L"first");
    EXPECT_EQ(last.GetUndoNum(), 1);
}

// The platform's edit would take its own undo back, for ever.
TEST_F(GridUndoWindow, AnOpenEditor_IsServedOnce_AndThenTheStack)
{
    Begin();
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 0).SetText(L"first");
    }
    grid.BeginEditCell(1, 1);
    PumpPending();
    TypeText(L"x");
    PumpPending();
    const auto typed = [this] {
        CString text;
        grid.EditorWindow()->GetWindowText(text);
        return text;
    };
    KeyPress('Z', Modifiers::Control);
    ASSERT_EQ(typed(), L"1,1");
    SeenEntry entry;
    entry.m_nID = ID_EDIT_REDO;
    stack.OnCmdMsg(ID_EDIT_REDO, CN_UPDATE_COMMAND_UI, &entry, nullptr);
    EXPECT_TRUE(entry.enabled);
    EXPECT_EQ(entry.text, L"&Redo Typing\tCtrl+Y");
    KeyPress('Y', Modifiers::Control);
    EXPECT_EQ(typed(), L"x");
    KeyPress('Z', Modifiers::Control);
    ASSERT_EQ(typed(), L"1,1");
    EXPECT_TRUE(grid.IsEditing());
    KeyPress('Z', Modifiers::Control);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 1, 1), L"1,1");
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
}

TEST_F(GridUndoWindow, Undoing_CommitsWhatIsTyped_AndTakesItBack)
{
    Begin();
    grid.BeginEditCell(1, 1);
    grid.Enter(L"typed");
    stack.Undo();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 1, 1), L"1,1");
    stack.Redo();
    EXPECT_EQ(TextOf(grid, 1, 1), L"typed");
}

TEST_F(GridUndoWindow, ChoicesOfOneEdit_AreOneStep)
{
    Begin();
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) {
        combo.AddString(L"one");
        combo.AddString(L"two");
    };
    grid.BeginEditCell(0, 1);
    auto* const combo = static_cast<CComboBox*>(grid.EditorWindow());
    for (const int chosen : {1, 0})
    {
        combo->SetCurSel(chosen);
        grid.SendMessage(WM_COMMAND, MAKEWPARAM(combo->GetDlgCtrlID(), CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(combo->m_hWnd));
    }
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 0, 1), L"one");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    stack.Undo();
    EXPECT_EQ(TextOf(grid, 0, 1), L"0,1");
}

TEST_F(GridUndoWindow, SelectionAndScrollPositionComeBack)
{
    Begin(100);
    grid.MoveView(0, 800);
    grid.SelectRow(45, true);
    grid.SelectRow(47, true);
    CPoint corner;
    grid.GetUpCorner(corner);
    grid.DoDelete();
    grid.MoveView(0, -800);
    grid.SelectRow(1, true);
    stack.Undo();
    CPoint now;
    grid.GetUpCorner(now);
    EXPECT_EQ(now.y, corner.y);
    EXPECT_EQ(grid.GetRowSelNum(), 2);
    EXPECT_TRUE(grid.IsRowSelected(45));
    EXPECT_TRUE(grid.IsRowSelected(47));
}

TEST_F(GridUndoWindow, TheCellCursorComesBack)
{
    TGCellCursor cursor;
    Begin();
    cursor.AttachTo(grid);
    cursor.MoveTo(2, 1);
    cursor.EmptyRanges();
    EXPECT_EQ(stack.GetUndoName(), L"Empty cell");
    cursor.MoveTo(0, 0);
    stack.Undo();
    EXPECT_EQ(cursor.GetRow(), 2);
    EXPECT_EQ(cursor.GetCol(), 1);
    EXPECT_EQ(TextOf(grid, 2, 1), L"2,1");
}

TEST_F(GridUndoWindow, ANameWithAnAmpersand_StandsInAMenuAsItIs)
{
    Begin();
    {
        const TGUndoTransaction step(stack, L"Cut && R&D\tX");
        grid.GetCell(0, 0).SetText(L"1");
    }
    SeenEntry entry;
    entry.m_nID = ID_EDIT_UNDO;
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_UPDATE_COMMAND_UI, &entry, nullptr);
    EXPECT_EQ(entry.text, L"&Undo Cut &&&& R&&D X\tCtrl+Z");
}

TEST_F(GridUndoWindow, CommandsNameTheStep)
{
    Begin();
    SeenEntry entry;
    entry.m_nID = ID_EDIT_UNDO;
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_UPDATE_COMMAND_UI, &entry, nullptr);
    EXPECT_FALSE(entry.enabled);
    EXPECT_EQ(entry.text, L"&Undo\tCtrl+Z");
    grid.SelectRow(1, true);
    grid.DoDelete();
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_UPDATE_COMMAND_UI, &entry, nullptr);
    EXPECT_TRUE(entry.enabled);
    EXPECT_EQ(entry.text, L"&Undo Delete row\tCtrl+Z");
    EXPECT_TRUE(stack.OnCmdMsg(ID_EDIT_UNDO, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(grid.GetRowNum(), 4);
    entry.m_nID = ID_EDIT_REDO;
    stack.OnCmdMsg(ID_EDIT_REDO, CN_UPDATE_COMMAND_UI, &entry, nullptr);
    EXPECT_EQ(entry.text, L"&Redo Delete row\tCtrl+Y");
    EXPECT_TRUE(stack.OnCmdMsg(ID_EDIT_REDO, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(grid.GetRowNum(), 3);
}

} // namespace
} // namespace quor::test
