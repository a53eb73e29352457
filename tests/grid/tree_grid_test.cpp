// The tree grid's hooks: new rows, repaired identifiers, drawing, notification.
#include "tests/grid/ItemGrid.h"
#include "tests/grid/WindowGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class TreeGrid : public testing::Test
{
protected:
    ItemGrid grid;
};

// ---- New rows

TEST_F(TreeGrid, InsertBesideAnItem_CopiesTextsAndIdentifier)
{
    grid.Root(L"a", L"4");
    grid.Select({0});
    ASSERT_TRUE(grid.DoInsertRowAfter());
    EXPECT_EQ(grid.Tree(), "a:4 a:4");
}

TEST_F(TreeGrid, InsertBesideAGroup_StartsEmpty)
{
    TGGridTreeRow& group = grid.Root(L"g", L"4");
    grid.Child(group, L"a", L"5");
    grid.Select({0});
    ASSERT_TRUE(grid.DoInsertRow());
    EXPECT_EQ(grid.Tree(), ": g(a:5)");
    EXPECT_TRUE(grid.GetRow(0).IsTreeRow());
}

TEST_F(TreeGrid, InsertBesideAChildItem_CopiesItAsASibling)
{
    TGGridTreeRow& group = grid.Root(L"g");
    grid.Child(group, L"a", L"5");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.DoInsertRow());
    EXPECT_EQ(grid.Tree(), "g(a:5 a:5)");
}

TEST_F(TreeGrid, AppendChildToAnItem_CopiesTheItem)
{
    grid.Root(L"a", L"5");
    grid.Select({0});
    ASSERT_TRUE(grid.DoAppendChild());
    EXPECT_EQ(grid.Tree(), "a(a:5)");
}

TEST_F(TreeGrid, NewRow_TakesStyleButNoHostDataOfTheItem)
{
    TGGridTreeRow& item = grid.Root(L"a", L"4");
    item.SetDelUnable(true);
    item.SetExtendData(new CountedData);
    grid.Select({0});
    ASSERT_TRUE(grid.DoInsertRowAfter());
    EXPECT_TRUE(grid.GetRow(1).IsDelUnable());
    EXPECT_EQ(grid.GetRow(1).GetExtendData(), nullptr);
}

TEST_F(TreeGrid, BeforeInsert_WithTwoRowsSelected_LeavesTheRowToTheGrid)
{
    grid.Root(L"a", L"4");
    grid.Root(L"b", L"5");
    grid.Select({0, 1});
    TGGridRow* row = nullptr;
    EXPECT_TRUE(grid.OnBeforeInsertRow(2, row));
    EXPECT_EQ(row, nullptr);
    TGGridTreeRow* child = nullptr;
    EXPECT_TRUE(grid.OnBeforeInsertChild(grid.GetTreeRow(0), 0, child));
    EXPECT_EQ(child, nullptr);
    ASSERT_TRUE(grid.DoAppendRow(false));
    EXPECT_EQ(grid.Tree(), "a:4 b:5 :");
}

TEST_F(TreeGrid, BeforeInsert_KeepsARowThatTheCallerSupplies)
{
    grid.Root(L"a", L"4");
    grid.Select({0});
    ASSERT_TRUE(grid.DoInsertTreeAfter());
    EXPECT_EQ(grid.Tree(), "a:4 (:)") << "the prepared tree, not a copy";
}

TEST_F(TreeGrid, BeforeInsertChild_CopiesAnItemWithTheTreeAssignment)
{
    grid.Root(L"a", L"4");
    grid.Select({0});
    TGGridTreeRow* child = nullptr;
    ASSERT_TRUE(grid.OnBeforeInsertChild(grid.GetTreeRow(0), 0, child));
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(ItemGrid::Describe(*child), "a:4");
    delete child;
}

TEST_F(TreeGrid, BeforeInsert_BesideAPlainRow_SuppliesAnEmptyTreeRow)
{
    ItemGrid plain(false);
    plain.AppendRow(nullptr);
    plain.GetCell(0, 0).SetText(L"a");
    plain.Select({0});
    TGGridRow* row = nullptr;
    ASSERT_TRUE(plain.OnBeforeInsertRow(0, row));
    ASSERT_NE(row, nullptr);
    EXPECT_TRUE(row->IsTreeRow());
    EXPECT_EQ(ItemGrid::Describe(*row), ":");
    delete row;
}

