// What extensions do as a user would: they ask for the selected cells, type with a reason, and insert rows.
#include "grid/extras/TGCellCursor.h"
#include "tests/extras/ExtraGrid.h"
#include "tests/extras/RecordingExtension.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class UserSeams : public ExtraTest<RecordingExtension>
{
protected:
    // "0,1-2,1 3,0-3,2"
    std::string Selected()
    {
        std::string text;
        for (const TGCellRange& range : extra.GetSelectedCells())
            text += (text.empty() ? "" : " ") + std::to_string(range.top) + "," + std::to_string(range.left) +
                    "-" + std::to_string(range.bottom) + "," + std::to_string(range.right);
        return text;
    }
};

TEST_F(UserSeams, SelectedCells_AreRowsOrColumns_ElseTheRanges)
{
    Make(6);
    EXPECT_EQ(Selected(), "");
    TGCellCursor cursor(grid);
    EXPECT_EQ(Selected(), "0,0-0,0");
    cursor.SelectRange({1, 0, 2, 1});
    cursor.SelectRange({4, 2, 4, 2}, true);
    EXPECT_EQ(Selected(), "1,0-2,1 4,2-4,2");
    for (const long row : {1L, 2L, 4L})
        grid.SelectRow(row, true);
    EXPECT_EQ(Selected(), "1,0-2,2 4,0-4,2");
    for (const long col : {0L, 2L})
        grid.SelectCol(col, true);
    EXPECT_EQ(Selected(), "0,0-5,0 0,2-5,2");
    EXPECT_TRUE(extra.SelectCells({0, 1, 3, 2}));
    EXPECT_EQ(Selected(), "0,1-3,2");
    cursor.Detach();
    EXPECT_FALSE(extra.SelectCells({0, 1, 3, 2}));
    EXPECT_EQ(Selected(), "");
}

TEST_F(UserSeams, ATextThatIsNotStored_HasAReason)
{
    Make();
    EXPECT_EQ(extra.TryTypeInto(grid.GetCell(0, 0), L"new"), TGTyped::Stored);
    grid.GetCell(0, 1).SetReadOnly(true);
    EXPECT_EQ(extra.TryTypeInto(grid.GetCell(0, 1), L"new"), TGTyped::ReadOnly);
    grid.beforeEdit = [](TGGridCell&, bool&) { return false; };
    EXPECT_EQ(extra.TryTypeInto(grid.GetCell(0, 0), L"newer"), TGTyped::NotEditable);
    grid.beforeEdit = nullptr;
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    EXPECT_EQ(extra.TryTypeInto(grid.GetCell(0, 0), L"newer"), TGTyped::Rejected);
    EXPECT_EQ(TextOf(grid, 0, 0), L"new");
    grid.modifiedText = [&](TGGridCell&, CString&) {
        grid.DelRow(0);
        return true;
    };
    EXPECT_EQ(extra.TryTypeInto(grid.GetCell(0, 0), L"newer"), TGTyped::Gone);
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(UserSeams, ARowOfAUser_IsAskedForAndTold_WithoutTheWordOfTheChange)
{
    Make(2);
    grid.TakeLog();
    host.TakeLog();
    TGGridRow* const row = extra.InsertRowAsUser(2);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row, &grid.GetRow(2));
    const std::string log = grid.TakeEditText();
    EXPECT_NE(log.find("OnBeforeInsertRow"), std::string::npos) << log;
    EXPECT_NE(log.find("OnInsertRow"), std::string::npos) << log;
    EXPECT_LT(log.find("OnBeforeInsertRow"), log.find("OnInsertRow"));
    TGGridRow* const first = extra.InsertRowAsUser(0);
    EXPECT_EQ(first, &grid.GetRow(0));
    EXPECT_EQ(grid.GetRowNum(), 4);
}

// The default of the hook reports each row that a command inserts.
TEST_F(UserSeams, RowsOfAUser_AreReportedByWhoInsertsThem)
{
    class CountingGrid : public TGGrid
    {
    public:
        using TGGrid::TGGrid;
        int changes = 0;

    protected:
        void OnDataChanged() override { ++changes; }
    };
    CountingGrid counting;
    AddCols(counting, 1);
    counting.DoAppendRow(false);
    EXPECT_EQ(counting.changes, 2);
    extra.AttachTo(counting);
    EXPECT_NE(extra.InsertRowAsUser(1), nullptr);
    EXPECT_EQ(counting.changes, 2);
    extra.TellDataChanged();
    EXPECT_EQ(counting.changes, 3);
    extra.Detach();
}

TEST_F(UserSeams, ARowThatAHookRefusesOrDeletes_IsNone)
{
    Make(2);
    grid.beforeInsertRow = [](long, TGGridRow*&) { return false; };
    EXPECT_EQ(extra.InsertRowAsUser(2), nullptr);
    grid.beforeInsertRow = nullptr;
    grid.insertedRow = [&](TGGridRow& row) { grid.DelRow(row.GetIndex()); };
    EXPECT_EQ(extra.InsertRowAsUser(2), nullptr);
    grid.insertedRow = nullptr;
    grid.SetRowFixLength(true);
    EXPECT_EQ(extra.InsertRowAsUser(2), nullptr);
    EXPECT_EQ(grid.GetRowNum(), 2);
}

TEST_F(UserSeams, AChildOfAUser_ComesInBelowItsParent)
{
    EditGrid tree(true);
    EditTest::Create(tree);
    AddCols(tree, 2);
    TGGridTreeRow& root = AddRoot(tree, L"root");
    AddChild(root, L"first");
    extra.AttachTo(tree);
    TGGridTreeRow* const child = extra.InsertChildAsUser(root, 0);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(&root.GetChild(0), child);
    EXPECT_EQ(&root.GetLastChild(), extra.InsertChildAsUser(root, 2));
    tree.insertedRow = [&](TGGridRow&) { tree.DelRowEx(0); };
    EXPECT_EQ(extra.InsertChildAsUser(root, 0), nullptr);
    EXPECT_TRUE(tree.IsEmpty());
    extra.Detach();
}

} // namespace
} // namespace quor::test
