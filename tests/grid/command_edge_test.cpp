// The insert, append and delete commands: flags, selections and objects that hooks supply.
#include "tests/grid/CommandGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class CommandEdges : public GridWindowTest
{
protected:
    CommandEdges() : tree(true)
    {
        for (CommandGrid* grid : {&plain, &tree})
            for (const wchar_t* name : {L"A", L"B", L"C"})
                grid->AppendCol(name, 50);
        plain.AddRows("abcd");
        // a b(c d) e with b unfolded.
        tree.AddRows("abe");
        tree.AddChild(tree.GetTreeRow(1), 'c');
        tree.AddChild(tree.GetTreeRow(1), 'd');
        tree.GetTreeRow(1).UnFold();
    }

    using Command = bool (*)(TGGrid&);

    // The names of the commands that a grid carries out, each tried on a fresh selection of row or column 1.
    template <class Prepare> std::string Accepted(Prepare prepare)
    {
        const std::pair<const char*, Command> all[] = {
            {"InsertRow", [](TGGrid& g) { return g.DoInsertRow(); }},
            {"InsertRowAfter", [](TGGrid& g) { return g.DoInsertRowAfter(); }},
            {"AppendRow", [](TGGrid& g) { return g.DoAppendRow(true); }},
            {"InsertTree", [](TGGrid& g) { return g.DoInsertTree(); }},
            {"InsertTreeAfter", [](TGGrid& g) { return g.DoInsertTreeAfter(); }},
            {"AppendTree", [](TGGrid& g) { return g.DoAppendTree(); }},
            {"AppendChild", [](TGGrid& g) { return g.DoAppendChild(); }},
            {"InsertCol", [](TGGrid& g) { return g.DoInsertCol(); }},
            {"InsertColAfter", [](TGGrid& g) { return g.DoInsertColAfter(); }},
            {"AppendCol", [](TGGrid& g) { return g.DoAppendCol(); }},
            {"Copy", [](TGGrid& g) { return g.DoCopy(); }},
            {"Paste", [](TGGrid& g) { return g.DoPaste(); }},
            {"PasteChild", [](TGGrid& g) { return g.DoPasteChild(); }},
            {"Clip", [](TGGrid& g) { return g.DoClip(); }},
            {"Delete", [](TGGrid& g) { return g.DoDelete(); }},
        };
        std::string accepted;
        for (const auto& [name, command] : all)
        {
            CommandGrid grid(true);
            grid.SetColNum(2);
            grid.AddRows("abc");
            grid.SelectRows({0});
            grid.DoCopy();
            prepare(grid);
            grid.TakeLog();
            const std::string before = grid.Rows() + " / " + grid.Cols();
            if (command(grid))
                accepted += (accepted.empty() ? "" : " ") + std::string(name);
            else
            {
                EXPECT_EQ(grid.Rows() + " / " + grid.Cols(), before) << name;
                EXPECT_EQ(grid.TakeText(), "") << name;
                EXPECT_FALSE(grid.IsModified());
            }
        }
        return accepted;
    }

    CommandGrid plain;
    CommandGrid tree;
};

TEST_F(CommandEdges, OneSelectedRow_AllowsTheRowCommands)
{
    EXPECT_EQ(
        Accepted([](CommandGrid& g) { g.SelectRows({1}); }),
        "InsertRow InsertRowAfter AppendRow InsertTree InsertTreeAfter AppendTree AppendChild AppendCol Copy "
        "Paste PasteChild Clip Delete");
}

TEST_F(CommandEdges, TwoSelectedRows_RefuseWhatNeedsOne)
{
    EXPECT_EQ(Accepted([](CommandGrid& g) {
                  g.SelectRows({0, 1});
              }),
              "AppendRow AppendTree AppendCol Copy Clip Delete");
}

TEST_F(CommandEdges, OneSelectedColumn_AllowsTheColumnCommands)
{
    EXPECT_EQ(Accepted([](CommandGrid& g) { g.SelectCols({1}); }),
              "AppendRow AppendTree InsertCol InsertColAfter AppendCol Copy Paste Clip Delete");
}

TEST_F(CommandEdges, TwoSelectedColumns_RefuseAnInsertedOne)
{
    EXPECT_EQ(Accepted([](CommandGrid& g) {
                  g.SelectCols({0, 1});
              }),
              "AppendRow AppendTree AppendCol Copy Paste Clip Delete");
}

TEST_F(CommandEdges, NothingSelected_LeavesTheAppendingCommands)
{
    EXPECT_EQ(Accepted([](CommandGrid& g) { g.UnSelect(); }),
              "AppendRow AppendTree AppendCol Copy Paste Clip");
}

