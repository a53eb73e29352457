// Where a dropped item goes, and what the owner is told.
#include "tests/treedrag/DragTreeTest.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class DropInTree : public DragTreeTest
{
};

TEST_F(DropInTree, UpperHalf_InsertsBeforeTheItem)
{
    Fill("a b c d");
    DragTo("d", "b", Half::Upper);
    EXPECT_EQ(Outline(), "a d b c");
    EXPECT_EQ(Selected(), "d");
    EXPECT_EQ(owner.TakeMessages(), "asked d at a, inserted d at a");
}

TEST_F(DropInTree, LowerHalf_InsertsAfterTheItem)
{
    Fill("a b c d");
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "b c a d");
    EXPECT_EQ(owner.TakeMessages(), "asked a at c, inserted a at c");
}

TEST_F(DropInTree, BeforeTheFirstRootItem_NamesTheRootAsPlace)
{
    Fill("a b c");
    DragTo("c", "a", Half::Upper);
    EXPECT_EQ(Outline(), "c a b");
    EXPECT_EQ(owner.TakeMessages(), "asked c at root, inserted c at root");
}

TEST_F(DropInTree, BeforeTheFirstChild_NamesTheFolderAsPlace)
{
    Fill("a f+[x y]");
    DragTo("a", "x", Half::Upper);
    EXPECT_EQ(Outline(), "f+[a x y]");
    EXPECT_EQ(owner.TakeMessages(), "asked a at f, inserted a at f");
}

TEST_F(DropInTree, LowerHalfOfAnOpenFolder_InsertsAsItsFirstChild)
{
    Fill("a f+[x y] b");
    DragTo("b", "f", Half::Lower);
    EXPECT_EQ(Outline(), "a f+[b x y]");
    EXPECT_EQ(owner.TakeMessages(), "asked b at f, inserted b at f");
}

TEST_F(DropInTree, LowerHalfOfAClosedFolder_InsertsAfterIt)
{
    Fill("b f[x y] c");
    DragTo("b", "f", Half::Lower);
    EXPECT_EQ(Outline(), "f[x y] b c");
    EXPECT_EQ(owner.TakeMessages(), "asked b at f, inserted b at f");
}

TEST_F(DropInTree, LowerHalfOfAnEmptyFolder_InsertsIntoIt)
{
    Fill("b f[] c");
    DragTo("b", "f", Half::Lower);
    EXPECT_EQ(Outline(), "f+[b] c");
    EXPECT_EQ(owner.TakeMessages(), "asked b at f, inserted b at f");
}

TEST_F(DropInTree, UpperHalfOfAnEmptyFolder_InsertsBeforeIt)
{
    Fill("a f[] c");
    DragTo("c", "f", Half::Upper);
    EXPECT_EQ(Outline(), "a c f[]");
}

TEST_F(DropInTree, EmptyFolderJustBeforeTheItem_TakesItIn)
{
    Fill("f[] b");
    DragTo("b", "f", Half::Lower);
    EXPECT_EQ(Outline(), "f+[b]");
}

TEST_F(DropInTree, LowerHalfOfAnOrdinaryItem_NeverPutsAnythingBelowIt)
{
    Fill("a b");
    DragTo("a", "b", Half::Lower);
    EXPECT_EQ(Outline(), "b a");
}

TEST_F(DropInTree, OutOfAFolder_GoesToTheTargetsLevel)
{
    Fill("f+[x y+[z]] b");
    DragTo("z", "b", Half::Lower);
    EXPECT_EQ(Outline(), "f+[x y[]] b z");
    EXPECT_EQ(owner.TakeMessages(), "asked z at b, inserted z at b");
}

