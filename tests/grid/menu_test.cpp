// The context menus: what is in them, read while they are open.
#include "tests/grid/HeaderFixture.h"
#include "tests/support/GuiHandles.h"
#include "tests/support/MenuProbe.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class ContextMenus : public HeaderFixture
{
protected:
    void SetUp() override
    {
        Make(grid, "abcdef");
        grid.showsMenus = true;
        ASSERT_TRUE(Activate(host));
    }

    // The items of the menu that a right click opens, "none" when no menu opens.
    std::wstring MenuAt(CWnd& header, CPoint point)
    {
        MenuProbe probe;
        SendMouse(header, WM_RBUTTONUP, point);
        return probe.Opened() ? probe.Description() : L"none";
    }
    std::wstring RowMenu(long row) { return MenuAt(RowHeader(grid), RowBox(grid, row)); }
    std::wstring ColMenu(long col) { return MenuAt(ColHeader(grid), ColBox(grid, col)); }
    std::wstring CornerMenu() { return MenuAt(Quad(grid), CPoint(5, 5)); }

    void FillBuffer()
    {
        grid.SelectRows({0});
        grid.DoCopy();
        grid.UnSelect();
    }

    CommandGrid grid;
};

TEST_F(ContextMenus, OfOneRow)
{
    EXPECT_EQ(RowMenu(2), L"1 插入行(Ins), 2 删除行(Del), 3 新建行(N), 5 复制(C), 6 剪切(X)");
    EXPECT_EQ(grid.Rows(), "a b c* d e f");
    FillBuffer();
    EXPECT_EQ(RowMenu(2), L"1 插入行(Ins), 2 删除行(Del), 3 新建行(N), 5 复制(C), 6 剪切(X), 7 粘贴(V)");
}

TEST_F(ContextMenus, OfAnUnselectedRow_ReplacesTheSelectionFirst)
{
    grid.SelectRows({0, 3, 4});
    EXPECT_EQ(RowMenu(2), L"1 插入行(Ins), 2 删除行(Del), 3 新建行(N), 5 复制(C), 6 剪切(X)");
    EXPECT_EQ(grid.Rows(), "a b c* d e f");
}

TEST_F(ContextMenus, OfSeveralRows_NeverOfferToPaste)
{
    FillBuffer();
    grid.SelectRows({0, 3, 4});
    EXPECT_EQ(RowMenu(3), L"2 删除(Del), 3 新建行(N), 5 复制(C), 6 剪切(X)");
    EXPECT_EQ(grid.Rows(), "a* b c d* e* f");
    grid.SetNoPaste(true);
    EXPECT_EQ(RowMenu(3), L"2 删除(Del), 3 新建行(N)");
}

TEST_F(ContextMenus, OfARowWithoutPasting_LackTheBuffer)
{
    FillBuffer();
    grid.SetNoPaste(true);
    EXPECT_EQ(RowMenu(2), L"1 插入行(Ins), 2 删除行(Del), 3 新建行(N)");
}

TEST_F(ContextMenus, OfAProtectedRow_DoNotDelete)
{
    grid.GetRow(2).SetDelUnable(true);
    EXPECT_EQ(RowMenu(2), L"1 插入行(Ins), 3 新建行(N), 5 复制(C), 6 剪切(X)");
    grid.GetRow(3).SetReadOnly(true);
    EXPECT_EQ(RowMenu(3), L"1 插入行(Ins), 3 新建行(N), 5 复制(C), 6 剪切(X)");
}

TEST_F(ContextMenus, OfColumns)
{
    FillBuffer();
    EXPECT_EQ(ColMenu(1), L"8 插入列(Ins), 9 删除列(Del), 10 新建列(N)");
    EXPECT_EQ(grid.Cols(), "A B* C D E F");
    grid.SelectCols({1, 4});
    EXPECT_EQ(ColMenu(4), L"9 删除(Del), 10 新建列(N)");
    EXPECT_EQ(grid.Cols(), "A B* C D E* F");
    EXPECT_EQ(ColMenu(2), L"8 插入列(Ins), 9 删除列(Del), 10 新建列(N)");
    EXPECT_EQ(grid.Cols(), "A B C* D E F");
}

