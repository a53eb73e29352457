// Folders: creating, deleting, the questions about the selection, walking the tree.
#include "tests/treedrag/DragTreeTest.h"

#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class Folders : public DragTreeTest
{
protected:
    // Creates a folder and keeps its name as it is.
    std::string NewFolder()
    {
        const HTREEITEM folder = tree->CreateNewFolder();
        const std::string name = NameOf(folder);
        tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        owner.TakeMessages();
        return name;
    }
};

TEST_F(Folders, New_InAnEmptyTree_IsTheFirstRootItem)
{
    const HTREEITEM folder = tree->CreateNewFolder();
    EXPECT_EQ(tree->GetRootItem(), folder);
    EXPECT_EQ(NameOf(folder), "New Folder");
    EXPECT_TRUE(tree->IsItemEmptyFolder(folder));
    EXPECT_EQ(tree->GetItemData(folder), 0u);
    int image = -1;
    int selectedImage = -1;
    tree->GetItemImage(folder, image, selectedImage);
    EXPECT_EQ(selectedImage, 0);
    EXPECT_EQ(tree->GetSelectedItem(), folder);
    EXPECT_NE(tree->GetEditControl(), nullptr);
    EXPECT_EQ(owner.TakeMessages(), "edits New Folder");
}

TEST_F(Folders, New_OnAFolder_IsItsFirstChild)
{
    Fill("a f[x y]");
    tree->SelectItem(At("f"));
    tree->CreateNewFolder();
    EXPECT_EQ(NameOf(tree->GetChildItem(At("f"))), "New Folder");
    EXPECT_EQ(Selected(), "New Folder");
    EXPECT_NE(tree->GetItemState(At("f"), TVIS_EXPANDED) & TVIS_EXPANDED, 0u);
}

TEST_F(Folders, New_OnAnItem_IsItsNextSibling)
{
    Fill("a f+[x y]");
    tree->SelectItem(At("x"));
    tree->CreateNewFolder();
    EXPECT_EQ(tree->GetNextSiblingItem(At("x")), At("New Folder"));
    tree->SelectItem(At("a"));
    NewFolder();
    EXPECT_EQ(NameOf(tree->GetNextSiblingItem(At("a"))), "New Folder");
}

TEST_F(Folders, New_WithNothingSelected_IsTheFirstRootItem)
{
    for (const char* outline : {"a b", "f[x] b"})
    {
        tree->DeleteAllItems();
        Fill(outline);
        tree->SelectItem(nullptr);
        NewFolder();
        EXPECT_EQ(NameOf(tree->GetRootItem()), "New Folder") << outline;
    }
}

TEST_F(Folders, New_WithUniqueNames_TakesTheNextFreeNumber)
{
    Fill("a");
    tree->SelectItem(At("a"));
    tree->SetNoDuplicates(TRUE);
    EXPECT_EQ(NewFolder(), "New Folder");
    tree->SelectItem(At("a"));
    EXPECT_EQ(NewFolder(), "New Folder 1");
    tree->SelectItem(At("a"));
    EXPECT_EQ(NewFolder(), "New Folder 2");
    tree->SelectItem(At("New Folder 1"));
    EXPECT_EQ(NewFolder(), "New Folder") << "free on that level";
}

TEST_F(Folders, New_WithoutUniqueNames_IsAlwaysCalledTheSame)
{
    Fill("a");
    for (int i = 0; i < 3; ++i)
    {
        tree->SelectItem(At("a"));
        EXPECT_EQ(NewFolder(), "New Folder");
    }
}

TEST_F(Folders, New_WhileALabelIsEdited_KeepsTheTypedText)
{
    Fill("a");
    tree->SetFocus();
    tree->EditLabel(At("a"))->SetWindowText(L"typed");
    NewFolder();
    EXPECT_EQ(NameOf(tree->GetRootItem()), "typed");
    EXPECT_EQ(tree->GetCount(), 2u);
}

TEST_F(Folders, Delete_OfAnItemWithoutChildren_AsksNothing)
{
    Fill("a f[] b");
    MessageBoxProbe boxes(IDNO);
    tree->SelectItem(At("f"));
    tree->DeleteSelected();
    tree->SelectItem(At("a"));
    tree->DeleteSelected();
    EXPECT_TRUE(boxes.Shown().empty());
    EXPECT_EQ(Outline(), "b");
    EXPECT_EQ(owner.TakeMessages(), "deleted f, deleted a");
}

