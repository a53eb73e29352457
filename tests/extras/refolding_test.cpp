// Rows that somebody shows again while they are folded away: they are shown, and marked as folded.
#include "grid/TGTreeGrid.h"
#include "tests/extras/RecordingExtension.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A child that comes in front is hidden then, and unfolding shows what the marks say.
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

} // namespace
} // namespace quor::test
