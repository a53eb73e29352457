// What extensions are told of changes, by programs and by users, and that it is enough to take them back.
#include "tests/extras/RecordingExtension.h"
#include "tests/grid/ModelGrid.h"
#include "tests/grid/WindowGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A grid of two columns, without a window, with rows named after the letters.
class Changes : public testing::Test
{
protected:
    explicit Changes(bool tree = false) : grid(tree) {}

    void Fill(const std::string& rows)
    {
        grid.AppendCol(L"A", 50);
        grid.AppendCol(L"B", 60);
        AddRows(grid, rows);
        extension.AttachTo(grid);
        extension.Take();
    }
    // The log without what only tells of the selection.
    std::string Take()
    {
        std::erase(extension.log, "selected");
        return extension.Take();
    }

    ModelGrid grid;
    RecordingExtension extension;
};

class TreeChanges : public Changes
{
protected:
    TreeChanges() : Changes(true) {}

    // a, with the children x and y; b.
    void FillTree()
    {
        Fill("ab");
        for (const wchar_t* text : {L"x", L"y"})
            AddChild(grid.GetTreeRow(0), text);
        extension.Take();
    }
};

TEST_F(Changes, OfTexts_TellTheOldText)
{
    Fill("ab");
    grid.GetCell(1, 0).SetText(L"c");
    grid.GetCell(1, 0).SetText(nullptr);
    grid.GetCell(0, 1) = grid.GetCell(0, 0);
    EXPECT_EQ(Take(), "text 1,0: b -> c | text 1,0: c ->  | text 0,1:  -> a");
}

TEST_F(Changes, OfTexts_OutsideTheGrid_AreNotTold)
{
    Fill("a");
    TGGridRow loose(grid);
    loose[0].SetText(L"loose");
    EXPECT_EQ(Take(), "");
}

TEST_F(Changes, OfRowsThatComeIn)
{
    Fill("ab");
    grid.InsertRow(1, nullptr);
    grid.AppendRow(nullptr);
    grid.SetRowNum(6);
    EXPECT_EQ(Take(), "inserted - 1: ? | inserted - 3: ? | inserted - 4: ? ?");
}

TEST_F(Changes, OfRowsThatGo_HandThemOver)
{
    Fill("abcd");
    auto* const data = new CountedData;
    grid.GetRow(1).SetExtendData(data);
    extension.keeps = true;
    grid.DelRow(1);
    grid.SetRowNum(2);
    EXPECT_EQ(Take(), "removed - 1: b | removed - 2: d");
    ASSERT_EQ(extension.keptRows.size(), 2U);
    EXPECT_EQ(CountedData::alive, 1);
    grid.InsertRow(1, extension.keptRows[0].release());
    EXPECT_EQ(Texts(grid), "a b c");
    EXPECT_EQ(grid.GetRow(1).GetExtendData(), data);
}

TEST_F(Changes, OfRowsThatNobodyTakes_DeleteThem)
{
    Fill("ab");
    grid.GetRow(0).SetExtendData(new CountedData);
    grid.GetRow(1).SetExtendData(new CountedData);
    grid.DelRow(0);
    EXPECT_EQ(CountedData::alive, 1);
    grid.Clear();
    EXPECT_EQ(CountedData::alive, 0);
    EXPECT_EQ(Take(), "removed - 0: a | removed - 0: b");
}

TEST_F(Changes, OfARowThatTwoWant_GiveItToTheFirst)
{
    Fill("a");
    RecordingExtension second;
    second.AttachTo(grid);
    extension.keeps = second.keeps = true;
    grid.DelRow(0);
    EXPECT_EQ(extension.keptRows.size(), 1U);
    EXPECT_EQ(second.keptRows.size(), 0U);
    EXPECT_EQ(second.Take(), "attached | selected | removed - 0: a");
}