// ---- Repairing identifiers

TEST_F(TreeGrid, DeletingTheOnlyChild_TurnsTheGroupIntoAnItemWithAValidIdentifier)
{
    TGGridTreeRow& group = grid.Root(L"g", L"");
    grid.Child(group, L"a", L"5");
    grid.Root(L"b", L"7");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.DoDelete());
    EXPECT_EQ(grid.Tree(), "g:8 b:7");
}

TEST_F(TreeGrid, DeletingTheOnlyChild_KeepsTheIdentifierOfAGroupThatHasAUniqueOne)
{
    TGGridTreeRow& group = grid.Root(L"g", L"6");
    grid.Child(group, L"a", L"5");
    grid.Root(L"b", L"7");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.DoDelete());
    EXPECT_EQ(grid.Tree(), "g:6 b:7");
}

TEST_F(TreeGrid, DeletingOneOfTwoChildren_RepairsNothing)
{
    TGGridTreeRow& group = grid.Root(L"g", L"x");
    grid.Child(group, L"a", L"5");
    grid.Child(group, L"b", L"6");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.DoDelete());
    EXPECT_EQ(Narrow(group[1].GetText()), "x");
}

TEST_F(TreeGrid, DeletingAGroupWithItsChildren_RepairsNothing)
{
    TGGridTreeRow& group = grid.Root(L"g", L"");
    grid.Child(group, L"a", L"5");
    grid.Root(L"b", L"");
    group.UnFold();
    grid.Select({0, 1});
    ASSERT_TRUE(grid.DoDelete());
    EXPECT_EQ(grid.Tree(), "b:");
}

TEST_F(TreeGrid, DeletingAChildAndItsGrandparent_ForgetsTheParentBetween)
{
    TGGridTreeRow& top = grid.Root(L"t", L"");
    TGGridTreeRow& middle = grid.Child(top, L"m", L"");
    grid.Child(middle, L"a", L"1");
    top.UnFoldAll();
    grid.Select({0, 2});
    ASSERT_TRUE(grid.DoDelete());
    EXPECT_EQ(grid.Tree(), "");
}

TEST_F(TreeGrid, CuttingTheOnlyChild_GivesTheGroupAnIdentifierThatTheBufferDoesNotHold)
{
    TGGridTreeRow& group = grid.Root(L"g", L"5");
    grid.Child(group, L"a", L"5");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.DoClip());
    EXPECT_EQ(grid.Tree(), "g:6") << "the cut row holds 5";
}

TEST_F(TreeGrid, TwoGroupsThatBecomeItems_GetDifferentIdentifiers)
{
    for (const wchar_t* label : {L"g", L"h"})
    {
        TGGridTreeRow& group = grid.Root(label, L"");
        grid.Child(group, L"a", L"5");
        group.UnFold();
    }
    grid.Select({1, 3});
    ASSERT_TRUE(grid.DoDelete());
    EXPECT_EQ(grid.Tree(), "g:1 h:2");
}

TEST_F(TreeGrid, Move_NotesParentsAndItsEndRepairsThem)
{
    TGGridTreeRow& group = grid.Root(L"g", L"");
    grid.Child(group, L"a", L"5");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.OnMoveRow(0));
    group.DelChild(0);
    grid.OnEndMoveRow();
    EXPECT_EQ(grid.Tree(), "g:1");
    group[1].SetText(L"");
    grid.OnEndMoveRow();
    EXPECT_EQ(grid.Tree(), "g:") << "the list was emptied";
}

class VetoingMoves : public ItemGrid
{
protected:
    bool OnMovingRow(long) override { return false; }
};

TEST_F(TreeGrid, Move_IsVetoedWhereMovingIs)
{
    VetoingMoves vetoing;
    TGGridTreeRow& group = vetoing.Root(L"g", L"");
    vetoing.Child(group, L"a", L"5");
    group.UnFold();
    vetoing.Select({1});
    EXPECT_FALSE(vetoing.OnMoveRow(0));
    group.DelChild(0);
    vetoing.OnEndMoveRow();
    EXPECT_EQ(vetoing.Tree(), "g:") << "no parent was noted";
}

