// What cell editors answer about caret, text and changes; spins and combo boxes at work.
#include "tests/grid/EditGrid.h"

#include "grid/TGCellCombo.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class EditorState : public EditTest
{
protected:
    // "left", "right", "up", "down": the ends that the editor reports.
    static std::string Ends(TGCellCtrl& editor)
    {
        std::string ends;
        for (const auto& [is, name] :
             {std::pair(editor.IsLeftEnd(), "left "), std::pair(editor.IsRightEnd(), "right "),
              std::pair(editor.IsUpEnd(), "up "), std::pair(editor.IsDownEnd(), "down ")})
            ends += is ? name : "";
        return ends;
    }
    static void SelectText(EditGrid& grid, int first, int last)
    {
        grid.EditorWindow()->SendMessage(EM_SETSEL, first, last);
    }
    static CSpinButtonCtrl& Spin(EditGrid& grid) { return *static_cast<CSpinButtonCtrl*>(grid.EditorPart()); }
    static int SpinPosition(EditGrid& grid)
    {
        return static_cast<int>(grid.EditorPart()->SendMessage(UDM_GETPOS32));
    }
    static CComboBox& Combo(EditGrid& grid) { return *static_cast<CComboBox*>(grid.EditorWindow()); }
    static CString EditorText(EditGrid& grid)
    {
        CString text;
        grid.EditorWindow()->GetWindowText(text);
        return text;
    }
    // A grid whose column 1 has a spin and whose cell 1,1 reads `text`, with the editor open.
    void OpenSpin(EditGrid& grid, const wchar_t* text)
    {
        Make(grid);
        grid.GetCol(1).SetRightSpin(true);
        grid.GetCell(1, 1).SetText(text);
        grid.BeginEditCell(1, 1);
    }
    // The same with a combo box of a few fruits.
    void OpenCombo(EditGrid& grid, bool editable, const wchar_t* text)
    {
        Make(grid);
        grid.GetCol(1).SetComboEdit(editable);
        grid.GetCol(1).SetComboSel(!editable);
        grid.comboStrings = [](TGGridCell&, CComboBox& combo) {
            for (const wchar_t* item : {L"Fig", L"Apple pie", L"apple", L"Apple", L"Grape"})
                combo.AddString(item);
        };
        grid.GetCell(1, 1).SetText(text);
        grid.BeginEditCell(1, 1);
        grid.TakeText();
    }
    // Chooses an item as the list does: selects it and tells the parent.
    static void Choose(EditGrid& grid, int item)
    {
        CComboBox& combo = Combo(grid);
        combo.SetCurSel(item);
        grid.SendMessage(WM_COMMAND, MAKEWPARAM(101, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo.m_hWnd));
    }
};

TEST_F(EditorState, Edit_CountsTheEndOfTheSelection)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    // All is selected: the line has no other characters, and with those the end of the selection is compared.
    EXPECT_EQ(Ends(*grid.editor), "up down ");
    SelectText(grid, 0, 0);
    EXPECT_EQ(Ends(*grid.editor), "left up down ");
    SelectText(grid, 0, 2);
    EXPECT_EQ(Ends(*grid.editor), "up down ");
    SelectText(grid, 3, 3);
    EXPECT_EQ(Ends(*grid.editor), "right up down ");
}

TEST_F(EditorState, EmptyEdit_IsAtBothEnds)
{
    EditGrid grid;
    Make(grid);
    grid.GetCell(1, 1).SetText(L"");
    grid.BeginEditCell(1, 1);
    // Without a selection the length of the line is asked for, which is none.
    EXPECT_EQ(Ends(*grid.editor), "left right up down ");
}

TEST_F(EditorState, ModifyMark_IsTheEditsOwn)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    EXPECT_FALSE(grid.editor->IsModified());
    grid.EditorWindow()->SendMessage(WM_CHAR, L'x', 1);
    EXPECT_TRUE(grid.editor->IsModified());
    grid.editor->SetModified(false);
    EXPECT_FALSE(grid.EditorWindow()->SendMessage(EM_GETMODIFY));
    grid.editor->SetModified(true);
    EXPECT_TRUE(grid.EditorWindow()->SendMessage(EM_GETMODIFY));
    // A new text takes the mark away, as setting the text of an edit does.
    grid.editor->SetNewText(L"other");
    EXPECT_FALSE(grid.editor->IsModified());
    EXPECT_EQ(EditorText(grid), L"other");
}