TEST_F(Folders, Delete_OfAnItemWithChildren_AsksFirst)
{
    Fill("a f[x]");
    tree->SelectItem(At("f"));
    {
        MessageBoxProbe boxes(IDNO);
        tree->DeleteSelected();
        ASSERT_EQ(boxes.Shown().size(), 1u);
        EXPECT_EQ(boxes.Shown()[0].text,
                  L"You have chosen to delete a folder.  Please confirm you want to delete "
                  L"this folder and all items in it?");
        EXPECT_EQ(boxes.Shown()[0].buttons, (std::vector<int>{IDYES, IDNO}));
    }
    EXPECT_EQ(Outline(), "a f[x]");
    EXPECT_EQ(owner.TakeMessages(), "");
    MessageBoxProbe boxes(IDYES);
    tree->DeleteSelected();
    EXPECT_EQ(Outline(), "a");
}

// The question depends on the children, not on the image.
TEST_F(Folders, Delete_OfAnOrdinaryItemWithChildren_AsksToo)
{
    Fill("a b");
    tree->InsertItem(L"below", 1, 1, At("a"));
    tree->SelectItem(At("a"));
    MessageBoxProbe boxes(IDYES);
    tree->DeleteSelected();
    EXPECT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(Outline(), "b");
}

TEST_F(Folders, Delete_TellsOfChildrenBeforeTheirParents)
{
    Fill("f+[x g+[y h[] z] w] b");
    tree->SelectItem(At("f"));
    MessageBoxProbe boxes(IDYES);
    tree->DeleteSelected();
    EXPECT_EQ(owner.TakeMessages(),
              "deleted x, deleted y, deleted h, deleted z, deleted g, deleted w, deleted f");
    EXPECT_EQ(Outline(), "b");
}

TEST_F(Folders, Delete_OfAChild_LeavesItsSiblings)
{
    Fill("f+[x y z]");
    tree->SelectItem(At("y"));
    tree->DeleteSelected();
    EXPECT_EQ(Outline(), "f+[x z]");
    EXPECT_EQ(owner.TakeMessages(), "deleted y");
}