TEST_F(CommandEdges, ReadOnlyGrid_OnlyCopies)
{
    EXPECT_EQ(Accepted([](CommandGrid& g) {
                  g.SelectRows({1});
                  g.SetReadOnly(true);
              }),
              "Copy");
    EXPECT_EQ(Accepted([](CommandGrid& g) {
                  g.SelectCols({1});
                  g.SetReadOnly(true);
              }),
              "Copy");
}

TEST_F(CommandEdges, FixedNumberOfRows_LeavesColumnsAndCopy)
{
    const auto fix = [](CommandGrid& g) { g.SetRowFixLength(true); };
    EXPECT_EQ(Accepted([&](CommandGrid& g) {
                  g.SelectRows({1});
                  fix(g);
              }),
              "AppendCol Copy");
    EXPECT_EQ(Accepted([&](CommandGrid& g) {
                  g.SelectCols({1});
                  fix(g);
              }),
              "InsertCol InsertColAfter AppendCol Copy Delete");
}

TEST_F(CommandEdges, FixedNumberOfColumns_LeavesRows)
{
    EXPECT_EQ(Accepted([](CommandGrid& g) {
                  g.SelectCols({1});
                  g.SetColFixLength(true);
              }),
              "AppendRow AppendTree Copy Paste Clip");
}

TEST_F(CommandEdges, NoPaste_RefusesBothPastes)
{
    EXPECT_EQ(Accepted([](CommandGrid& g) {
                  g.SelectRows({1});
                  g.SetNoPaste(true);
              }),
              "InsertRow InsertRowAfter AppendRow InsertTree InsertTreeAfter AppendTree AppendChild "
              "AppendCol Copy Clip "
              "Delete");
}

TEST_F(CommandEdges, TreeCommands_RefuseInAPlainGrid)
{
    plain.SelectRows({1});
    EXPECT_FALSE(plain.DoInsertTree());
    EXPECT_FALSE(plain.DoInsertTreeAfter());
    EXPECT_FALSE(plain.DoAppendTree());
    EXPECT_FALSE(plain.DoAppendChild());
    plain.DoCopy();
    plain.TakeLog();
    EXPECT_FALSE(plain.DoPasteChild());
    EXPECT_EQ(plain.TakeText(), "");
}

TEST_F(CommandEdges, AppendChild_RefusesAPlainRowOfATreeGrid)
{
    tree.AppendRow(new TGGridRow(tree));
    tree.SelectRows({5});
    EXPECT_FALSE(tree.DoAppendChild());
    EXPECT_EQ(tree.TakeText(), "");
}

TEST_F(CommandEdges, PlainRowsOfATreeGrid_AreInsertedBesideAndPastedBelow)
{
    tree.AppendRow(new TGGridRow(tree));
    tree.GetCell(5, 0).SetText(L"p");
    tree.GetRow(5).SetExtendData(new TGRowData);
    tree.SelectRows({5});
    EXPECT_TRUE(tree.DoInsertRowAfter());
    EXPECT_EQ(tree.Rows(), "a b(c d) e p *");
    tree.SelectRows({5});
    EXPECT_TRUE(tree.DoClip());
    tree.SelectRows({0});
    EXPECT_TRUE(tree.DoPasteChild());
    EXPECT_EQ(tree.Rows(), "a(p*) b(c d) e ");
    EXPECT_TRUE(tree.GetRow(1).IsTreeRow());
    EXPECT_NE(tree.GetRow(1).GetExtendData(), nullptr);
}

TEST_F(CommandEdges, InsertAfterAnUnfoldedParent_FoldsItFirst)
{
    tree.SelectRows({1});
    EXPECT_TRUE(tree.DoInsertRowAfter());
    EXPECT_EQ(tree.Rows(), "a b(c d) * e");
    EXPECT_TRUE(tree.GetTreeRow(1).IsFold());
    tree.GetTreeRow(1).UnFold();
    tree.SelectRows({1});
    EXPECT_TRUE(tree.DoInsertTreeAfter());
    EXPECT_TRUE(tree.GetTreeRow(1).IsFold());
    EXPECT_EQ(tree.Rows(), "a b(c d) *()  e");
}

TEST_F(CommandEdges, InsertBeforeAnUnfoldedParent_LeavesItUnfolded)
{
    tree.SelectRows({1});
    EXPECT_TRUE(tree.DoInsertRow());
    EXPECT_FALSE(tree.GetTreeRow(2).IsFold());
    EXPECT_EQ(tree.Rows(), "a * b(c d) e");
}

