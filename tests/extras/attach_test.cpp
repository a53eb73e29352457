// Extensions come and go: at any time, in any call, before and after the grid.
#include "tests/extras/RecordingExtension.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"

#include <cstdlib>
#include <memory>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(Attaching, TwiceOrToTwoGrids_IsRefused)
{
    ModelGrid grid;
    ModelGrid other;
    RecordingExtension extension;
    EXPECT_TRUE(extension.AttachTo(grid));
    EXPECT_FALSE(extension.AttachTo(grid));
    EXPECT_FALSE(extension.AttachTo(other));
    EXPECT_EQ(extension.GetGrid(), &grid);
    extension.Detach();
    extension.Detach();
    EXPECT_TRUE(extension.AttachTo(other));
    EXPECT_EQ(extension.Take(), "attached | detached | attached");
}

TEST(Attaching, GridGoesFirst_LeavesTheExtensionFree)
{
    RecordingExtension extension;
    {
        ModelGrid grid;
        extension.AttachTo(grid);
    }
    EXPECT_EQ(extension.GetGrid(), nullptr);
    EXPECT_EQ(extension.Take(), "attached | detached");
    ModelGrid second;
    EXPECT_TRUE(extension.AttachTo(second));
}

TEST(Attaching, ToAGridThatGoes_IsRefused)
{
    RecordingExtension extension;
    bool attached = true;
    auto grid = std::make_unique<ModelGrid>();
    TGGrid* const going = grid.get();
    extension.AttachTo(*grid);
    extension.actions["detached"] = [&] { attached = extension.AttachTo(*going); };
    grid.reset();
    EXPECT_FALSE(attached);
    EXPECT_EQ(extension.GetGrid(), nullptr);
}

TEST(Attaching, ExtensionGoesFirst_IsNotCalledAnyMore)
{
    ModelGrid grid;
    AddCols(grid, 1);
    {
        RecordingExtension extension;
        extension.AttachTo(grid);
    }
    grid.AppendRow(nullptr);
    EXPECT_EQ(grid.GetRowNum(), 1);
}

TEST(Attaching, DeletesItselfWhenItLeaves)
{
    auto* const extension = new RecordingExtension;
    bool deleted = false;
    extension->actions["detached"] = [&] {
        deleted = true;
        delete extension;
    };
    {
        ModelGrid grid;
        extension->AttachTo(grid);
    }
    EXPECT_TRUE(deleted);
}

TEST(Attaching, InACall_IsCalledFromTheNextOneOn)
{
    ModelGrid grid;
    AddCols(grid, 1);
    RecordingExtension first;
    RecordingExtension late;
    first.AttachTo(grid);
    first.actions["inserted"] = [&] { late.AttachTo(grid); };
    grid.AppendRow(nullptr);
    EXPECT_EQ(late.Take(), "attached");
    grid.AppendRow(nullptr);
    EXPECT_EQ(late.Take(), "inserted - 1: ?");
}

TEST(Attaching, WhoIsDetachedInACall_IsNotCalledAnyMore)
{
    ModelGrid grid;
    AddCols(grid, 1);
    RecordingExtension first;
    RecordingExtension second;
    RecordingExtension third;
    for (RecordingExtension* extension : {&first, &second, &third})
        extension->AttachTo(grid);
    first.actions["inserted"] = [&] {
        first.Detach();
        second.Detach();
    };
    grid.AppendRow(nullptr);
    EXPECT_EQ(first.Take(), "attached | inserted - 0: ? | detached");
    EXPECT_EQ(second.Take(), "attached | detached");
    EXPECT_EQ(third.Take(), "attached | inserted - 0: ?");
    third.Detach();
    grid.AppendRow(nullptr);
    EXPECT_EQ(third.Take(), "detached");
}

TEST(Attaching, DeletedInItsOwnCall)
{
    ModelGrid grid;
    AddCols(grid, 1);
    auto* const extension = new RecordingExtension;
    extension->AttachTo(grid);
    extension->actions["inserted"] = [&] { delete extension; };
    RecordingExtension second;
    second.AttachTo(grid);
    grid.AppendRow(nullptr);
    EXPECT_EQ(second.Take(), "attached | inserted - 0: ?");
}

