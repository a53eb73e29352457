// Folding that others interrupt: an edit that is open, and somebody who shows the rows again.
#include "grid/TGTreeGrid.h"
#include "tests/extras/RecordingExtension.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Rows that are shown again while they are folded away are shown and marked as folded. A child that comes in
// front is hidden then, and unfolding shows what the marks say.
TEST(Refolding, OffspringThatUnfoldingHides_LeavesTheSelection)
{
    TGTreeGrid grid(true);
    AddCols(grid, 1);
    TGGridTreeRow& top = AddRoot(grid, L"a");
    AddChild(AddChild(top, L"b"), L"c");
    top.UnFoldAll();
    RecordingExtension extension;
    extension.AttachTo(grid);
    extension.actions["selected"] = [&top] { top.UnFoldAll(); };
    top.FoldAll();
    extension.Detach();
    ASSERT_EQ(Texts(grid), "a b c");
    grid.SelectRow(2, true);
    top.InsertChild(0, nullptr);
    top.UnFold();
    EXPECT_EQ(Texts(grid), "a  b");
    EXPECT_EQ(grid.GetRowSelNum(), 0) << Selection(grid);
}

// Nobody sees the children go one by one in a grid of the library's own: one notice for all, also where an
// edit is committed first.
TEST(Refolding, ChildrenThatAreFoldedAwayInAnEdit_AreToldOfOnce)
{
    HostWindow host;
    TGTreeGrid grid(true);
    ASSERT_TRUE(grid.Create(CRect(10, 10, 310, 210), WS_CHILD | WS_VISIBLE, &host));
    AddCols(grid, 1);
    TGGridTreeRow& top = AddRoot(grid, L"a");
    AddChild(top, L"b");
    AddChild(top, L"c");
    top.UnFold();
    grid.BeginEditCell(0, 0);
    ASSERT_TRUE(grid.IsEditing());
    RecordingExtension extension;
    extension.AttachTo(grid);
    extension.Take();
    top.Fold();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(extension.Take(), "selected | folded a+");
}

} // namespace
} // namespace quor::test