TEST_F(DropInTree, UpperHalfOfItsNextSibling_ChangesNothing)
{
    Fill("a b c");
    const HTREEITEM moved = At("a");
    DragTo("a", "b", Half::Upper);
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(At("a"), moved);
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DropInTree, LowerHalfOfItsPreviousSibling_ChangesNothing)
{
    Fill("a b c");
    const HTREEITEM moved = At("b");
    DragTo("b", "a", Half::Lower);
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(At("b"), moved);
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DropInTree, OnItself_ChangesNothing)
{
    Fill("a b f[]");
    for (const char* name : {"a", "b", "f"})
        for (const Half half : {Half::Upper, Half::Lower})
            DragTo(name, name, half);
    EXPECT_EQ(Outline(), "a b f[]");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DropInTree, WithoutATarget_ChangesNothing)
{
    Fill("a b");
    BeginDrag("a");
    SendMouse(*tree, WM_MOUSEMOVE, CPoint(20, 200), MK_LBUTTON);
    EXPECT_EQ(tree->dropTarget, nullptr);
    Drop();
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DropInTree, OverEmptySpace_KeepsTheLastTarget)
{
    Fill("a b c");
    BeginDrag("c");
    MoveTo("a", Half::Upper);
    SendMouse(*tree, WM_MOUSEMOVE, CPoint(20, 200), MK_LBUTTON);
    Drop();
    EXPECT_EQ(Outline(), "c a b");
}

TEST_F(DropInTree, OwnerThatAnswersTheQuery_KeepsTheTreeUnchanged)
{
    Fill("a b c");
    const HTREEITEM moved = At("a");
    owner.answers[TDM_DROP_QUERY] = [](const OwnerMessage&) { return 1; };
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(At("a"), moved);
    EXPECT_EQ(owner.TakeMessages(), "asked a at c");
    EXPECT_FALSE(tree->IsDragging());
}

TEST_F(DropInTree, Query_CarriesTheItemsHandles)
{
    Fill("a b c");
    const HTREEITEM moved = At("a");
    const HTREEITEM place = At("c");
    owner.answers[TDM_DROP_QUERY] = [](const OwnerMessage&) { return 1; };
    DragTo("a", "c", Half::Lower);
    ASSERT_EQ(owner.Received().size(), 1u);
    EXPECT_EQ(owner.Received()[0].item, moved);
    EXPECT_EQ(owner.Received()[0].place, place);
}

TEST_F(DropInTree, UniqueNames_DoNotBindDrags)
{
    Fill("a f+[A]");
    tree->SetNoDuplicates(TRUE);
    DragTo("a", "A", Half::Lower);
    EXPECT_EQ(Outline(), "f+[A a]");
}

// An item cannot become part of itself: the owner is asked as for every drop, and nothing moves.
TEST_F(DropInTree, IntoItsOwnSubtree_KeepsTheTreeWhole)
{
    Fill("a f+[x g+[y h[]] z] b");
    const struct
    {
        const char* target;
        Half half;
    } places[] = {{"f", Half::Lower}, {"x", Half::Upper}, {"x", Half::Lower}, {"g", Half::Lower},
                  {"y", Half::Upper}, {"h", Half::Lower}, {"z", Half::Lower}};
    for (const auto& place : places)
    {
        DragTo("f", place.target, place.half);
        EXPECT_EQ(Outline(), "a f+[x g+[y h[]] z] b") << place.target;
        EXPECT_EQ(owner.TakeMessages().find("inserted"), std::string::npos) << place.target;
    }
}

TEST_F(DropInTree, EmptyFolderIntoItself_ChangesNothing)
{
    Fill("f[] a");
    DragTo("f", "f", Half::Lower);
    EXPECT_EQ(Outline(), "f[] a");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DropInTree, FailedInsertion_LeavesTheItemWhereItWas)
{
    Fill("a f+[x y] b");
    const HTREEITEM moved = At("f");
    tree->FailInsertionsAfter(0);
    DragTo("f", "b", Half::Lower);
    EXPECT_EQ(Outline(), "a f+[x y] b");
    EXPECT_EQ(At("f"), moved);
    EXPECT_EQ(owner.TakeMessages(), "asked f at b");
}

TEST_F(DropInTree, FailedInsertionOfAChild_LeavesTheWholeItemWhereItWas)
{
    Fill("a f+[x y] b");
    const HTREEITEM moved = At("f");
    tree->FailInsertionsAfter(2);
    DragTo("f", "b", Half::Lower);
    EXPECT_EQ(Outline(), "a f+[x y] b");
    EXPECT_EQ(At("f"), moved);
    EXPECT_EQ(owner.TakeMessages(), "asked f at b");
}

} // namespace