TEST_F(TreeGrid, ParentsOfACommandThatStopped_AreRepairedByTheNextEnd)
{
    TGGridTreeRow& group = grid.Root(L"g", L"");
    grid.Child(group, L"a", L"5");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.OnBeforeClip());
    group.DelChild(0);
    grid.UnSelect();
    ASSERT_TRUE(grid.OnBeforeDeleteRow());
    grid.OnEndDeleteRow();
    EXPECT_EQ(grid.Tree(), "g:1");
}

TEST_F(TreeGrid, NotedParentThatTheHostDeletes_IsForgotten)
{
    TGGridTreeRow& group = grid.Root(L"g", L"");
    grid.Child(group, L"a", L"5");
    group.UnFold();
    grid.Select({1});
    ASSERT_TRUE(grid.OnBeforeClip());
    grid.Clear();
    grid.OnEndClip();
    EXPECT_EQ(grid.Tree(), "");
}

// ---- Paste

TEST_F(TreeGrid, PastingACopyNextToItsItem_GivesTheCopyANewIdentifier)
{
    grid.Root(L"a", L"4");
    grid.Root(L"b", L"9");
    grid.Select({0});
    ASSERT_TRUE(grid.DoCopy());
    ASSERT_TRUE(grid.DoPaste());
    EXPECT_EQ(grid.Tree(), "a:10 a:4 b:9");
}

TEST_F(TreeGrid, PastingCutItems_KeepsTheirIdentifiers)
{
    grid.Root(L"a", L"4");
    grid.Root(L"b", L"9");
    grid.Select({0});
    ASSERT_TRUE(grid.DoClip());
    ASSERT_TRUE(grid.DoPaste());
    EXPECT_EQ(grid.Tree(), "b:9 a:4");
}

TEST_F(TreeGrid, PastingAGroup_RenumbersItsFoldedItemsOneAfterAnother)
{
    TGGridTreeRow& group = grid.Root(L"g");
    grid.Child(group, L"a", L"1");
    grid.Child(group, L"b", L"2");
    grid.Select({0});
    ASSERT_TRUE(grid.DoCopy());
    ASSERT_TRUE(grid.DoPaste());
    EXPECT_EQ(grid.Tree(), "g(a:3 b:4) g(a:1 b:2)");
}

TEST_F(TreeGrid, PastingAsChildren_RenumbersThePastedItems)
{
    grid.Root(L"a", L"1");
    TGGridTreeRow& group = grid.Root(L"g");
    grid.Child(group, L"b", L"2");
    grid.Select({0});
    ASSERT_TRUE(grid.DoCopy());
    grid.Select({1});
    ASSERT_TRUE(grid.DoPasteChild());
    EXPECT_EQ(grid.Tree(), "a:1 g(b:2 a:3)");
}

TEST_F(TreeGrid, PastedTextThatIsNoNumber_BecomesOne)
{
    grid.Root(L"a", L"none");
    grid.Select({0});
    ASSERT_TRUE(grid.DoClip());
    ASSERT_TRUE(grid.DoPaste());
    EXPECT_EQ(grid.Tree(), "a:1");
}

// ---- State

TEST_F(TreeGrid, DataChanged_SetsItsOwnFlagOnly)
{
    EXPECT_FALSE(grid.IsModified());
    grid.OnDataChanged();
    EXPECT_TRUE(grid.IsModified());
    EXPECT_FALSE(static_cast<TGGrid&>(grid).IsModified());
    grid.SetModified(false);
    EXPECT_FALSE(grid.IsModified());
}

TEST_F(TreeGrid, InsertRowHook_DoesNotReportAChange)
{
    grid.Root(L"a");
    grid.OnInsertRow(grid.GetRow(0));
    EXPECT_FALSE(grid.IsModified());
}

TEST_F(TreeGrid, GetSelRow_IsTheOnlySelectedRow)
{
    grid.Root(L"a");
    grid.Root(L"b");
    EXPECT_EQ(grid.GetSelRow(), nullptr);
    grid.Select({1});
    EXPECT_EQ(grid.GetSelRow(), &grid.GetRow(1));
    grid.Select({0, 1});
    EXPECT_EQ(grid.GetSelRow(), nullptr);
    EXPECT_EQ(&grid.GetSelRow(1), &grid.GetRow(1));
}

