// What the cell editors' windows are made with: classes, styles, ids, places, fonts, texts.
#include "tests/grid/EditGrid.h"
#include "tests/grid/EditorProbe.h"

#include "grid/TGCellButtonEdit.h"
#include "grid/TGCellCombo.h"
#include "grid/TGCellSpinEdit.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

using Lines = std::vector<std::string>;

// An editor that keeps the rectangle that it is created with, and the one that it gives back.
template <class Editor> class Recorded : public Editor
{
public:
    Recorded(CRect& givenRect, CRect& returnedRect, TGGridCell& edited)
        : Editor(edited), given(givenRect), returned(returnedRect)
    {
    }
    void Create(CRect& rect) override
    {
        given = rect;
        Editor::Create(rect);
        returned = rect;
    }

private:
    CRect& given;
    CRect& returned;
};

class EditorCreation : public EditTest
{
protected:
    static std::string PlaceText(const CRect& rect)
    {
        return std::to_string(rect.left) + "," + std::to_string(rect.top) + " " +
               std::to_string(rect.Width()) + "x" + std::to_string(rect.Height());
    }
    static CRect FormattingRect(CWnd& edit)
    {
        CRect rect;
        edit.SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    // A session with an editor of that class on cell 1,1; `given` and `returned` are its rectangles.
    template <class Editor> void Open(EditGrid& grid)
    {
        grid.makeEditor = [this](TGGridCell& cell) { return new Recorded<Editor>(given, returned, cell); };
        grid.BeginEditCell(1, 1);
    }

    CRect given;
    CRect returned;
};

TEST_F(EditorCreation, PlainEdit_IsMadeEmptyWithItsStyleAndId)
{
    EditGrid grid;
    Make(grid);
    const CreationProbe probe;
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(probe.Created(), Lines({"Edit 101 56000084 0,0 0x0"}));
    EXPECT_EQ(probe.Parents().front(), grid.m_hWnd);
}

TEST_F(EditorCreation, EditOfACentredColumn_IsCentred)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetCenterAlign(true);
    const CreationProbe probe;
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(probe.Created(), Lines({"Edit 101 56000085 0,0 0x0"}));
}

TEST_F(EditorCreation, EditableCombo_IsOnePixelOutsideTheCellAndElevenCellsOfListHigh)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboEdit(true);
    const CreationProbe probe;
    grid.BeginEditCell(1, 1);
    CRect cell = grid.InsideOf(1, 1);
    const CRect window(cell.left - 1, cell.top - 1, cell.right, cell.top - 1 + 12 * cell.Height());
    ASSERT_EQ(probe.Created().size(), 1u);
    EXPECT_EQ(probe.Created().front(), "ComboBox 101 50200002 " + PlaceText(window));
    EXPECT_EQ(probe.Parents().front(), grid.m_hWnd);
}

TEST_F(EditorCreation, ListCombo_ScrollsByItselfAsTheEditableOneDoesNot)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboSel(true);
    const CreationProbe probe;
    grid.BeginEditCell(1, 1);
    ASSERT_EQ(probe.Created().size(), 1u);
    EXPECT_EQ(probe.Created().front().substr(0, 21), "ComboBox 101 50200043");
}

TEST_F(EditorCreation, Button_IsABorderedSquareAtTheRightEndOfTheEdit)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetRightButton(true);
    const CreationProbe probe;
    grid.BeginEditCell(1, 1);
    CRect client;
    grid.EditorWindow()->GetClientRect(client);
    const CRect square(client.right - client.Height(), 0, client.right, client.bottom);
    EXPECT_EQ(probe.Created(),
              Lines({"Edit 101 56000084 0,0 0x0", "Button 105 50800000 " + PlaceText(square)}));
    EXPECT_EQ(probe.Parents().back(), grid.EditorWindow()->m_hWnd);
    EXPECT_EQ(probe.Captions().back(), L"");
    EXPECT_EQ(Text(PlaceOf(*grid.EditorPart())), Text(square));
}

TEST_F(EditorCreation, Spin_IsASquareAtTheRightEndOfTheEdit)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetRightSpin(true);
    const CreationProbe probe;
    grid.BeginEditCell(1, 1);
    CRect client;
    grid.EditorWindow()->GetClientRect(client);
    const CRect square(client.right - client.Height(), 0, client.right, client.bottom);
    EXPECT_EQ(probe.Created(),
              Lines({"Edit 101 56000084 0,0 0x0", "msctls_updown32 105 50000000 " + PlaceText(square)}));
    EXPECT_EQ(probe.Parents().back(), grid.EditorWindow()->m_hWnd);
    // The system makes it as wide as a scroll bar.
    const CRect place = PlaceOf(*grid.EditorPart());
    EXPECT_EQ(place.TopLeft(), square.TopLeft());
    EXPECT_EQ(place.bottom, square.bottom);
    EXPECT_LE(place.right, square.right);
}