// ---- Spin

TEST_F(EditorState, Spin_CountsFromZeroToOneHundredThousandByDefault)
{
    EditGrid grid;
    OpenSpin(grid, L"42");
    int lower = -1;
    int upper = -1;
    Spin(grid).GetRange32(lower, upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 100000);
    EXPECT_EQ(SpinPosition(grid), 42);
    EXPECT_EQ(
        grid.TakeText(),
        "OnCurChanged -1,-1 | OnBeforeEdit 1,1 | OnGetCellEdit 1,1 | OnCellSpinInit 1,1 | OnCurChanged 1,1");
}

TEST_F(EditorState, TextThatIsNoNumber_GivesZeroOrTheLowerBound)
{
    EditGrid grid;
    OpenSpin(grid, L"many");
    EXPECT_EQ(SpinPosition(grid), 0);
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 1, 1), L"many");
    grid.spinInit = [](TGGridCell&, CSpinButtonCtrl& spin) { spin.SetRange32(5, 9); };
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(SpinPosition(grid), 5);
    // The text is not touched by that, and it is no change.
    EXPECT_EQ(EditorText(grid), L"many");
    EXPECT_FALSE(grid.editor->IsModified());
}

TEST_F(EditorState, TextThatTheHookSets_IsWhatSpinAndComboShow)
{
    EditGrid grid;
    grid.spinInit = [](TGGridCell& cell, CSpinButtonCtrl&) { cell.SetText(L"17"); };
    OpenSpin(grid, L"42");
    EXPECT_EQ(SpinPosition(grid), 17);
    grid.EndEditCell();
    grid.GetCol(1).SetRightSpin(false);
    grid.GetCol(1).SetComboSel(true);
    grid.comboStrings = [](TGGridCell& cell, CComboBox& combo) {
        combo.AddString(L"one");
        combo.AddString(L"two");
        cell.SetText(L"two");
    };
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(Combo(grid).GetCurSel(), 1);
}

TEST_F(EditorState, ScrollOfASpinThatDidNotFit_WritesThePosition)
{
    EditGrid grid;
    Create(grid);
    Fill(grid, 2, 2, 18);
    grid.GetCol(1).SetRightSpin(true);
    grid.BeginEditCell(1, 1);
    ASSERT_EQ(grid.EditorPart(), nullptr);
    grid.EditorWindow()->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 17));
    EXPECT_EQ(EditorText(grid), L"17");
}

TEST_F(EditorState, NumberOutsideTheRange_GivesTheLowerBound)
{
    EditGrid grid;
    grid.spinInit = [](TGGridCell&, CSpinButtonCtrl& spin) { spin.SetRange32(5, 9); };
    OpenSpin(grid, L"10");
    EXPECT_EQ(SpinPosition(grid), 5);
}

TEST_F(EditorState, ValueAbove65535_IsKeptInTheTextWhileTheSpinHoldsTheRemainder)
{
    EditGrid grid;
    OpenSpin(grid, L"70000");
    EXPECT_EQ(SpinPosition(grid), 70000 % 65536);
    EXPECT_EQ(EditorText(grid), L"70000");
    grid.EditorWindow()->SendMessage(EM_SETSEL, 4, 5);
    grid.EditorWindow()->SendMessage(WM_CHAR, L'1', 1);
    EXPECT_EQ(SpinPosition(grid), 70001 % 65536);
    grid.EditorWindow()->SendMessage(EM_SETSEL, 4, 5);
    grid.EditorWindow()->SendMessage(WM_CHAR, L'0', 1);
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 1, 1), L"70000");
}

