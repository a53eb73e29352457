// What extensions hear when the rows that may not be deleted leave the selection.
#include "tests/extras/RecordingExtension.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class FilteringGrid : public ModelGrid
{
public:
    using ModelGrid::ModelGrid;
    using TGGrid::FilterDelUnable;
};

TEST(SelectionNotice, RowsThatMayNotBeDeleted_LeaveTheSelectionAndAreTold)
{
    FilteringGrid grid;
    grid.AppendCol(L"A", 50);
    AddRows(grid, "abc");
    grid.GetRow(1).SetDelUnable(true);
    grid.SelectRow(0, true);
    grid.SelectRow(1, true);
    RecordingExtension extension;
    extension.AttachTo(grid);
    extension.Take();
    grid.FilterDelUnable();
    EXPECT_EQ(extension.Take(), "selected");
    EXPECT_EQ(grid.GetRowSelNum(), 1);
}

TEST(SelectionNotice, ComesWhenTheCurrentRowAndColumnAreKnown)
{
    ModelGrid grid;
    AddCols(grid, 2);
    AddRows(grid, "abc");
    RecordingExtension extension;
    extension.AttachTo(grid);
    std::string current;
    extension.actions["selected"] = [&] {
        current = std::to_string(grid.GetCurRowIndex()) + "," + std::to_string(grid.GetCurColIndex());
    };
    grid.SelectRow(2, true);
    EXPECT_EQ(current, "2,-1");
    grid.SelectCol(1, true);
    EXPECT_EQ(current, "-1,1");
}

} // namespace
} // namespace quor::test