TEST_F(CommandEdges, AppendChildOfAFoldedRow_StaysHiddenAndUnselected)
{
    tree.SelectRows({0});
    tree.logsCurrent = true;
    EXPECT_TRUE(tree.DoAppendChild());
    EXPECT_EQ(tree.Rows(), "a*() b(c d) e");
    EXPECT_EQ(tree.GetTreeRow(0).GetChild(0).GetIndex(), -1);
    EXPECT_EQ(tree.TakeText(), "OnBeforeInsertChild a 0 | OnInsertRow -1 | OnDataChanged");
}

TEST_F(CommandEdges, AppendedColumn_ComesAfterTheOldSelectionIsGone)
{
    CommandGrid grid;
    grid.SetColNum(3);
    grid.SelectCols({1});
    std::string told;
    grid.actions["OnCurChanged"] = [&] { told += std::to_string(grid.GetColNum()) + " "; };
    grid.DoAppendCol();
    EXPECT_EQ(told, "3 4 ");
}

TEST_F(CommandEdges, HooksSupplyTheObjectThatIsInserted)
{
    TGGridRow* row = nullptr;
    plain.makeRow = [&] { return row = new TGGridRow(plain); };
    plain.SelectRows({2});
    EXPECT_TRUE(plain.DoInsertRow());
    EXPECT_EQ(&plain.GetRow(2), row);
    EXPECT_TRUE(plain.DoAppendRow(false));
    EXPECT_EQ(&plain.GetRow(5), row);

    TGGridCol* col = nullptr;
    plain.makeCol = [&] { return col = new TGGridCol(L"X", plain); };
    plain.SelectCols({0});
    EXPECT_TRUE(plain.DoInsertColAfter());
    EXPECT_EQ(&plain.GetCol(1), col);
    EXPECT_TRUE(plain.DoAppendCol());
    EXPECT_EQ(&plain.GetCol(4), col);
    EXPECT_EQ(plain.Cols(), "A X B C X*");

    TGGridTreeRow* child = nullptr;
    tree.makeChild = [&] { return child = new TGGridTreeRow(tree); };
    tree.SelectRows({2});
    EXPECT_TRUE(tree.DoInsertRow());
    EXPECT_EQ(&tree.GetRow(2), child);
    tree.SelectRows({2});
    EXPECT_TRUE(tree.DoInsertTreeAfter());
    EXPECT_EQ(&tree.GetRow(3), child);
    EXPECT_FALSE(child->IsParentRow());
}

TEST_F(CommandEdges, TreeCommands_HandAPreparedTreeToTheHook)
{
    class PreparedGrid : public CommandGrid
    {
    public:
        PreparedGrid() : CommandGrid(true) {}
        std::string prepared;

    protected:
        bool OnBeforeInsertRow(long position, TGGridRow*& row) override
        {
            prepared += row == nullptr ? "none " : row->IsParentRow() ? "tree " : "row ";
            return CommandGrid::OnBeforeInsertRow(position, row);
        }
        bool OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child) override
        {
            prepared += child == nullptr ? "none " : child->GetChildNum() == 1 ? "tree " : "row ";
            return CommandGrid::OnBeforeInsertChild(parent, position, child);
        }
    };
    PreparedGrid grid;
    grid.SetColNum(1);
    grid.AddRows("ab");
    grid.AddChild(grid.GetTreeRow(1), 'c');
    grid.GetTreeRow(1).UnFold();
    for (const long selected : {0L, 2L})
        for (bool (TGGrid::*command)() :
             {&TGGrid::DoInsertRow, &TGGrid::DoInsertTree, &TGGrid::DoInsertTreeAfter, &TGGrid::DoAppendTree})
        {
            grid.SelectRows({selected});
            grid.vetoes = {"OnBeforeInsertRow", "OnBeforeInsertChild"};
            EXPECT_FALSE((grid.*command)());
        }
    EXPECT_EQ(grid.prepared, "none tree tree tree none tree tree tree ");
}

TEST_F(CommandEdges, AppendRow_ScrollsToTheNewRowLineOrToTheSelectedRow)
{
    CommandGrid grid;
    Create(grid, 400, 100);
    Fill(grid, 20, 1);
    EXPECT_TRUE(grid.DoAppendRow(false));
    // 22 lines of 20 pixels in a view of 80.
    EXPECT_EQ(grid.VScroll(), 22 * 20 - 80);
    grid.MoveView(0, -1000);
    EXPECT_TRUE(grid.DoAppendRow(true));
    EXPECT_EQ(grid.VScroll(), 22 * 20 - 80);
    grid.MoveView(0, -1000);
    grid.SetNoAppendButton(true);
    EXPECT_TRUE(grid.DoAppendRow(false));
    EXPECT_EQ(grid.VScroll(), 0);
}

// ---- Deletion