TEST_F(EditorCreation, FirstMatchingColumnStyle_ChoosesTheEditor)
{
    struct Case
    {
        const char* name;
        void (TGGridCol::*set)(bool);
        const char* made;
    };
    const Case cases[] = {
        {"spin", &TGGridCol::SetRightSpin, "Edit 101 56000084 msctls_updown32"},
        {"button over spin", &TGGridCol::SetRightButton, "Edit 101 56000084 Button"},
        {"list over button", &TGGridCol::SetComboSel, "ComboBox 101 50200043"},
        {"editable over list", &TGGridCol::SetComboEdit, "ComboBox 101 50200002"},
    };
    EditGrid grid;
    Make(grid);
    for (const Case& added : cases)
    {
        (grid.GetCol(1).*added.set)(true);
        const CreationProbe probe;
        grid.BeginEditCell(1, 1);
        std::string made = probe.Created().front().substr(0, std::string(added.made).find(' ') + 13);
        if (probe.Created().size() > 1)
            made += " " + probe.Created().back().substr(0, probe.Created().back().find(' '));
        EXPECT_EQ(made, added.made) << added.name;
    }
}

TEST_F(EditorCreation, FormattingRect_LeavesTheRowSpaceAboveTheText)
{
    EditGrid grid;
    Make(grid);
    Open<TGCellEdit>(grid);
    CRect cell = grid.InsideOf(1, 1);
    EXPECT_EQ(Text(given), Text(cell));
    CRect expected(0, grid.GetRowSpace(), cell.Width() - 2, cell.Height());
    EXPECT_EQ(Text(returned), Text(expected));
    const CRect used = FormattingRect(*grid.EditorWindow());
    EXPECT_EQ(used.left, expected.left);
    EXPECT_EQ(used.top, expected.top);
    EXPECT_EQ(used.right, expected.right);
}

TEST_F(EditorCreation, FormattingRectOfButtonAndSpin_EndsACellHeightEarlier)
{
    EditGrid grid;
    Make(grid);
    const CRect cell = grid.InsideOf(1, 1);
    const CRect expected(0, grid.GetRowSpace(), cell.Width() - 2 - cell.Height(), cell.Height());
    Open<TGCellButtonEdit>(grid);
    EXPECT_EQ(Text(returned), Text(expected));
    EXPECT_EQ(FormattingRect(*grid.EditorWindow()).right, expected.right);
    Open<TGCellSpinEdit>(grid);
    EXPECT_EQ(Text(returned), Text(expected));
    EXPECT_EQ(FormattingRect(*grid.EditorWindow()).right, expected.right);
}

TEST_F(EditorCreation, CellHigherThanWide_GetsNoButtonAndNoSpin)
{
    EditGrid grid;
    Create(grid);
    Fill(grid, 2, 2, 18);
    grid.GetCol(0).SetRightButton(true);
    grid.GetCol(1).SetRightSpin(true);
    const CreationProbe probe;
    for (const long col : {0, 1})
    {
        grid.BeginEditCell(1, col);
        ASSERT_TRUE(grid.IsEditing());
        EXPECT_EQ(grid.EditorPart(), nullptr);
        EXPECT_EQ(FormattingRect(*grid.EditorWindow()).left, 0);
        // The edit works without its part.
        grid.Enter(L"7");
        grid.EndEditCell();
        EXPECT_EQ(TextOf(grid, 1, col), L"7");
    }
    EXPECT_EQ(probe.Created().size(), 2u);
}

TEST_F(EditorCreation, CellAsWideAsHigh_GetsItsButton)
{
    EditGrid grid;
    Create(grid);
    // The inside is 19 high, the edit begins 2 further right.
    Fill(grid, 2, 1, 22);
    grid.GetCol(0).SetRightButton(true);
    grid.BeginEditCell(1, 0);
    ASSERT_NE(grid.EditorPart(), nullptr);
    EXPECT_EQ(Text(PlaceOf(*grid.EditorPart())), "0,0-19,19");
}