TEST_F(Changes, OfMovedRows)
{
    Fill("abcd");
    grid.MoveRow(0, 3);
    EXPECT_EQ(Take(), "moved 0 3 x1");
    grid.MoveRow(2, 0);
    EXPECT_EQ(Texts(grid), "a b c d");
}

TEST_F(Changes, OfOrder_TellWhereEachRowWas)
{
    Fill("cab");
    grid.AppendKey(0);
    grid.Arrange(true);
    EXPECT_EQ(Take(), "sorted -: 1 2 0");
    EXPECT_EQ(Texts(grid), "a b c");
}

TEST_F(Changes, OfColumns)
{
    Fill("a");
    extension.keeps = true;
    grid.InsertCol(1, L"N", 30);
    grid.AppendCol(L"Z", 40);
    grid.MoveCol(3, 0);
    grid.DelCol(1);
    EXPECT_EQ(Take(), "column 1: N | column 3: Z | moved column 3 0 | removing column 1: A | "
                      "removed column 1: A");
    ASSERT_EQ(extension.keptCols.size(), 1U);
    grid.InsertCol(1, extension.keptCols[0].release(), 50);
    EXPECT_EQ(Columns(grid), "Z 0-40 | A 40-90 | N 90-120 | B 120-180");
}

TEST_F(Changes, OfAColumnThatGoes_ShowItsCellsBefore)
{
    Fill("ab");
    std::string seen;
    extension.actions["removing column"] = [&] {
        for (long row = 0; row < grid.GetRowNum(); ++row)
            seen += Narrow(grid.GetCell(row, 0).GetText());
    };
    grid.DelCol(0);
    EXPECT_EQ(seen, "ab");
}

TEST_F(Changes, OfTheSelection)
{
    Fill("ab");
    grid.SelectRow(1, true);
    EXPECT_EQ(extension.Take(), "selected");
    grid.SelectAll();
    EXPECT_EQ(extension.Take(), "selected");
    grid.UnSelect();
    EXPECT_EQ(extension.Take(), "selected");
}

TEST_F(Changes, ByCommands_AreToldLikeThoseOfPrograms)
{
    Fill("abc");
    grid.SelectRow(1, true);
    grid.DoInsertRow();
    EXPECT_EQ(Take(), "inserted - 1: ?");
    grid.DoDelete();
    EXPECT_EQ(Take(), "removed - 1: ?");
    grid.SelectRow(0, true);
    grid.DoClip();
    EXPECT_EQ(Take(), "removed - 0: a (buffered)");
    grid.DoPaste();
    EXPECT_EQ(Take(), "inserted - 2: a");
    EXPECT_EQ(Texts(grid), "b c a");
}

TEST_F(TreeChanges, OfChildren_NameTheirParent)
{
    FillTree();
    TGGridTreeRow& root = grid.GetTreeRow(0);
    AddChild(root, L"z");
    EXPECT_EQ(Take(), "inserted a 2: z");
    extension.keeps = true;
    root.DelChild(1);
    EXPECT_EQ(Take(), "removed a 1: y");
    ASSERT_EQ(extension.keptRows.size(), 1U);
    EXPECT_FALSE(extension.keptRows[0]->IsChildRow());
    root.InsertChild(1, static_cast<TGGridTreeRow*>(extension.keptRows[0].release()));
    root.UnFold();
    EXPECT_EQ(Texts(grid), "a x y z b");
    root.ClearChild();
    EXPECT_EQ(Take(), "inserted a 1: y | folded a- | folded a+ | removed a 0: x y z");
}

TEST_F(TreeChanges, OfATreeOutsideTheGrid_AreToldWhenItComesIn)
{
    FillTree();
    auto* const loose = new TGGridTreeRow(grid);
    AddChild(*loose, L"k").UnFold();
    EXPECT_EQ(Take(), "");
    grid.AppendRow(loose);
    EXPECT_EQ(Take(), "inserted - 2: ?");
}

