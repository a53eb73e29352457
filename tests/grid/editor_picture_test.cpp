// The pixels of open editors: inside the cell's lines, the text where the cell drew it.
#include "tests/grid/EditGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class EditorPicture : public EditTest
{
protected:
    // Shows the text of the editor as the cell does: without selection and caret.
    static void ShowPlain(EditGrid& grid)
    {
        grid.EditorWindow()->SendMessage(EM_SETSEL, 0, 0);
        grid.EditorWindow()->HideCaret();
    }
    // How many pixels of the rectangle differ.
    static int Differences(const Snapshot& one, const Snapshot& other, const CRect& rect)
    {
        int number = 0;
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x)
                number += one.At(x, y) != other.At(x, y);
        return number;
    }
    // How many pixels of the rectangle are not white.
    static int Ink(const Snapshot& picture, const CRect& rect)
    {
        return rect.Width() * rect.Height() - picture.CountColour(rect, white);
    }
    // The four lines around a cell are there.
    static bool HasItsLines(const Snapshot& picture, const CRect& inside)
    {
        const CRect outside(inside.left - 1, inside.top - 1, inside.right + 1, inside.bottom + 1);
        return picture.IsAll(CRect(outside.left, outside.top, outside.right, inside.top), lineColour) &&
               picture.IsAll(CRect(outside.left, inside.bottom, outside.right, outside.bottom), lineColour) &&
               picture.IsAll(CRect(outside.left, outside.top, inside.left, outside.bottom), lineColour) &&
               picture.IsAll(CRect(inside.right, outside.top, outside.right, outside.bottom), lineColour);
    }
};

TEST_F(EditorPicture, TextDoesNotJump_WhenTheEditorOpens)
{
    for (const bool centred : {false, true})
        for (const wchar_t* text : {L"Wgj 1,1", L"氢 Hydrogen", L"|"})
        {
            EditGrid grid;
            Make(grid);
            grid.GetCol(1).SetCenterAlign(centred);
            grid.GetCell(1, 1).SetText(text);
            const Snapshot before(grid);
            const CRect inside = grid.InsideOf(1, 1);
            ASSERT_GT(Ink(before, inside), 5);
            grid.BeginEditCell(1, 1);
            ShowPlain(grid);
            const Snapshot after(grid);
            EXPECT_EQ(Differences(before, after, inside), 0) << CStringA(text) << (centred ? " centred" : "");
        }
}

TEST_F(EditorPicture, TextBesideButtonAndSpin_DoesNotJump)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetRightButton(true);
    grid.GetCol(2).SetRightSpin(true);
    for (const long col : {1, 2})
    {
        const Snapshot before(grid);
        CRect inside = grid.InsideOf(1, col);
        grid.BeginEditCell(1, col);
        ShowPlain(grid);
        const Snapshot after(grid);
        const CRect part(inside.right - inside.Height(), inside.top, inside.right, inside.bottom);
        const CRect text(inside.left, inside.top, part.left, inside.bottom);
        ASSERT_GT(Ink(before, text), 5) << col;
        EXPECT_EQ(Differences(before, after, text), 0) << col;
        EXPECT_GT(Ink(after, part), 10) << col;
    }
}

TEST_F(EditorPicture, TextInTheTreeColumn_DoesNotJump)
{
    EditGrid grid(true);
    Create(grid);
    grid.AppendCol(L"", 200);
    grid.AppendRow(nullptr);
    grid.GetTreeRow(0).AppendChild(nullptr);
    grid.GetTreeRow(0).UnFold();
    for (const long row : {0, 1})
    {
        grid.GetCell(row, 0).SetText(L"Text");
        grid.Invalidate(TRUE);
        const Snapshot before(grid);
        grid.BeginEditCell(row, 0);
        ShowPlain(grid);
        const Snapshot after(grid);
        EXPECT_EQ(Differences(before, after, grid.InsideOf(row, 0)), 0) << row;
        grid.EndEditCell();
    }
}

TEST_F(EditorPicture, EditBasedEditors_LeaveTheLinesOfTheCell)
{
    EditGrid grid;
    Create(grid, 500);
    Fill(grid, 3, 4);
    grid.GetCol(2).SetRightButton(true);
    grid.GetCol(3).SetRightSpin(true);
    for (const long col : {1, 2, 3})
    {
        grid.BeginEditCell(1, col);
        EXPECT_TRUE(HasItsLines(Snapshot(grid), grid.InsideOf(1, col))) << col;
    }
}

TEST_F(EditorPicture, ComboBoxes_CoverTheCellAndItsUpperAndLeftLineOnly)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboEdit(true);
    grid.GetCol(2).SetComboSel(true);
    for (const long col : {1, 2})
    {
        grid.BeginEditCell(1, col);
        const CRect inside = grid.InsideOf(1, col);
        const CRect place = PlaceOf(*grid.EditorWindow());
        EXPECT_EQ(place.left, inside.left - 1) << col;
        EXPECT_EQ(place.top, inside.top - 1) << col;
        EXPECT_EQ(place.right, inside.right) << col;
        EXPECT_GE(place.bottom, inside.bottom) << col;
        EXPECT_LE(place.bottom, inside.bottom + 2) << col;
    }
}

TEST_F(EditorPicture, Editor_HasTheColoursOfItsColumn)
{
    EditGrid grid;
    Make(grid);
    const COLORREF back = RGB(220, 255, 200);
    grid.GetCol(1).SetBackColor(back);
    grid.Invalidate(TRUE);
    const Snapshot before(grid);
    grid.BeginEditCell(1, 1);
    ShowPlain(grid);
    const Snapshot after(grid);
    EXPECT_EQ(Differences(before, after, grid.InsideOf(1, 1)), 0);
    EXPECT_EQ(after.At(grid.InsideOf(1, 1).right - 2, grid.InsideOf(1, 1).top + 2), back);
}

} // namespace
} // namespace quor::test