TEST_F(EditorCreation, EveryEditor_HasTheGridsFontAndTheCellsTextAndTheFocus)
{
    EditGrid grid;
    Make(grid, 3, 5);
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"1,4 and more"); };
    grid.GetCol(1).SetRightButton(true);
    grid.GetCol(2).SetRightSpin(true);
    grid.GetCol(3).SetComboEdit(true);
    grid.GetCol(4).SetComboSel(true);
    for (long col = 0; col < 5; ++col)
    {
        grid.BeginEditCell(1, col);
        CWnd* editor = grid.EditorWindow();
        EXPECT_EQ(reinterpret_cast<HFONT>(editor->SendMessage(WM_GETFONT)), HFONT(*grid.GetFont())) << col;
        EXPECT_TRUE(CWnd::GetFocus() == editor || editor->IsChild(CWnd::GetFocus())) << col;
        EXPECT_TRUE(editor->IsWindowVisible()) << col;
        CString text;
        grid.editor->GetNewText(text);
        // The text of a list combo is that of its selected item.
        EXPECT_EQ(text, col == 4 ? CString(L"1,4 and more") : TextOf(grid, 1, col)) << col;
        EXPECT_FALSE(grid.editor->IsModified()) << col;
    }
}

TEST_F(EditorCreation, EditsText_IsSelectedFromBeginningToEnd)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    DWORD first = 9;
    DWORD last = 9;
    grid.EditorWindow()->SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                                     reinterpret_cast<LPARAM>(&last));
    EXPECT_EQ(first, 0u);
    EXPECT_EQ(last, 3u);
}

TEST_F(EditorCreation, ComboField_IsFourPixelsLowerThanARow)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboEdit(true);
    int fieldHeight = 0;
    grid.comboStrings = [&](TGGridCell&, CComboBox& combo) { fieldHeight = combo.GetItemHeight(-1); };
    grid.BeginEditCell(1, 1);
    // The system counts its own border in.
    CComboBox reference;
    reference.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 100, 200), &host, 9);
    reference.SetItemHeight(-1, rowHeight - 4);
    EXPECT_EQ(fieldHeight, reference.GetItemHeight(-1));
    // The font that is set afterwards does not change it.
    EXPECT_EQ(static_cast<CComboBox*>(grid.EditorWindow())->GetItemHeight(-1), fieldHeight);
}

TEST_F(EditorCreation, Hide_HidesAndDisablesTheWindow)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    CWnd* editor = grid.EditorWindow();
    grid.EndEditCell();
    ASSERT_EQ(grid.EditorWindow(), editor);
    EXPECT_FALSE(editor->IsWindowVisible());
    EXPECT_FALSE(editor->IsWindowEnabled());
}

TEST_F(EditorCreation, IsMyFocus_CountsTheEditorAndItsParts)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetRightButton(true);
    grid.BeginEditCell(1, 1);
    EXPECT_TRUE(grid.editor->IsMyFocus(grid.EditorWindow()));
    EXPECT_TRUE(grid.editor->IsMyFocus(grid.EditorPart()));
    EXPECT_FALSE(grid.editor->IsMyFocus(&grid));
    EXPECT_FALSE(grid.editor->IsMyFocus(&host));
    EXPECT_FALSE(grid.editor->IsMyFocus(nullptr));
}

TEST_F(EditorCreation, Destroy_EndsWindowAndObject)
{
    EditGrid grid;
    Make(grid);
    bool deleted = false;
    class Counted : public TGCellEdit
    {
    public:
        Counted(TGGridCell& edited, bool& deletedFlag) : TGCellEdit(edited), flag(deletedFlag) {}
        ~Counted() override { flag = true; }

    private:
        bool& flag;
    };
    grid.makeEditor = [&](TGGridCell& cell) { return new Counted(cell, deleted); };
    grid.BeginEditCell(1, 1);
    const HWND window = grid.EditorWindow()->m_hWnd;
    EXPECT_EQ(&grid.editor->GetCell(), &grid.GetCell(1, 1));
    grid.EndEditCell();
    EXPECT_FALSE(deleted);
    grid.DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_TRUE(deleted);
}

TEST_F(EditorCreation, Button_IsNotMadeWhereTheTextWouldHaveNoRoom)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    TGCellButton button(grid.editor);
    grid.EditorWindow()->MoveWindow(0, 0, 19, 20);
    EXPECT_FALSE(button.Create());
    EXPECT_EQ(button.m_hWnd, nullptr);
    grid.EditorWindow()->MoveWindow(0, 0, 60, 20);
    EXPECT_TRUE(button.Create());
    EXPECT_EQ(Text(PlaceOf(button)), Text(CRect(40, 0, 60, 20)));
}

} // namespace
} // namespace quor::test