TEST_F(TreeChanges, OfAShownChildThatIsDeletedAsARow_NameItsParent)
{
    FillTree();
    grid.GetTreeRow(0).UnFold();
    Take();
    grid.DelRow(2);
    EXPECT_EQ(Take(), "removed a 1: y");
    grid.DelRowEx(1);
    EXPECT_EQ(Take(), "removed a 0: x");
}

TEST_F(TreeChanges, OfFolding)
{
    FillTree();
    AddChild(grid.GetTreeRow(0).GetChild(0), L"deep");
    Take();
    grid.GetTreeRow(0).UnFoldAll();
    EXPECT_EQ(Take(), "folded a- x-");
    grid.GetTreeRow(0).Fold();
    grid.GetTreeRow(0).Fold();
    EXPECT_EQ(Take(), "folded a+");
    grid.GetTreeRow(0).FoldAll();
    EXPECT_EQ(Take(), "folded x+");
}

TEST_F(TreeChanges, OfTheSelection_ComeWhenAFoldTakesItAway)
{
    TGGrid plain(true);
    plain.AppendCol(L"A", 50);
    AddChild(AddRoot(plain, L"a"), L"x");
    plain.GetTreeRow(0).UnFold();
    plain.SelectRow(1, true);
    extension.AttachTo(plain);
    extension.Take();
    plain.GetTreeRow(0).Fold();
    EXPECT_EQ(extension.Take(), "selected | folded a+");
    extension.Detach();
}

TEST_F(TreeChanges, OfAMovedTree_CountItsShownRows)
{
    FillTree();
    grid.GetTreeRow(0).UnFold();
    Take();
    grid.MoveRow(0, 4);
    EXPECT_EQ(Take(), "moved 0 4 x3");
    EXPECT_EQ(Texts(grid), "b a x y");
    grid.MoveRow(1, 0);
    EXPECT_EQ(Texts(grid), "a x y b");
}

TEST_F(TreeChanges, OfOrder_ComeForEachParent)
{
    FillTree();
    grid.AppendKey(0);
    grid.Arrange(false);
    EXPECT_EQ(Take(), "sorted -: 1 0 | sorted a: 1 0");
    grid.GetTreeRow(1).UnFold();
    EXPECT_EQ(Texts(grid), "b a y x");
}

// That trees fold while they are sorted is nobody's business, and a selection is told when it is back.
TEST_F(TreeChanges, OfOrder_InUnfoldedTrees_AreTheOrderAndTheSelection)
{
    FillTree();
    grid.GetTreeRow(0).UnFold();
    grid.SelectRow(1, true);
    grid.AppendKey(0);
    extension.Take();
    std::string seen;
    extension.actions["selected"] = [&] { seen += Texts(grid) + (grid.IsRowSelected(3) ? " x" : ""); };
    grid.Arrange(false);
    EXPECT_EQ(extension.Take(), "sorted -: 1 0 | sorted a: 1 0 | selected");
    EXPECT_EQ(Texts(grid), "b a y x");
    EXPECT_EQ(seen, "b a y x x");
    grid.UnSelect();
    EXPECT_EQ(extension.Take(), "selected");
}

// Drawing the new fold box runs a hook, which may take anything away.
TEST_F(GridWindowTest, ExtensionsHearOfAFirstChild_BeforeItsParentIsDrawn)
{
    WindowGrid grid(true);
    Create(grid);
    grid.AppendCol(L"A", 50);
    AddRoot(grid, L"a");
    AddRoot(grid, L"b");
    RecordingExtension extension;
    extension.AttachTo(grid);
    extension.Take();
    grid.actions["OnRefresh row"] = [&] {
        grid.actions.clear();
        extension.log.push_back("drawn");
        grid.DelRow(0);
    };
    grid.GetTreeRow(0).AppendChild(nullptr);
    EXPECT_EQ(extension.Take(), "inserted a 0: ? | drawn | selected | removed - 0: a");
}

} // namespace
} // namespace quor::test
