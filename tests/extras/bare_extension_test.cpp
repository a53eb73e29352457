// An extension that overrides nothing: the grid is, shows and tells what it does without one.
#include "grid/TGGridExtension.h"
#include "tests/grid/CommandGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"

#include <gtest/gtest.h>

#include <string>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class BareExtension : public TGGridExtension
{
};

class BareExtensions : public GridWindowTest
{
protected:
    // What users and programs do to a grid, step by step, with all that can be seen of it.
    static std::string Use(CommandGrid& grid, bool tree)
    {
        std::string seen;
        const auto note = [&](const char* step) {
            grid.UpdateWindow();
            seen += std::string(step) + ": " + grid.Rows() + " | " + grid.Cols() + " | " + grid.Buffer() +
                    " | " + grid.TakeText() + "\n";
        };
        AddCols(grid, 3);
        if (tree)
        {
            TGGridTreeRow& root = AddRoot(grid, L"c");
            for (const char text : {'z', 'y'})
                grid.AddChild(root, text);
            grid.AddChild(root.GetChild(0), 'x');
            root.UnFoldAll();
            root.Fold();
            root.UnFold();
            root.DelChild(1);
        }
        grid.AddRows("bda");
        note("filled");
        grid.GetCell(0, 1).SetText(L"text");
        grid.MoveRow(0, grid.GetRowNum());
        grid.AppendKey(0);
        grid.Arrange(true);
        grid.Arrange(false);
        note("sorted");
        grid.AppendCol(L"new", 60);
        grid.MoveCol(3, 0);
        grid.GetCol(0).SetWidth(33);
        grid.DelCol(0);
        note("columns");
        grid.SelectRows({0, 1});
        grid.DoCopy();
        note("copied");
        grid.DoClip();
        note("cut");
        grid.UnSelect();
        grid.DoPaste();
        note("pasted");
        grid.SelectRows({0});
        grid.DoInsertRow();
        grid.DoDelete();
        note("deleted");
        SendMouse(grid, WM_LBUTTONDOWN, grid.InsideOf(0, 1).CenterPoint(), MK_LBUTTON);
        SendMouse(grid, WM_LBUTTONUP, grid.InsideOf(0, 1).CenterPoint());
        if (CWnd* const editor = grid.GetDlgItem(101))
            editor->SetWindowText(L"typed");
        grid.EndEditCell();
        note("edited");
        SendMouse(grid, WM_RBUTTONDOWN, grid.InsideOf(0, 1).CenterPoint(), MK_RBUTTON);
        SendMouse(grid, WM_RBUTTONUP, grid.InsideOf(0, 1).CenterPoint());
        TOOLINFO info = {};
        info.cbSize = sizeof info;
        seen += std::to_string(grid.OnToolHitTest(grid.InsideOf(0, 1).CenterPoint(), &info));
        grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
        grid.SendMessage(WM_KEYDOWN, VK_DOWN);
        note("keys");
        grid.Clear();
        note("cleared");
        return seen;
    }
};

TEST_F(BareExtensions, LeaveTheGridAsItIs)
{
    for (const bool tree : {false, true})
    {
        CommandGrid plain(tree);
        Create(plain, 200, 90);
        CommandGrid extended(tree);
        Create(extended, 200, 90);
        BareExtension bare;
        ASSERT_TRUE(bare.AttachTo(extended));
        EXPECT_EQ(Use(extended, tree), Use(plain, tree));
        const Snapshot first(plain);
        const Snapshot second(extended);
        int unlike = 0;
        for (int y = 0; y < first.Height(); ++y)
            for (int x = 0; x < first.Width(); ++x)
                unlike += first.At(x, y) != second.At(x, y) ? 1 : 0;
        EXPECT_EQ(unlike, 0);
    }
}

} // namespace
} // namespace quor::test
