// Steps of a tree that cannot be taken back: what is left of them afterwards.
#include "tests/undo/WatchedTree.h"

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

} // namespace
