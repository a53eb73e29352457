// Random moves, folders, names and deletions, compared with a simple tree.
#include "tests/treedrag/DragTreeTest.h"
#include "tests/treedrag/ReferenceTree.h"

#include "tests/support/MessageBoxProbe.h"

#include <random>

namespace
{

using namespace quor::test;

constexpr unsigned Seed = 20261;
constexpr int Trees = 8;
constexpr int StepsPerTree = 80;
constexpr size_t MostItems = 45;
constexpr const char* Names[] = {"a", "A", "b", "B", "c", "d", "new folder"};

// High enough that every item shows.
class RandomTree : public DragTreeTest
{
protected:
    RandomTree() : DragTreeTest(UsualStyle | TVS_CHECKBOXES, CSize(400, 1000))
    {
        Activate(owner);
        tree->UpdateWindow();
        boxes = std::make_unique<MessageBoxProbe>(IDYES);
    }
    ~RandomTree() override { tree->GetImageList(TVSIL_STATE)->DeleteImageList(); }

    size_t Random(size_t count) { return std::uniform_int_distribution<size_t>(0, count - 1)(random); }
    bool Chance(size_t oneIn) { return Random(oneIn) == 0; }
    ReferenceNode& AnyOf(const std::vector<ReferenceNode*>& nodes) { return *nodes[Random(nodes.size())]; }

    // The item of a node, by its place.
    HTREEITEM ItemOf(const ReferenceNode& node) const
    {
        if (node.parent == nullptr)
            return TVI_ROOT;
        const HTREEITEM parent = ItemOf(*node.parent);
        HTREEITEM item = parent == TVI_ROOT ? tree->GetRootItem() : tree->GetChildItem(parent);
        for (size_t i = 0; node.parent->children[i].get() != &node; ++i)
            item = tree->GetNextSiblingItem(item);
        return item;
    }

