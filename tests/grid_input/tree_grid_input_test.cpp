// The tree grid with the real mouse and keyboard: fold boxes, commands by key, rows dragged by their headers.
#include "tests/grid/ItemGrid.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class TreeGridInput : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(grid.Create(CRect(10, 10, 410, 410), WS_CHILD | WS_VISIBLE, &host));
        grid.SetNoAppendButton(true);
    }

    // To be called when the rows are there.
    void Start()
    {
        PumpPending();
        ASSERT_TRUE(Activate(host));
        grid.SetFocus();
    }

    // The middle of the fold box of a row, in client coordinates.
    CPoint FoldBox(long row)
    {
        CPoint corner;
        grid.GetUpCorner(corner);
        const int height = static_cast<int>(grid.GetRowHeight());
        const int side = height - 3;
        const int depth = static_cast<int>(grid.GetTreeRow(row).GetParentNum());
        return CPoint(corner.x + 1 + depth * side + side / 2,
                      corner.y + 1 + static_cast<int>(row) * height + side / 2);
    }
    // The middle of the header box of a row.
    CPoint HeaderBox(long row)
    {
        CPoint corner;
        grid.GetUpCorner(corner);
        const int height = static_cast<int>(grid.GetRowHeight());
        return CPoint(corner.x / 2, corner.y + static_cast<int>(row) * height + height / 2);
    }
    // Two clicks on one box in a row would be a double click.
    void ClickHeader(long row) { Click(grid, HeaderBox(row)); }

    HostWindow host;
    ItemGrid grid;
};

TEST_F(TreeGridInput, ClicksOnFoldBoxes_UnfoldLevelByLevelAndFoldAll)
{
    TGGridTreeRow& continent = grid.Root(L"g");
    TGGridTreeRow& region = grid.Child(continent, L"h");
    grid.Child(region, L"a", L"1");
    grid.Child(region, L"b", L"2");
    Start();
    Click(grid, FoldBox(0));
    EXPECT_EQ(Texts(grid), "g h");
    Click(grid, FoldBox(1));
    EXPECT_EQ(Texts(grid), "g h a b");
    Click(grid, FoldBox(0));
    EXPECT_EQ(Texts(grid), "g");
    Click(grid, FoldBox(0));
    EXPECT_EQ(Texts(grid), "g h a b") << "the region was left unfolded";
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(grid.IsModified());
}

TEST_F(TreeGridInput, ClickBesideTheFoldBox_EditsTheLabel)
{
    TGGridTreeRow& group = grid.Root(L"g");
    grid.Child(group, L"a", L"1");
    Start();
    Click(grid, FoldBox(0) + CPoint(static_cast<int>(grid.GetRowHeight()), 0));
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(Texts(grid), "g");
    grid.CancelEditCell();
}

TEST_F(TreeGridInput, CopyAndPasteByKey_RenumberTheCopy)
{
    grid.Root(L"a", L"4");
    grid.Root(L"b", L"9");
    Start();
    ClickHeader(0);
    ASSERT_EQ(Selection(grid), "rows 0 | cur 0,-1");
    KeyPress('C');
    KeyPress('V');
    EXPECT_EQ(grid.Tree(), "a:10 a:4 b:9");
    EXPECT_EQ(Selection(grid), "rows 0 | cur 0,-1");
    KeyPress('V');
    EXPECT_EQ(grid.Tree(), "a:10 a:4 b:9") << "the row buffer is empty";
}

TEST_F(TreeGridInput, CutAndPasteAsChildByKey_KeepTheIdentifierAndRepairTheFormerGroup)
{
    TGGridTreeRow& from = grid.Root(L"g", L"5");
    grid.Child(from, L"a", L"5");
    grid.Root(L"b", L"9");
    from.UnFold();
    Start();
    ClickHeader(1);
    KeyPress('X');
    EXPECT_EQ(grid.Tree(), "g:10 b:9") << "the row buffer holds 5";
    ClickHeader(0);
    KeyPress(VK_DOWN);
    KeyPress('V', Modifiers::Control);
    EXPECT_EQ(grid.Tree(), "g:10 b(a:5)");
    EXPECT_EQ(Texts(grid), "g b a");
}

TEST_F(TreeGridInput, InsertKeys_CopyTheItemOrMakeATree)
{
    grid.Root(L"a", L"4");
    Start();
    ClickHeader(0);
    KeyPress(VK_INSERT);
    EXPECT_EQ(grid.Tree(), "a:4 a:4");
    KeyPress(VK_INSERT, Modifiers::Control);
    EXPECT_EQ(grid.Tree(), "(:) a:4 a:4");
    ClickHeader(2);
    KeyPress('T');
    EXPECT_EQ(grid.Tree(), "(:) a:4 a(a:4)");
}

TEST_F(TreeGridInput, DeleteKeyOnTheOnlyChild_TurnsTheGroupIntoAnItem)
{
    TGGridTreeRow& group = grid.Root(L"g");
    grid.Child(group, L"a", L"5");
    grid.Root(L"b", L"7");
    group.UnFold();
    Start();
    ClickHeader(1);
    KeyPress(VK_DELETE);
    EXPECT_EQ(grid.Tree(), "g:8 b:7");
    EXPECT_TRUE(grid.IsModified());
    EXPECT_FALSE(static_cast<TGGrid&>(grid).IsModified());
}

TEST_F(TreeGridInput, DraggingTheOnlyChildAway_TurnsTheGroupIntoAnItem)
{
    TGGridTreeRow& group = grid.Root(L"g");
    grid.Child(group, L"a", L"5");
    grid.Root(L"b", L"7");
    grid.Root(L"c", L"6");
    group.UnFold();
    Start();
    ClickHeader(0);
    KeyPress(VK_DOWN);
    ASSERT_EQ(Selection(grid), "rows 1 | cur 1,-1");
    DragPath(grid, {HeaderBox(1), HeaderBox(2), HeaderBox(3)});
    EXPECT_EQ(grid.Tree(), "g:8 b:7 a:5 c:6");
    EXPECT_EQ(Selection(grid), "rows 2 | cur 2,-1");
}

} // namespace
} // namespace quor::test