TEST_F(EditorState, ScrollOfTheSpin_WritesThePositionSelectsItAndMarksTheChange)
{
    EditGrid grid;
    OpenSpin(grid, L"42");
    for (const UINT code : {SB_THUMBPOSITION, SB_ENDSCROLL, SB_LINEUP})
    {
        grid.editor->SetNewText(L"");
        grid.editor->SetModified(false);
        grid.EditorWindow()->SendMessage(WM_VSCROLL, MAKEWPARAM(code, 17),
                                         reinterpret_cast<LPARAM>(grid.EditorPart()->m_hWnd));
        EXPECT_EQ(EditorText(grid), L"17") << code;
        EXPECT_TRUE(grid.editor->IsModified()) << code;
        DWORD first = 9;
        DWORD last = 9;
        grid.EditorWindow()->SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                                         reinterpret_cast<LPARAM>(&last));
        EXPECT_EQ(first, 0u) << code;
        EXPECT_EQ(last, 2u) << code;
    }
}

TEST_F(EditorState, ScrollBelowZero_WritesANegativeNumber)
{
    EditGrid grid;
    grid.spinInit = [](TGGridCell&, CSpinButtonCtrl& spin) { spin.SetRange32(-10, 10); };
    OpenSpin(grid, L"-3");
    EXPECT_EQ(SpinPosition(grid), -3);
    grid.EditorWindow()->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, static_cast<WORD>(-4)),
                                     reinterpret_cast<LPARAM>(grid.EditorPart()->m_hWnd));
    EXPECT_EQ(EditorText(grid), L"-4");
}

TEST_F(EditorState, TypedNumber_MovesTheSpinWhileItIsInTheRange)
{
    EditGrid grid;
    grid.spinInit = [](TGGridCell&, CSpinButtonCtrl& spin) { spin.SetRange32(1, 99); };
    OpenSpin(grid, L"42");
    for (const wchar_t character : {L'5', L'7'})
        grid.EditorWindow()->SendMessage(WM_CHAR, character, 1);
    EXPECT_EQ(EditorText(grid), L"57");
    EXPECT_EQ(SpinPosition(grid), 57);
    grid.EditorWindow()->SendMessage(WM_CHAR, L'0', 1);
    EXPECT_EQ(EditorText(grid), L"570");
    EXPECT_EQ(SpinPosition(grid), 57);
}

// ---- Combo boxes

TEST_F(EditorState, ListCombo_SelectsTheFirstItemThatBeginsWithTheTextIgnoringCase)
{
    EditGrid grid;
    OpenCombo(grid, false, L"APP");
    EXPECT_EQ(Combo(grid).GetCurSel(), 1);
}

TEST_F(EditorState, ListCombo_WithoutAMatchSelectsNothing)
{
    EditGrid grid;
    OpenCombo(grid, false, L"pie");
    EXPECT_EQ(Combo(grid).GetCurSel(), CB_ERR);
}

TEST_F(EditorState, EditableCombo_SelectsNoItemAndShowsTheCellsText)
{
    EditGrid grid;
    OpenCombo(grid, true, L"Fig");
    EXPECT_EQ(Combo(grid).GetCurSel(), CB_ERR);
    EXPECT_EQ(EditorText(grid), L"Fig");
    EXPECT_FALSE(grid.editor->IsModified());
}

TEST_F(EditorState, ListCombo_IsAtLeftAndRightEndButKeepsUpAndDown)
{
    EditGrid grid;
    OpenCombo(grid, false, L"Fig");
    EXPECT_EQ(Ends(*grid.editor), "left right ");
}

TEST_F(EditorState, EditableCombo_CountsTheEndOfItsSelection)
{
    EditGrid grid;
    OpenCombo(grid, true, L"Fig");
    Combo(grid).SetEditSel(0, 0);
    EXPECT_EQ(Ends(*grid.editor), "left ");
    Combo(grid).SetEditSel(0, 2);
    EXPECT_EQ(Ends(*grid.editor), "");
    Combo(grid).SetEditSel(3, 3);
    EXPECT_EQ(Ends(*grid.editor), "right ");
    Combo(grid).SetWindowText(L"");
    EXPECT_EQ(Ends(*grid.editor), "left right ");
}

TEST_F(EditorState, Combo_IgnoresTextsAndMarksThatOthersSet)
{
    EditGrid grid;
    OpenCombo(grid, true, L"Fig");
    grid.editor->SetNewText(L"other");
    grid.editor->SetModified(true);
    EXPECT_EQ(EditorText(grid), L"Fig");
    EXPECT_FALSE(grid.editor->IsModified());
}