    std::string Describe(HTREEITEM first, int level) const
    {
        std::string all;
        for (HTREEITEM item = first; item != nullptr; item = tree->GetNextSiblingItem(item))
        {
            int image = -1;
            int selectedImage = -1;
            tree->GetItemImage(item, image, selectedImage);
            const HTREEITEM child = tree->GetChildItem(item);
            const bool isOpen =
                child != nullptr && (tree->GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
            all += std::string(static_cast<size_t>(level), ' ') + NameOf(item) + (isOpen ? "+" : "") + " " +
                   std::to_string(image) + "," + std::to_string(selectedImage) +
                   (tree->GetCheck(item) ? " checked " : " ") + std::to_string(tree->GetItemData(item)) +
                   "\n";
            all += Describe(child, level + 1);
        }
        return all;
    }

    void Build()
    {
        tree->DeleteAllItems();
        reference = ReferenceTree();
        const size_t count = 1 + Random(25);
        for (size_t i = 0; i < count; ++i)
        {
            std::vector<ReferenceNode*> parents = {&reference.Root()};
            for (ReferenceNode* node : reference.AllNodes())
                if (node->image == 0)
                    parents.push_back(node);
            ReferenceNode& parent = AnyOf(parents);
            const std::string name = "i" + std::to_string(i);
            const HTREEITEM item = tree->InsertItem(CString(name.c_str()), ItemOf(parent));
            Vary(reference.Append(parent, name, Chance(2)), item);
        }
    }

    // Gives a node and its item attributes of their own.
    void Vary(ReferenceNode& node, HTREEITEM item)
    {
        node.data = random();
        node.isChecked = Chance(2);
        node.selectedImage = static_cast<int>(Random(3));
        tree->SetItemData(item, node.data);
        tree->SetCheck(item, node.isChecked);
        tree->SetItemImage(item, node.image, node.selectedImage);
    }

    std::string Step()
    {
        const std::vector<ReferenceNode*> all = reference.AllNodes();
        if (all.empty())
            return CreateFolder(nullptr);
        ReferenceNode& node = AnyOf(all);
        switch (Random(10))
        {
        case 0:
        case 1:
        case 2:
            return Drag(node, AnyOf(reference.ShownNodes()), Chance(2));
        case 3:
        case 4:
            return Command(node, true);
        case 5:
        case 6:
            return Command(node, false);
        case 7:
            return all.size() < MostItems ? CreateFolder(&node) : Delete(node);
        case 8:
            return Rename(node, Names[Random(std::size(Names))]);
        default:
            return Chance(4) ? Delete(node) : Toggle(node);
        }
    }

    // Selecting an item opens the folders above it.
    void Select(ReferenceNode& node)
    {
        tree->SelectItem(ItemOf(node));
        for (ReferenceNode* above = node.parent; above != nullptr; above = above->parent)
            above->isExpanded = true;
    }

    std::string Drag(ReferenceNode& node, ReferenceNode& target, bool upperHalf)
    {
        const std::string step = "drag " + node.name + " to " + target.name;
        Select(node);
        NMTREEVIEW begin = {};
        begin.hdr.hwndFrom = *tree;
        begin.hdr.idFrom = TreeId;
        begin.hdr.code = TVN_BEGINDRAGW;
        begin.itemNew.hItem = ItemOf(node);
        owner.SendMessage(WM_NOTIFY, TreeId, reinterpret_cast<LPARAM>(&begin));
        const CPoint point = PointIn(ItemOf(target), upperHalf ? Half::Upper : Half::Lower);
        SendMouse(*tree, WM_MOUSEMOVE, point, MK_LBUTTON);
        Drop();
        reference.Drop(node, target, upperHalf);
        return step;
    }

    std::string Command(ReferenceNode& node, bool up)
    {
        const std::string step = (up ? "up " : "down ") + node.name;
        Select(node);
        const size_t shown = boxes->Shown().size();
        up ? tree->MoveItemUp() : tree->MoveItemDown();
        const bool isRefused = up ? reference.MoveUp(node, isUnique) : reference.MoveDown(node, isUnique);
        EXPECT_EQ(boxes->Shown().size() - shown, isRefused ? 1u : 0u) << step;
        return step;
    }

    std::string CreateFolder(ReferenceNode* node)
    {
        if (node != nullptr)
            Select(*node);
        ReferenceNode& folder = reference.NewFolder(node, isUnique);
        const HTREEITEM item = tree->CreateNewFolder();
        tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        EXPECT_EQ(item, ItemOf(folder));
        return "new folder " + folder.name;
    }

    std::string Rename(ReferenceNode& node, const std::string& text)
    {
        const std::string step = "rename " + node.name + " to " + text;
        Select(node);
        const size_t shown = boxes->Shown().size();
        tree->SetFocus();
        tree->RenameSelected();
        tree->GetEditControl()->SetWindowText(CString((" " + text + " ").c_str()));
        tree->SendMessage(TVM_ENDEDITLABELNOW, FALSE);
        const bool isRefused = reference.Rename(node, text, isUnique);
        EXPECT_EQ(boxes->Shown().size() - shown, isRefused ? 1u : 0u) << step;
        PumpPending();
        EXPECT_EQ(tree->GetEditControl() != nullptr, isRefused) << step;
        tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        return step;
    }

    std::string Delete(ReferenceNode& node)
    {
        const std::string step = "delete " + node.name;
        Select(node);
        tree->DeleteSelected();
        reference.Delete(node);
        return step;
    }

    std::string Toggle(ReferenceNode& node)
    {
        tree->SelectItem(nullptr);
        tree->Expand(ItemOf(node), TVE_TOGGLE);
        node.isExpanded = !node.children.empty() && !node.isExpanded;
        return "toggle " + node.name;
    }

    std::mt19937 random{Seed};
    ReferenceTree reference;
    bool isUnique = false;
    std::unique_ptr<MessageBoxProbe> boxes;
};

TEST_F(RandomTree, BehavesLikeTheReference)
{
    for (int number = 0; number < Trees; ++number)
    {
        Build();
        ASSERT_EQ(Describe(tree->GetRootItem(), 0), reference.Describe());
        for (int step = 0; step < StepsPerTree; ++step)
        {
            isUnique = Chance(2);
            tree->SetNoDuplicates(isUnique);
            const std::string before = reference.Describe();
            const std::string what = Step();
            ASSERT_EQ(Describe(tree->GetRootItem(), 0), reference.Describe())
                << "seed " << Seed << ", tree " << number << ", step " << step << ": " << what
                << "\nbefore:\n"
                << before;
        }
    }
}

} // namespace