TEST_F(Folders, EmptyTree_TakesEveryCommand)
{
    MessageBoxProbe boxes;
    tree->DeleteSelected();
    tree->RenameSelected();
    tree->MoveItemUp();
    tree->MoveItemDown();
    tree->CompleteDrag(TRUE);
    tree->CompleteDrag(FALSE);
    EXPECT_FALSE(tree->ShouldUpBtnBeEnabled());
    EXPECT_FALSE(tree->ShouldDownBtnBeEnabled());
    EXPECT_FALSE(tree->IsSelectedItemAFolder());
    EXPECT_EQ(tree->GetNextItem(nullptr), nullptr);
    EXPECT_EQ(tree->GetPrevItem(nullptr), nullptr);
    EXPECT_EQ(tree->GetDragItemData(), 0u);
    EXPECT_EQ(tree->GetParentToChildIndent(), 19);
    EXPECT_EQ(tree->GetCount(), 0u);
    EXPECT_TRUE(boxes.Shown().empty());
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(Folders, UpButton_IsOffForTheFirstItemOnly)
{
    Fill("a f+[x] b");
    const std::map<std::string, BOOL> expected = {{"a", FALSE}, {"f", TRUE}, {"x", TRUE}, {"b", TRUE}};
    for (const auto& [name, enabled] : expected)
    {
        tree->SelectItem(At(name));
        EXPECT_EQ(tree->ShouldUpBtnBeEnabled(), enabled) << name;
    }
}

TEST_F(Folders, DownButton_IsOffForTheLastRootItemOnly)
{
    Fill("a f+[x g[y]]");
    const std::map<std::string, BOOL> expected = {
        {"a", TRUE}, {"f", FALSE}, {"x", TRUE}, {"g", TRUE}, {"y", TRUE}};
    for (const auto& [name, enabled] : expected)
    {
        tree->SelectItem(At(name));
        EXPECT_EQ(tree->ShouldDownBtnBeEnabled(), enabled) << name;
    }
}

TEST_F(Folders, Buttons_WithNothingSelected_SelectTheFirstItem)
{
    Fill("a b");
    tree->SelectItem(nullptr);
    EXPECT_FALSE(tree->ShouldUpBtnBeEnabled());
    EXPECT_EQ(Selected(), "a");
    tree->SelectItem(nullptr);
    EXPECT_TRUE(tree->ShouldDownBtnBeEnabled());
    EXPECT_EQ(Selected(), "a");
    tree->DeleteItem(At("b"));
    tree->SelectItem(nullptr);
    EXPECT_FALSE(tree->ShouldDownBtnBeEnabled());
}

// A folder as the only root item counts its children: the rule asks for the number of items.
TEST_F(Folders, DownButton_WithNothingSelected_CountsAllItems)
{
    Fill("f[x]");
    tree->SelectItem(nullptr);
    EXPECT_TRUE(tree->ShouldDownBtnBeEnabled());
}

TEST_F(Folders, SelectedItemAFolder_TakesTheFirstItemWithoutASelection)
{
    Fill("f[] a");
    tree->SelectItem(At("a"));
    EXPECT_FALSE(tree->IsSelectedItemAFolder());
    tree->SelectItem(nullptr);
    EXPECT_TRUE(tree->IsSelectedItemAFolder());
    EXPECT_EQ(Selected(), "none") << "and selects nothing";
    tree->SelectItem(At("f"));
    EXPECT_TRUE(tree->IsSelectedItemAFolder());
}

TEST_F(Folders, EmptyFolder_HasTheFolderImageAndNoChildren)
{
    Fill("f[] g[x] a");
    EXPECT_TRUE(tree->IsItemEmptyFolder(At("f")));
    EXPECT_FALSE(tree->IsItemEmptyFolder(At("g")));
    EXPECT_FALSE(tree->IsItemEmptyFolder(At("a")));
    // The selected image does not count.
    tree->SetItemImage(At("f"), 0, 2);
    tree->SetItemImage(At("a"), 2, 0);
    EXPECT_TRUE(tree->IsItemEmptyFolder(At("f")));
    EXPECT_FALSE(tree->IsItemEmptyFolder(At("a")));
}

TEST_F(Folders, NextAndPrevItem_WalkTheWholeTree)
{
    Fill("a f[x g[y h[]]] b c[z]");
    std::string forwards;
    HTREEITEM last = nullptr;
    for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
    {
        forwards += NameOf(item);
        last = item;
    }
    EXPECT_EQ(forwards, "afxgyhbcz");
    std::string backwards;
    for (HTREEITEM item = last; item != nullptr; item = tree->GetPrevItem(item))
        backwards += NameOf(item);
    EXPECT_EQ(backwards, "zcbhygxfa");
    EXPECT_EQ(Outline(), "a f[x g[y h[]]] b c[z]") << "nothing is expanded by it";
}

TEST_F(Folders, UniqueName_LooksAtTheSiblingsOnly)
{
    Fill("a f[x y] b");
    EXPECT_FALSE(tree->IsUniqueNameOnThisLevel(L"A", nullptr, nullptr));
    EXPECT_FALSE(tree->IsUniqueNameOnThisLevel(L"A", nullptr, TVI_ROOT));
    EXPECT_TRUE(tree->IsUniqueNameOnThisLevel(L"A", At("a"), nullptr)) << "the item itself";
    EXPECT_TRUE(tree->IsUniqueNameOnThisLevel(L"x", nullptr, nullptr));
    EXPECT_FALSE(tree->IsUniqueNameOnThisLevel(L"x", nullptr, At("f")));
    EXPECT_TRUE(tree->IsUniqueNameOnThisLevel(L"x", nullptr, At("x"))) << "no children";
}

TEST_F(Folders, ParentToChildIndent_IsMeasuredAtTheFirstOpenFolder)
{
    Fill("a g[y] f+[x]");
    CRect parent;
    CRect child;
    tree->GetItemRect(At("f"), parent, TRUE);
    tree->GetItemRect(At("x"), child, TRUE);
    EXPECT_EQ(tree->GetParentToChildIndent(), child.left - parent.left);
    tree->SetIndent(40);
    EXPECT_EQ(tree->GetParentToChildIndent(), 40);
    tree->Expand(At("f"), TVE_COLLAPSE);
    EXPECT_EQ(tree->GetParentToChildIndent(), 19);
}

} // namespace
