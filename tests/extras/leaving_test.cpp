// What extras leave behind when they leave a grid: no picture that somebody else has to repaint, and nothing
// that they know when they come again.
#include "grid/extras/TGColumnFormats.h"
#include "grid/extras/TGEmptyText.h"
#include "grid/extras/TGHeaderSort.h"
#include "tests/grid/ModelGrid.h"
#include "tests/grid/WindowGrid.h"

#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

using LeavingExtras = GridWindowTest;

testing::AssertionResult IsSamePicture(const Snapshot& shown, const Snapshot& expected)
{
    for (int y = 0; y < expected.Height(); ++y)
        for (int x = 0; x < expected.Width(); ++x)
            if (shown.At(x, y) != expected.At(x, y))
                return testing::AssertionFailure() << "differs at " << x << "," << y;
    return testing::AssertionSuccess();
}

TEST_F(LeavingExtras, ADeletedTextOfEmptyGrids_IsWipedOut)
{
    WindowGrid grid;
    Create(grid);
    grid.AppendCol(L"A", 100);
    const Snapshot before(grid);
    auto text = std::make_unique<TGEmptyText>(grid, L"no rows yet");
    ASSERT_FALSE(IsSamePicture(Snapshot(grid), before));
    text.reset();
    EXPECT_TRUE(IsSamePicture(Snapshot(grid), before));
}

TEST_F(LeavingExtras, DetachedFormats_ShowTheTextsAsTheyAre)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 2, 2);
    const Snapshot before(grid);
    TGColumnFormats formats(grid);
    formats.SetFormat(0, {.align = TGAlign::Right});
    ASSERT_FALSE(IsSamePicture(Snapshot(grid), before));
    formats.Detach();
    EXPECT_TRUE(IsSamePicture(Snapshot(grid), before));
}

TEST(LeavingSort, ForgetsWhatIsSpecialAboutColumns)
{
    ModelGrid grid;
    AddCols(grid, 1);
    TGHeaderSort sorting;
    sorting.AttachTo(grid);
    sorting.SetSortable(0, false);
    ASSERT_FALSE(sorting.IsSortable(0));
    sorting.Detach();
    sorting.AttachTo(grid);
    EXPECT_TRUE(sorting.IsSortable(0));
}

} // namespace
} // namespace quor::test