TEST_F(EditorState, ChoosingAnItem_WritesItIntoTheCellAtOnceAndCommitsItAgainAtTheEnd)
{
    EditGrid grid;
    OpenCombo(grid, false, L"Fig");
    Choose(grid, 4);
    // Once: the combo box has taken the notification, the grid's own handler does not see it.
    EXPECT_EQ(grid.TakeText(), "OnCmbSelchange 1,1 | OnDataChanged");
    EXPECT_EQ(TextOf(grid, 1, 1), L"Grape");
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_TRUE(grid.editor->IsModified());
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeText(),
              "OnModified 1,1 Grape | OnRefresh cell 1,1 | OnBeforeRefresh 1,1 | OnDataChanged");
}

TEST_F(EditorState, ChosenItem_StaysWhenTheCommitIsRefused)
{
    EditGrid grid;
    OpenCombo(grid, false, L"Fig");
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    Choose(grid, 4);
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 1, 1), L"Grape");
}

TEST_F(EditorState, TypingIntoACombo_MarksTheChangeAndAsksNoHook)
{
    EditGrid grid;
    OpenCombo(grid, true, L"Fig");
    CWnd::GetFocus()->SendMessage(WM_CHAR, L'x', 1);
    PumpPending();
    EXPECT_TRUE(grid.editor->IsModified());
    EXPECT_EQ(grid.TakeEditText(), "");
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeText().substr(0, 16), "OnModified 1,1 x");
}

TEST_F(EditorState, AfterSelChange_FollowsTheHooks)
{
    class Telling : public TGCellCombo
    {
    public:
        Telling(TGGridCell& edited, std::function<void()> changeTold)
            : TGCellCombo(edited, false), told(changeTold)
        {
        }
        void AfterSelChange() override { told(); }

    private:
        std::function<void()> told;
    };
    EditGrid grid;
    std::string atThatTime;
    grid.makeEditor = [&](TGGridCell& cell) {
        return new Telling(cell, [&] { atThatTime = grid.TakeText(); });
    };
    OpenCombo(grid, false, L"Fig");
    Choose(grid, 0);
    EXPECT_EQ(atThatTime, "OnCmbSelchange 1,1 | OnDataChanged");
}

TEST_F(EditorState, ForeignCombo_HasItsNotificationsHandledByTheGrid)
{
    // An editor whose window does not handle its own notifications.
    class Foreign : public CComboBox, public TGCellCtrl
    {
    public:
        explicit Foreign(TGGridCell& edited) : TGCellCtrl(edited) {}
        CWnd* GetWnd() override { return this; }
        void Create(CRect& rect) override
        {
            rect.bottom += 100;
            CComboBox::Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, rect, &GetCell().GetGrid(), 101);
            AddString(L"first");
            AddString(L"second");
        }
        bool IsModified() override { return false; }
        void GetNewText(CString& text) override { GetWindowText(text); }
        bool IsLeftEnd() override { return false; }
        bool IsRightEnd() override { return false; }
        bool IsUpEnd() override { return false; }
        bool IsDownEnd() override { return false; }

    protected:
        void PostNcDestroy() override { delete this; }
    };
    EditGrid grid;
    Make(grid);
    grid.makeEditor = [](TGGridCell& cell) { return new Foreign(cell); };
    grid.BeginEditCell(1, 1);
    grid.TakeText();
    Choose(grid, 1);
    EXPECT_EQ(grid.TakeText(), "OnCmbSelchange 1,1 | OnDataChanged");
    EXPECT_EQ(TextOf(grid, 1, 1), L"second");
    Combo(grid).SetWindowText(L"typed");
    grid.TakeText();
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    grid.SendMessage(WM_COMMAND, MAKEWPARAM(101, CBN_EDITCHANGE),
                     reinterpret_cast<LPARAM>(Combo(grid).m_hWnd));
    // The answer of OnModified is not used: the change is reported all the same.
    EXPECT_EQ(grid.TakeText(), "OnCmbEditchange 1,1 | OnModified 1,1 typed | OnDataChanged");
    EXPECT_EQ(TextOf(grid, 1, 1), L"second");
}

} // namespace
} // namespace quor::test
