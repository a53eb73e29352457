// A drag tree that a random user changes, with an owner that refuses and changes something itself.
#include "tests/undo/UndoWorld.h"
#include "tests/undo/WatchedTree.h"

#include "tests/support/Input.h"
#include "tests/support/MessageBoxProbe.h"

#include <vector>

namespace quor::test
{
namespace
{

using namespace QuorUiCtr;

constexpr UINT TreeId = 7;
constexpr long MostItems = 60;
constexpr int TreeHeight = 300;
constexpr const wchar_t* Names[] = {L"a", L"A", L"b", L"c", L"d", L"new folder", L" e "};

class TreeSubject : public UndoSubject
{
public:
    TreeSubject() : owner(CSize(300, TreeHeight + 40)), boxes(IDYES)
    {
        images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 3, 1);
        for (int i = 0; i < 3; ++i)
            images.Add(::LoadIcon(nullptr, IDI_APPLICATION));
        tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_EDITLABELS,
                    CRect(0, 0, 260, TreeHeight), &owner, TreeId);
        tree.SetImageList(&images, TVSIL_NORMAL);
        owner.tree = &tree;
        // Nothing is to be seen, which takes most of the time.
        owner.ShowWindow(SW_HIDE);
        Fill();
        for (const UINT message :
             {TDM_ITEM_INSERTED, TDM_ITEM_DELETED, TDM_ITEM_RENAMED, TDM_BEGIN_LABEL_EDIT, TDM_DROP_QUERY})
            owner.answers[message] = [this](const OwnerMessage& told) { return Answer(told); };
    }

    void Watch(TGUndoStack& stack) override
    {
        watchedBy = &stack;
        stack.Watch(tree);
    }
    std::string Snapshot() override { return DescribeTree(tree, Shown::LeftOut); }
    void SetMutating(fuzz::Random* random) override { mutating = random; }

    void Step(fuzz::Random& random) override
    {
        current = &random;
        const std::size_t shown = boxes.Shown().size();
        owner.TakeMessages();
        switch (random.Below(14))
        {
        case 0:
        case 1:
        case 2:
            Drag();
            break;
        case 3:
        case 4:
            Move(true);
            break;
        case 5:
        case 6:
            Move(false);
            break;
        case 7:
            CreateFolder();
            break;
        case 8:
            Rename();
            break;
        case 9:
            Delete();
            break;
        case 10:
            tree.SelectItem(Any(random));
            break;
        case 11:
            Toggle();
            break;
        case 12:
            Transact();
            break;
        default:
            Change(random);
        }
        // A refused label is edited again by a message that is on its way.
        if (boxes.Shown().size() != shown)
            PumpPending();
        tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        current = nullptr;
    }

private:
    std::vector<HTREEITEM> Items() const
    {
        std::vector<HTREEITEM> items;
        CTreeCtrlDrag& walked = const_cast<DragTree&>(tree);
        for (HTREEITEM item = walked.GetRootItem(); item != nullptr; item = walked.GetNextItem(item))
            items.push_back(item);
        return items;
    }
    HTREEITEM Any(fuzz::Random& random) const
    {
        const std::vector<HTREEITEM> items = Items();
        return items.empty() ? nullptr : random.Pick(items);
    }

    void Fill()
    {
        fuzz::Random random(77);
        for (int i = 0; i < 20; ++i)
        {
            const HTREEITEM parent = random.OneIn(2) ? nullptr : Any(random);
            const int image = random.OneIn(2) ? 0 : 1;
            const HTREEITEM item = tree.InsertItem(L"i", image, image, parent == nullptr ? TVI_ROOT : parent);
            tree.SetItemData(item, static_cast<DWORD_PTR>(i));
            if (parent != nullptr && random.OneIn(2))
                tree.Expand(parent, TVE_EXPAND);
        }
    }

    // ---- Users