TEST_F(ContextMenus, OfTheCorner_FollowTheSelection)
{
    EXPECT_EQ(CornerMenu(), L"3 新建行(N), 4 全选(A)");
    FillBuffer();
    EXPECT_EQ(CornerMenu(), L"3 新建行(N), 7 粘贴(V), 4 全选(A)");
    grid.SelectRows({1});
    EXPECT_EQ(CornerMenu(), L"2 删除(Del), 3 新建行(N), 5 复制(C), 6 剪切(X), 7 粘贴(V), 4 全选(A)");
    grid.SelectRows({1, 2});
    EXPECT_EQ(CornerMenu(), L"2 删除(Del), 3 新建行(N), 5 复制(C), 6 剪切(X), 4 全选(A)");
    // Copy and cut are offered here without pasting, too.
    grid.SetNoPaste(true);
    EXPECT_EQ(CornerMenu(), L"2 删除(Del), 3 新建行(N), 5 复制(C), 6 剪切(X), 4 全选(A)");
}

TEST_F(ContextMenus, OfTheCornerOfAnEmptyGrid)
{
    grid.SetRowNum(0);
    EXPECT_EQ(CornerMenu(), L"3 新建行(N)");
    grid.AddRows("x");
    FillBuffer();
    grid.SetRowNum(0);
    EXPECT_EQ(CornerMenu(), L"3 新建行(N), 7 粘贴(V)");
}

TEST_F(ContextMenus, OfTheCornerWithAColumnSelected_UnselectIt)
{
    grid.SelectCols({1});
    EXPECT_EQ(CornerMenu(), L"3 新建行(N), 4 全选(A)");
    EXPECT_FALSE(grid.IsColSelected());
}

TEST_F(ContextMenus, AreSwitchedOffByTheStyle)
{
    const auto all = [&] { return RowMenu(1) + L" " + ColMenu(1) + L" " + CornerMenu(); };
    grid.SetNoDefaultMenu(true);
    EXPECT_EQ(all(), L"none none none");
    grid.SetNoDefaultMenu(false);
    grid.SetReadOnly(true);
    EXPECT_EQ(all(), L"none none none");
    grid.SetReadOnly(false);
    grid.SetRowFixLength(true);
    EXPECT_EQ(all(), L"none 8 插入列(Ins), 9 删除列(Del), 10 新建列(N) none");
    grid.SetRowFixLength(false);
    grid.SetColFixLength(true);
    EXPECT_EQ(ColMenu(1), L"none");
    EXPECT_NE(RowMenu(1), L"none");
}

TEST_F(ContextMenus, OfCells_DoNotExist)
{
    const CPoint inCell = grid.ToClient(60, 50);
    EXPECT_EQ(MenuAt(grid, inCell), L"none");
    EXPECT_EQ(grid.TakeText(), "OnRClickCell 2,1");
}

TEST_F(ContextMenus, AreNotShownForARowThatAHookDeletes)
{
    grid.actions["OnCurChanged"] = [&] {
        if (grid.IsRowSelected())
        {
            grid.actions.clear();
            grid.SetRowNum(1);
        }
    };
    EXPECT_EQ(RowMenu(4), L"none");
    EXPECT_EQ(grid.GetRowNum(), 1);
}

TEST_F(ContextMenus, AreGivenBackAfterUse)
{
    RowMenu(1);
    ColMenu(1);
    CornerMenu();
    const GuiHandles before = CountGuiHandles();
    for (int i = 0; i < 5; ++i)
    {
        RowMenu(1);
        ColMenu(1);
        CornerMenu();
    }
    EXPECT_EQ(CountGuiHandles().menus, before.menus);
}

// Is told to end its modes while a menu is open; a timer closes the menu if that did not.
class EndingGrid : public CommandGrid
{
public:
    static constexpr UINT_PTR lateTimer = 77;
    bool isLate = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE)
            SendMessage(WM_CANCELMODE);
        if (message == WM_TIMER && wParam == lateTimer)
        {
            isLate = true;
            ::EndMenu();
        }
        return CommandGrid::WindowProc(message, wParam, lParam);
    }
};

// As when it is disabled under its menu, for a message of the host.
TEST_F(ContextMenus, AMenuOfTheGrid_ClosesWhenTheGridIsToldToEndItsModes)
{
    EndingGrid ending;
    Make(ending, "a");
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 1, L"entry");
    ending.SetTimer(EndingGrid::lateTimer, 3000, nullptr);
    menu.TrackPopupMenu(TPM_LEFTALIGN, 40, 40, &ending);
    ending.KillTimer(EndingGrid::lateTimer);
    EXPECT_FALSE(ending.isLate);
}

} // namespace
} // namespace quor::test