TEST_F(TreeGrid, MenuCommands_RunTheirCommands)
{
    grid.Root(L"a", L"1");
    grid.Select({0});
    grid.OnMenuCommand(1);
    EXPECT_EQ(grid.Tree(), "a:1 a:1");
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1") << "behind the selected row";
    grid.OnMenuCommand(2);
    EXPECT_EQ(grid.Tree(), "a:1");
    grid.OnMenuCommand(3);
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
    grid.OnMenuCommand(4);
    EXPECT_EQ(grid.GetRowSelNum(), 2);
    grid.OnMenuCommand(5);
    grid.OnMenuCommand(0);
    EXPECT_EQ(grid.GetRowSelNum(), 2);
    EXPECT_TRUE(grid.GetRowPaste().IsEmpty());
}

TEST_F(TreeGrid, EditRule_AllowsOnlyTheLabelOfAGroup)
{
    TGGridTreeRow& group = grid.Root(L"g");
    TGGridTreeRow& item = grid.Child(group, L"a", L"1");
    EXPECT_TRUE(grid.OnBeforeEdit(group[0]));
    EXPECT_FALSE(grid.OnBeforeEdit(group[1]));
    EXPECT_TRUE(grid.OnBeforeEdit(item[0]));
    EXPECT_TRUE(grid.OnBeforeEdit(item[1]));
}

TEST_F(TreeGrid, ClassInformation_NamesGridAsBase)
{
    EXPECT_STREQ(grid.GetRuntimeClass()->m_lpszClassName, "TGTreeGrid");
    EXPECT_TRUE(grid.IsKindOf(RUNTIME_CLASS(TGGrid)));
}

// ---- With a window

// Counts the cells that are drawn with a text.
class DrawnItemGrid : public ItemGrid
{
public:
    std::vector<std::string> drawn;

protected:
    bool OnRefresh(TGGridCell& cell) override
    {
        drawn.push_back(std::to_string(cell.GetRowIndex()) + "," + std::to_string(cell.GetColIndex()) + "=" +
                        Narrow(cell.GetText()));
        return ItemGrid::OnRefresh(cell);
    }
    using ItemGrid::OnRefresh;
};

TEST(TreeGridWindow, GroupRow_IsDrawnWithItsLabelOnlyAndKeepsItsTexts)
{
    HostWindow host;
    DrawnItemGrid grid;
    ASSERT_TRUE(grid.Create(CRect(10, 10, 410, 310), WS_CHILD | WS_VISIBLE, &host));
    grid.SetNoAppendButton(true);
    TGGridTreeRow& group = grid.Root(L"g", L"77");
    grid.Child(group, L"a", L"1");
    group.UnFold();
    PumpPending();
    grid.drawn.clear();
    grid.RedrawWindow();
    EXPECT_EQ(grid.drawn, (std::vector<std::string>{"0,0=g", "0,1=", "1,0=a", "1,1=1"}));
    EXPECT_EQ(Narrow(group[1].GetText()), "77");
}

TEST(TreeGridWindow, Commands_TellTheParentNothing)
{
    HostWindow host;
    ItemGrid grid;
    ASSERT_TRUE(grid.Create(CRect(10, 10, 410, 310), WS_CHILD | WS_VISIBLE, &host));
    host.TakeLog();
    ASSERT_TRUE(grid.DoAppendRow(true));
    ASSERT_TRUE(grid.DoInsertRow());
    ASSERT_TRUE(grid.DoDelete());
    EXPECT_EQ(host.TakeLog(), std::vector<std::string>{});
    EXPECT_TRUE(grid.IsModified());
    EXPECT_FALSE(static_cast<TGGrid&>(grid).IsModified());
}

TEST(TreeGridWindow, EditedText_IsStoredWithoutTellingTheParent)
{
    HostWindow host;
    ItemGrid grid;
    ASSERT_TRUE(grid.Create(CRect(10, 10, 410, 310), WS_CHILD | WS_VISIBLE, &host));
    grid.Root(L"a", L"1");
    grid.BeginEditCell(0, 0);
    ASSERT_TRUE(grid.IsEditing());
    host.TakeLog();
    CWnd* editor = grid.GetDlgItem(101);
    ASSERT_NE(editor, nullptr);
    editor->SetWindowText(L"b");
    editor->SendMessage(EM_SETMODIFY, TRUE);
    grid.EndEditCell();
    EXPECT_EQ(grid.Tree(), "b:1");
    for (const std::string& line : host.TakeLog())
        EXPECT_EQ(line.find("code 768"), std::string::npos) << line;
    EXPECT_TRUE(grid.IsModified());
}

} // namespace
} // namespace quor::test