    void Drag()
    {
        const HTREEITEM item = Any(*current);
        const HTREEITEM target = Any(*current);
        if (item == nullptr)
            return;
        NMTREEVIEW begin = {};
        begin.hdr.hwndFrom = tree;
        begin.hdr.idFrom = TreeId;
        begin.hdr.code = TVN_BEGINDRAGW;
        begin.itemNew.hItem = item;
        owner.SendMessage(WM_NOTIFY, TreeId, reinterpret_cast<LPARAM>(&begin));
        CRect row;
        if (tree.GetItemRect(target, row, TRUE))
            SendMouse(tree, WM_MOUSEMOVE,
                      CPoint(row.left + 3, current->OneIn(2) ? row.top + 2 : row.bottom - 2), MK_LBUTTON);
        SendMouse(tree, WM_LBUTTONUP, CPoint(1, 1));
    }
    void Move(bool up)
    {
        tree.SetNoDuplicates(current->OneIn(3));
        if (current->OneIn(2))
            tree.SelectItem(Any(*current));
        up ? tree.MoveItemUp() : tree.MoveItemDown();
    }
    void EndLabel()
    {
        if (CEdit* const edit = tree.GetEditControl())
            edit->SetWindowText(current->Pick(Names));
        tree.SendMessage(TVM_ENDEDITLABELNOW, current->OneIn(4));
    }
    void CreateFolder()
    {
        if (tree.GetCount() > static_cast<UINT>(MostItems))
            return Delete();
        tree.SetNoDuplicates(current->OneIn(3));
        tree.SetFocus();
        tree.CreateNewFolder();
        EndLabel();
    }
    void Rename()
    {
        tree.SetNoDuplicates(current->OneIn(3));
        tree.SelectItem(Any(*current));
        tree.SetFocus();
        tree.RenameSelected();
        EndLabel();
    }
    void Delete()
    {
        tree.SelectItem(Any(*current));
        tree.DeleteSelected();
    }
    void Toggle()
    {
        const HTREEITEM item = Any(*current);
        if (current->OneIn(2) || item == nullptr)
        {
            tree.Expand(item, TVE_TOGGLE);
            return;
        }
        tree.SelectItem(item);
        tree.SendMessage(WM_KEYDOWN, VK_ADD);
    }

    // ---- Programs

    void Transact()
    {
        const TGUndoTransaction step(*watchedBy, L"Transaction");
        for (long i = current->Below(6); i > 0; --i)
            Change(*current);
    }
    void Change(fuzz::Random& random)
    {
        const HTREEITEM item = Any(random);
        const bool isFull = tree.GetCount() > static_cast<UINT>(MostItems);
        switch (random.Below(10))
        {
        case 0:
        case 1:
            if (!isFull)
                Insert(random, item);
            break;
        case 2:
            if (item != nullptr && (isFull || !tree.ItemHasChildren(item)))
                tree.DeleteItem(item);
            break;
        case 3:
            tree.SetItemText(item, random.Pick(Names));
            break;
        case 4:
            tree.SetItemState(item, static_cast<UINT>(random.Below(4)) << 12 | TVIS_BOLD,
                              random.OneIn(2) ? TVIS_STATEIMAGEMASK : TVIS_BOLD);
            break;
        case 5:
            tree.SetItemData(item, static_cast<DWORD_PTR>(random.Below(1000)));
            break;
        case 6:
            tree.SetItemImage(item, static_cast<int>(random.Below(3)), static_cast<int>(random.Below(3)));
            break;
        case 7:
            tree.SortChildren(random.OneIn(2) ? TVI_ROOT : item);
            break;
        case 8:
            tree.Expand(item, random.OneIn(2) ? TVE_EXPAND : TVE_COLLAPSE);
            break;
        default:
            if (random.OneIn(30))
                tree.DeleteAllItems();
        }
    }
    void Insert(fuzz::Random& random, HTREEITEM item)
    {
        const int image = static_cast<int>(random.Below(2));
        const bool isBelow = item != nullptr && random.OneIn(2);
        const HTREEITEM parent = isBelow || item == nullptr ? item : tree.GetParentItem(item);
        tree.InsertItem(random.Pick(Names), image, image, parent == nullptr ? TVI_ROOT : parent,
                        isBelow           ? TVI_SORT
                        : item == nullptr ? TVI_FIRST
                                          : item);
    }

    // ---- The owner

    LRESULT Answer(const OwnerMessage& told)
    {
        // Items that an undo deletes are told of amid the step, which changes would end.
        const bool isAmidUndo = current == nullptr && told.message == TDM_ITEM_DELETED;
        if (mutating != nullptr && !isAmidUndo && mutating->OneIn(3) && depth < 2)
        {
            ++depth;
            if (mutating->OneIn(4) && told.message == TDM_ITEM_INSERTED)
                tree.SetItemText(told.item, L"told");
            else if (mutating->OneIn(6))
                mutating->OneIn(2) ? tree.MoveItemUp() : tree.MoveItemDown();
            else if (told.message != TDM_BEGIN_LABEL_EDIT)
                Change(*mutating);
            --depth;
        }
        if (told.message == TDM_BEGIN_LABEL_EDIT && current != nullptr && current->OneIn(8))
            *reinterpret_cast<LRESULT*>(told.place) = TRUE;
        return told.message == TDM_DROP_QUERY && current != nullptr && current->OneIn(8);
    }

    CImageList images;
    TreeOwner owner;
    DragTree tree;
    MessageBoxProbe boxes;
    TGUndoStack* watchedBy = nullptr;
    fuzz::Random* current = nullptr;
    fuzz::Random* mutating = nullptr;
    int depth = 0;
};

} // namespace

void AddTree(UndoWorld& world)
{
    world.subjects.push_back(std::make_unique<TreeSubject>());
}

} // namespace quor::test