TEST_F(CommandEdges, Delete_KeepsRowsThatMayNotBeDeleted)
{
    plain.GetRow(1).SetDelUnable(true);
    plain.GetRow(2).SetReadOnly(true);
    plain.SelectRows({0, 1, 2});
    EXPECT_TRUE(plain.IsSelDelUnable());
    EXPECT_TRUE(plain.DoDelete());
    EXPECT_EQ(plain.Rows(), "b c d");
    EXPECT_EQ(plain.TakeText(), "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged");
}

TEST_F(CommandEdges, DeleteOfNothingButProtectedRows_EmptiesTheSelectionAndRunsTheHooks)
{
    plain.GetRow(1).SetDelUnable(true);
    plain.SelectRows({1});
    EXPECT_TRUE(plain.DoDelete());
    EXPECT_EQ(plain.Rows(), "a b c d");
    EXPECT_EQ(plain.TakeText(), "OnBeforeDeleteRow | OnEndDeleteRow | OnDataChanged");
}

TEST_F(CommandEdges, VetoedDelete_LeavesTheFilteredSelection)
{
    plain.GetRow(1).SetDelUnable(true);
    plain.SelectRows({0, 1, 2});
    plain.vetoes = {"OnBeforeDeleteRow"};
    EXPECT_FALSE(plain.DoDelete());
    EXPECT_EQ(plain.Rows(), "a* b c* d");
    EXPECT_FALSE(plain.IsSelDelUnable());
}

TEST_F(CommandEdges, NothingSelected_IsNeverProtected)
{
    plain.GetRow(1).SetDelUnable(true);
    EXPECT_FALSE(plain.IsSelDelUnable());
    plain.SetReadOnly(true);
    EXPECT_FALSE(plain.IsSelDelUnable());
    plain.SelectRow(3, true);
    EXPECT_TRUE(plain.IsSelDelUnable());
}

// Selecting clears the other kind, so that both can only be selected by a hook that does so.
TEST_F(CommandEdges, DeleteWithRowsAndColumnsSelected_TakesTheRows)
{
    plain.SelectCols({1});
    plain.actions["OnBeforeDeleteCol"] = [&] { FAIL() << "columns were to stay"; };
    plain.SelectRows({1});
    EXPECT_TRUE(plain.DoDelete());
    EXPECT_EQ(plain.Cols(), "A B C");
    EXPECT_EQ(plain.Rows(), "a c d");
}

TEST_F(CommandEdges, DeleteOfAParentWithSomeOfItsChildren_DeletesEachOnce)
{
    CountedData::alive = 0;
    for (long i = 0; i < tree.GetRowNum(); ++i)
        tree.GetRow(i).SetExtendData(new CountedData);
    tree.SelectRows({1, 3, 4});
    EXPECT_TRUE(tree.DoDelete());
    EXPECT_EQ(tree.Rows(), "a");
    EXPECT_EQ(CountedData::alive, 1);
    tree.Clear();
    EXPECT_EQ(CountedData::alive, 0);
}

TEST_F(CommandEdges, DeleteOfManyRowsHereAndThere_KeepsTheOthersInOrder)
{
    CommandGrid grid;
    grid.SetColNum(1);
    std::string kept;
    for (int i = 0; i < 26; ++i)
        grid.AddRows(std::string(1, static_cast<char>('a' + i)));
    for (int i = 0; i < 26; ++i)
        if (i % 3 == 0 || (i > 10 && i < 17))
            grid.SelectRow(i, true);
        else
            kept += (kept.empty() ? "" : " ") + std::string(1, static_cast<char>('a' + i));
    grid.logsCurrent = true;
    grid.TakeLog();
    EXPECT_TRUE(grid.DoDelete());
    EXPECT_EQ(grid.Rows(), kept);
    EXPECT_EQ(grid.GetCurRowIndex(), -1);
}

TEST_F(CommandEdges, ColumnCommands_ReachTheRowBufferAndTheNewRow)
{
    Create(plain);
    plain.SelectRows({0, 1});
    plain.DoCopy();
    plain.SelectCols({0});
    EXPECT_TRUE(plain.DoInsertCol());
    EXPECT_TRUE(plain.DoAppendCol());
    EXPECT_EQ(plain.Cols(), " A B C *");
    plain.SelectCols({2, 3});
    EXPECT_TRUE(plain.DoDelete());
    plain.UnSelect();
    EXPECT_TRUE(plain.DoPaste());
    EXPECT_EQ(plain.GetCell(5, 1).GetText(), L"a");
    EXPECT_EQ(&plain.GetCell(5, 2).GetCol(), &plain.GetCol(2));
    plain.BeginEditCell(6, 2);
    EXPECT_TRUE(plain.IsEditing());
    plain.CancelEditCell();
}

} // namespace
} // namespace quor::test