// ---- In every call of a grid with a window

struct HostileCase
{
    const char* call;
    const char* deed;
};

std::string NameOf(const testing::TestParamInfo<HostileCase>& info)
{
    std::string name = std::string(info.param.call) + "_" + info.param.deed;
    std::erase(name, ' ');
    return name;
}

class HostileExtensions : public EditTest, public testing::WithParamInterface<HostileCase>
{
protected:
    // What a user does and a program does, so that every seam is passed.
    void UseAll(EditGrid& grid)
    {
        const auto alive = [&grid] { return grid.GetSafeHwnd() != nullptr; };
        constexpr UINT now = RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW;
        grid.RedrawWindow(nullptr, nullptr, now);
        if (!alive())
            return;
        MSG message = {grid.m_hWnd, WM_KEYDOWN, VK_F12, 0, 0, {}};
        grid.PreTranslateMessage(&message);
        if (alive())
            grid.SendMessage(WM_KEYDOWN, VK_F12);
        TOOLINFO tip = {};
        tip.cbSize = sizeof(tip);
        grid.OnToolHitTest(CPoint(60, 40), &tip);
        std::free(tip.lpszText);
        grid.SelectRow(1, true);
        grid.BeginEditCell(1, 1);
        if (grid.IsEditing())
        {
            grid.Enter(L"typed");
            grid.EndEditCell();
        }
        grid.GetCell(0, 0).SetText(L"set");
        grid.MoveView(0, 20);
        grid.AppendKey(0);
        grid.Arrange(false);
        grid.MoveRow(0, 2);
        grid.InsertRow(0, nullptr);
        grid.DelRow(0);
        grid.AppendCol(L"new", 50);
        grid.MoveCol(0, 2);
        grid.DelCol(0);
        grid.FitLastCol();
        grid.GetTreeRow(0).InsertChild(0, nullptr);
        grid.GetTreeRow(0).UnFold();
        grid.GetTreeRow(0).Fold();
        grid.RecalcLayout(1);
        if (alive())
            grid.RedrawWindow(nullptr, nullptr, now);
    }
};

TEST_P(HostileExtensions, DoTheirWorst)
{
    EditGrid grid(true);
    Make(grid, 20, 3);
    const std::string deed = GetParam().deed;
    auto extension = std::make_unique<RecordingExtension>();
    RecordingExtension other;
    extension->AttachTo(grid);
    other.AttachTo(grid);
    int strikes = 0;
    extension->actions[GetParam().call] = [&] {
        if (++strikes > 1)
            return;
        if (deed == "detaches")
            extension->Detach();
        else if (deed == "deletes itself")
            extension.reset();
        else if (deed == "detaches the other")
            other.Detach();
        else if (deed == "closes the window")
            grid.DestroyWindow();
        else if (deed == "edits")
            grid.BeginEditCell(0, 0);
        else if (deed == "writes")
            grid.GetCell(0, 1).SetText(L"written");
    };
    UseAll(grid);
    EXPECT_GE(strikes, 1) << "the seam was not passed";
    grid.AppendRow(nullptr);
    EXPECT_GE(grid.GetRowNum(), 20);
}

std::vector<HostileCase> HostileCases()
{
    std::vector<HostileCase> cases;
    for (const char* call :
         {"message",      "pretranslate", "look",     "content",  "overlay",         "caption look",
          "caption",      "tip",          "sort",     "text",     "inserted",        "removed",
          "moved",        "sorted",       "folded",   "column",   "removing column", "removed column",
          "moved column", "resized",      "selected", "laid out", "scrolled",        "edit"})
        for (const char* deed :
             {"detaches", "deletes itself", "detaches the other", "closes the window", "edits", "writes"})
            cases.push_back({call, deed});
    return cases;
}

INSTANTIATE_TEST_SUITE_P(, HostileExtensions, testing::ValuesIn(HostileCases()), NameOf);

} // namespace
} // namespace quor::test
