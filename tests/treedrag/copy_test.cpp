// What travels with a moved item.
#include "tests/treedrag/DragTreeTest.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

// What an item has beside its text and its place.
struct Attributes
{
    int image = -1;
    int selectedImage = -1;
    UINT state = 0;
    DWORD_PTR data = 0;
    BOOL checked = FALSE;

    bool operator==(const Attributes&) const = default;
};

Attributes AttributesOf(const CTreeCtrl& tree, HTREEITEM item)
{
    Attributes found;
    tree.GetItemImage(item, found.image, found.selectedImage);
    // The selection does not belong to the item.
    found.state = tree.GetItemState(item, 0xFFFF & ~static_cast<UINT>(TVIS_SELECTED));
    found.data = tree.GetItemData(item);
    found.checked = tree.GetCheck(item);
    return found;
}

class MovedItem : public DragTreeTest
{
protected:
    explicit MovedItem(DWORD style = UsualStyle) : DragTreeTest(style) {}

    std::map<std::string, Attributes> AllAttributes() const
    {
        std::map<std::string, Attributes> all;
        for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
            all[NameOf(item)] = AttributesOf(*tree, item);
        return all;
    }

    // Gives every item attributes of its own.
    void Vary()
    {
        DWORD_PTR number = 1;
        for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item), ++number)
        {
            tree->SetItemData(item, number * 0x100000001ULL);
            tree->SetItemState(item, number % 2 ? TVIS_BOLD : TVIS_CUT, TVIS_BOLD | TVIS_CUT);
            tree->SetItemState(item, static_cast<UINT>(INDEXTOOVERLAYMASK(number % 3)), TVIS_OVERLAYMASK);
            int image = 0;
            int selectedImage = 0;
            tree->GetItemImage(item, image, selectedImage);
            tree->SetItemImage(item, image, static_cast<int>(number % 3));
        }
    }
};

class CheckedMovedItem : public MovedItem
{
protected:
    CheckedMovedItem() : MovedItem(UsualStyle | TVS_CHECKBOXES) {}
    // A tree leaves the images of its check boxes to whoever asked for them.
    ~CheckedMovedItem() override { tree->GetImageList(TVSIL_STATE)->DeleteImageList(); }
};

TEST_F(MovedItem, KeepsEverythingBelowIt)
{
    Fill("a f+[x g+[y h[z] i[]] w] b");
    Vary();
    const auto before = AllAttributes();
    DragTo("f", "b", Half::Lower);
    EXPECT_EQ(Outline(), "a b f+[x g+[y h[z] i[]] w]");
    EXPECT_EQ(AllAttributes(), before);
}

TEST_F(MovedItem, ClosedFolder_StaysClosed)
{
    Fill("f[x g+[y]] b");
    DragTo("f", "b", Half::Lower);
    EXPECT_EQ(Outline(), "b f[x g+[y]]");
}

TEST_F(MovedItem, KeepsTheStateImage)
{
    Fill("a b");
    CImageList states;
    states.Create(16, 16, ILC_COLOR24, 5, 1);
    for (int i = 0; i < 5; ++i)
        states.Add(::LoadIcon(nullptr, IDI_APPLICATION));
    tree->SetImageList(&states, TVSIL_STATE);
    for (const int index : {0, 1, 2, 3, 4})
    {
        tree->SetItemState(At("a"), static_cast<UINT>(INDEXTOSTATEIMAGEMASK(index)), TVIS_STATEIMAGEMASK);
        DragTo("a", "b", Half::Lower);
        ASSERT_EQ(Outline(), "b a");
        EXPECT_EQ(tree->GetItemState(At("a"), TVIS_STATEIMAGEMASK) >> 12, static_cast<UINT>(index));
        DragTo("a", "b", Half::Upper);
    }
    tree->SetImageList(nullptr, TVSIL_STATE);
}

TEST_F(CheckedMovedItem, KeepsCheckMarks)
{
    Fill("f+[x y g[z w]] b");
    // The platform's tree makes its check boxes, all without a mark, when it first paints.
    tree->UpdateWindow();
    for (const char* name : {"f", "y", "z"})
        tree->SetCheck(At(name), TRUE);
    const auto before = AllAttributes();
    DragTo("f", "b", Half::Lower);
    EXPECT_EQ(Outline(), "b f+[x y g[z w]]");
    EXPECT_EQ(AllAttributes(), before);
    EXPECT_TRUE(tree->GetCheck(At("z")));
    EXPECT_FALSE(tree->GetCheck(At("w")));
}

