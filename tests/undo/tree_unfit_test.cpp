// Changes of a tree that cannot be taken back: what is left of them, and what is no step at all.
#include "tests/undo/WatchedTree.h"

#include <string>
#include <vector>

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

using UnfitTreeSteps = WatchedTreeTest;

TEST_F(UnfitTreeSteps, GiveTheirDataUpAtOnce)
{
    Begin("f[x y] a");
    tree->DeleteItem(At("y"));
    {
        const TGUndoPause pause(stack);
        tree->InsertItem(L"z", 1, 1, At("f"));
    }
    EXPECT_TRUE(host.gone.empty());
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(host.gone, std::vector<DWORD_PTR>{3});
}

// What was not looked at any more goes with what did not fit.
TEST_F(UnfitTreeSteps, GiveTheDataOfAllTheirPartsUpAtOnce)
{
    Begin("f[x y] a");
    {
        const TGUndoTransaction step(stack, L"Clean");
        tree->DeleteItem(At("y"));
        tree->SetItemText(At("a"), L"b");
    }
    {
        const TGUndoPause pause(stack);
        tree->SetItemText(At("b"), L"c");
    }
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(host.gone, std::vector<DWORD_PTR>{3});
}

// A tree may refuse to say what an item is like.
class SilentTree
{
public:
    explicit SilentTree(HWND window) : tree(window)
    {
        before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SilentTree::Procedure)));
    }
    ~SilentTree() { ::SetWindowLongPtrW(tree, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before)); }
    SilentTree(const SilentTree&) = delete;
    SilentTree& operator=(const SilentTree&) = delete;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return message == TVM_GETITEMW ? FALSE : ::CallWindowProcW(before, window, message, wParam, lParam);
    }

    static inline WNDPROC before = nullptr;
    HWND tree;
};

TEST_F(UnfitTreeSteps, DeletingWhatCannotBeRead_IsNoStep)
{
    Begin("a b");
    const HTREEITEM item = At("a");
    {
        const SilentTree silent(*tree);
        tree->DeleteItem(item);
    }
    EXPECT_EQ(Outline(), "b");
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_TRUE(host.gone.empty());
}

// The platform takes the button away with the last child, and gives one with the first.
TEST_F(UnfitTreeSteps, ButtonThatTheProgramHasSet_ComesBackWithTheLastChild)
{
    Begin("a b");
    SetButton(At("a"), 1);
    stack.Clear();
    const std::string before = All(Shown::LeftOut);
    tree->InsertItem(L"x", 1, 1, At("a"));
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
    Redo();
    EXPECT_EQ(Outline(), "a[x] b");
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
}

TEST_F(UnfitTreeSteps, ButtonThatTheProgramHasTakenAway_IsAwayWhenTheFirstChildComesBack)
{
    Begin("a[x] b");
    SetButton(At("a"), 0);
    stack.Clear();
    const std::string before = All(Shown::LeftOut);
    tree->DeleteItem(At("x"));
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
}

} // namespace