TEST_F(MovedItem, KeepsLongAndEmptyTexts)
{
    Fill("f+[x y] b");
    const CString longText(L'm', 1000);
    tree->SetItemText(At("x"), longText);
    tree->SetItemText(At("y"), L"");
    DragTo("f", "b", Half::Lower);
    const HTREEITEM first = tree->GetChildItem(At("f"));
    // The platform keeps as much of a text as it can show.
    EXPECT_EQ(tree->GetItemText(first), longText);
    EXPECT_EQ(tree->GetItemText(tree->GetNextSiblingItem(first)), L"");
}

TEST_F(MovedItem, IsTheOnlySelectedOne)
{
    Fill("f+[x] b");
    DragTo("f", "b", Half::Lower);
    int selected = 0;
    for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
        selected += (tree->GetItemState(item, TVIS_SELECTED) & TVIS_SELECTED) != 0;
    EXPECT_EQ(selected, 1);
    EXPECT_EQ(Selected(), "f");
}

// Walks of the tree that call themselves for each level would not come back from here.
TEST_F(MovedItem, VeryDeepTree_IsMovedWhole)
{
    constexpr int Depth = 3000;
    Fill("top[] b");
    HTREEITEM item = At("top");
    for (int i = 0; i < Depth; ++i)
        item = tree->InsertItem(L"d", 0, 0, item);
    DragTo("top", "b", Half::Lower);
    int depth = 0;
    item = At("b");
    ASSERT_EQ(NameOf(tree->GetNextSiblingItem(item)), "top");
    for (item = tree->GetNextSiblingItem(item); item != nullptr; item = tree->GetChildItem(item))
        ++depth;
    EXPECT_EQ(depth, Depth + 1);
    EXPECT_EQ(tree->GetCount(), static_cast<UINT>(Depth + 2));
}

TEST_F(MovedItem, CopySubtree_CopiesTheChildrenOnly)
{
    Fill("f+[x g[y]] t[] b");
    EXPECT_TRUE(tree->CopySubtree(At("t"), At("f")));
    EXPECT_EQ(Outline(), "f+[x g[y]] t[x g[y]] b");
    EXPECT_TRUE(tree->CopySubtree(At("t"), At("b")));
    EXPECT_EQ(Outline(), "f+[x g[y]] t[x g[y]] b");
}

TEST_F(MovedItem, InsertItemAndSubtree_NeedsItemAndTarget)
{
    Fill("a b");
    EXPECT_EQ(tree->InsertItemAndSubtree(nullptr), nullptr);
    tree->dragItem = At("a");
    EXPECT_EQ(tree->InsertItemAndSubtree(nullptr), nullptr);
    tree->dragItem = nullptr;
    tree->dropTarget = At("b");
    EXPECT_EQ(tree->InsertItemAndSubtree(nullptr), nullptr);
    EXPECT_EQ(Outline(), "a b");
}

TEST_F(MovedItem, InsertItemAndSubtree_WithoutAParent_UsesTheTargets)
{
    Fill("a f+[x]");
    tree->dragItem = At("a");
    tree->dropTarget = At("x");
    const HTREEITEM copy = tree->InsertItemAndSubtree(nullptr);
    EXPECT_EQ(NameOf(copy), "a");
    EXPECT_EQ(tree->GetParentItem(copy), At("f"));
    EXPECT_EQ(owner.TakeMessages(), "inserted a at x");
}

TEST_F(MovedItem, ReportDragBackToParent_SendsNothing)
{
    Fill("f+[x g[y] h[]] t[x] b");
    tree->ReportDragBackToParent(At("f"), At("t"));
    tree->ReportDragBackToParent(At("b"), At("f"));
    tree->ReportDragBackToParent(At("f"), At("f"));
    EXPECT_EQ(owner.TakeMessages(), "");
    EXPECT_EQ(Outline(), "f+[x g[y] h[]] t[x] b");
}

TEST_F(MovedItem, SavedVisibleItems_AreTheFirstShownAndTheLastExpandedOne)
{
    std::string items = "f[x]";
    for (int i = 0; i < 40; ++i)
        items += " i" + std::to_string(i);
    Fill(items + " g+[y]");
    tree->SelectSetFirstVisible(At("i3"));
    tree->SaveFirstAndLastVisibleItems();
    EXPECT_EQ(NameOf(tree->firstVisibleItem), "i3");
    EXPECT_EQ(NameOf(tree->lastVisibleItem), "y");
}

} // namespace
