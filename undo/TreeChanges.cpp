// Taking changes of a tree back.
#include "undo/TreeChanges.h"

#include "undo/TGTreeUndoHost.h"
#include "undo/TreeUndo.h"
#include "undo/UndoHistory.h"

#include <memory>
#include <utility>

namespace QuorUiCtr
{

namespace
{

// The platform changes how an item looks when its first child comes or its last one goes. What it was before
// the change comes back with it.
class ParentTransition
{
public:
    ParentTransition(TreeUndo& changedTree, TreeId parentItem)
        : tree(changedTree), parent(parentItem), hadChildren(HasChildren())
    {
    }
    void Finish(const TreeParentLooks& looks) const
    {
        if (parent != RootTreeId && HasChildren() != hadChildren)
            tree.RestoreLooks(parent, looks);
    }

private:
    bool HasChildren() const
    {
        const HTREEITEM item = tree.Ids().ItemOf(parent);
        return parent != RootTreeId && item != nullptr && tree.Next(item, TVGN_CHILD) != nullptr;
    }

    TreeUndo& tree;
    TreeId parent;
    bool hadChildren;
};

int CALLBACK CompareRanks(LPARAM first, LPARAM second, LPARAM)
{
    return first < second ? -1 : first > second ? 1 : 0;
}

std::size_t BytesOfText(const CString& text)
{
    return static_cast<std::size_t>(text.GetLength()) * sizeof(wchar_t);
}

} // namespace

// ---- Marks

TreeChange::TreeChange(TreeUndo& changedTree) : UndoChange(changedTree), tree(changedTree) {}

TreeChange::~TreeChange()
{
    for (const Marked& marked : marks)
        tree.Ids().ReleaseMark(marked.id, marked.aspect);
}

void TreeChange::Keep(const Marked& marked)
{
    marks.push_back(marked);
    tree.Ids().UseMark(marked.id, marked.aspect);
}

void TreeChange::Mark(TreeId id, TreeAspect aspect)
{
    TreeIds& ids = tree.Ids();
    const TreeMark mark = ids.NewMark();
    for (Marked& marked : marks)
        if (marked.id == id && marked.aspect == aspect)
        {
            marked.after = mark;
            ids.SetMark(id, aspect, mark);
            return;
        }
    Keep({id, aspect, ids.GetMark(id, aspect), mark});
    ids.SetMark(id, aspect, mark);
}

bool TreeChange::Fits() const
{
    for (const Marked& marked : marks)
        if (tree.Ids().GetMark(marked.id, marked.aspect) != marked.after)
            return false;
    return tree.Tree() != nullptr;
}

void TreeChange::HandBack(std::unique_ptr<TreeChange> reverse)
{
    for (const Marked& marked : marks)
    {
        tree.Ids().SetMark(marked.id, marked.aspect, marked.before);
        reverse->Keep({marked.id, marked.aspect, marked.after, marked.before});
    }
    tree.History().RecordBack(std::move(reverse));
}

void TreeChange::JoinMarks(const TreeChange& next)
{
    for (const Marked& other : next.marks)
    {
        bool isKnown = false;
        for (Marked& marked : marks)
            if (marked.id == other.id && marked.aspect == other.aspect)
            {
                marked.after = other.after;
                isKnown = true;
            }
        if (!isKnown)
            Keep(other);
    }
}

// ---- Items that come, go and move

TreePlacing::~TreePlacing()
{
    tree.ForgetInsertion(this);
    TGTreeUndoHost* const host = isShared ? nullptr : tree.Host();
    if (host == nullptr)
        return;
    for (const KeptItem& item : kept.All())
        if (item.looks.data != 0)
            host->OnItemDataGone(tree.Watched(), static_cast<DWORD_PTR>(item.looks.data));
}

std::size_t TreePlacing::GetBytes() const
{
    return sizeof(TreePlacing) + kept.GetBytes() + tops.capacity() * sizeof(TreeId) + GetMarkBytes();
}

long TreePlacing::GetNumber() const
{
    const std::size_t number = kind == Kind::Removed ? kept.All().size() : tops.size();
    return static_cast<long>(number);
}

void TreePlacing::BecomeMove(TreeId item, TreePlace from)
{
    kind = Kind::Moved;
    tops = {item};
    place = from;
    isPending = false;
    otherParent = from.parent;
}

// The text of an item that has come in is kept when it goes.
bool TreePlacing::Merge(UndoChange& next)
{
    const auto* change = dynamic_cast<const TreeItemChange*>(&next);
    if (kind != Kind::Inserted || isPending || change == nullptr || tops.back() != change->Item())
        return false;
    JoinMarks(*change);
    return true;
}

bool TreePlacing::Revert()
{
    switch (kind)
    {
    case Kind::Inserted:
        return TakeOut();
    case Kind::Removed:
        return PutBack();
    default:
        return MoveBack();
    }
}

bool TreePlacing::TakeOut()
{
    std::vector<HTREEITEM> items;
    for (const TreeId top : tops)
        items.push_back(tree.Ids().ItemOf(top));
    if (!tree.TellGoing(items) || !Fits())
        return false;
    auto reverse = std::make_unique<TreePlacing>(tree, Kind::Removed);
    reverse->tops = tops;
    reverse->isShared = true; // until the items are gone
    reverse->place = tree.PlaceOf(items.front());
    reverse->parent = reverse->place.parent;
    reverse->parentLooks = tree.LooksOf(reverse->parent);
    if (!reverse->kept.Keep(tree, items))
        return false;
    const ParentTransition transition(tree, reverse->parent);
    for (const HTREEITEM item : items)
        if (!tree.Delete(item))
            return false;
    transition.Finish(parentLooks);
    reverse->isShared = isShared;
    HandBack(std::move(reverse));
    return true;
}

bool TreePlacing::PutBack()
{
    HTREEITEM parentItem = nullptr;
    HTREEITEM after = nullptr;
    if (!tree.FindPlace(place, parentItem, after))
        return false;
    auto reverse = std::make_unique<TreePlacing>(tree, Kind::Inserted);
    reverse->tops = tops;
    reverse->parent = place.parent;
    reverse->parentLooks = tree.LooksOf(place.parent);
    reverse->isShared = isShared;
    const ParentTransition transition(tree, place.parent);
    KeptItems::NewHandles made;
    if (!kept.PutBack(tree, parentItem, after, made))
        return false;
    transition.Finish(parentLooks);
    for (const auto& [before, now] : made)
    {
        const TreeId id = tree.Ids().IdOf(now);
        tree.TellLater(TreeUndo::Word::Remade, id, before);
        tree.TellLater(TreeUndo::Word::Inserted, id);
    }
    isShared = true; // they are in the tree
    HandBack(std::move(reverse));
    return !tree.TakeInterference();
}

bool TreePlacing::MoveBack()
{
    const HTREEITEM original = tree.Ids().ItemOf(tops.front());
    HTREEITEM parentItem = nullptr;
    HTREEITEM after = nullptr;
    KeptItems moved;
    if (original == nullptr || !tree.FindPlace(place, parentItem, after) || !moved.Keep(tree, {original}))
        return false;
    auto reverse = std::make_unique<TreePlacing>(tree, Kind::Moved);
    reverse->tops = tops;
    reverse->place = tree.PlaceOf(original);
    reverse->parent = parent;
    reverse->parentLooks = tree.LooksOf(parent);
    reverse->otherParent = otherParent;
    reverse->otherLooks = tree.LooksOf(otherParent);
    const ParentTransition transition(tree, parent);
    const ParentTransition other(tree, otherParent);
    KeptItems::NewHandles made;
    if (!moved.PutBack(tree, parentItem, after, made))
        return false;
    const bool isDone = tree.Delete(original);
    transition.Finish(parentLooks);
    other.Finish(otherLooks);
    for (const auto& [before, now] : made)
        tree.TellLater(TreeUndo::Word::Remade, tree.Ids().IdOf(now), before);
    tree.TellLater(TreeUndo::Word::Inserted, tops.front());
    HandBack(std::move(reverse));
    return isDone;
}

// ---- Items that are others

void TreeItemChange::Keep(UINT changedParts, const TreeItemReader& before)
{
    parts = changedParts;
    looks = before.Looks();
    isTextAsked = before.IsTextAsked();
    if ((parts & TVIF_TEXT) != 0 && !isTextAsked)
        text = before.Text();
    if ((parts & TVIF_TEXT) != 0)
        Mark(item, TreeAspect::Text);
    if ((parts & ~static_cast<UINT>(TVIF_TEXT)) != 0)
        Mark(item, TreeAspect::Looks);
}

std::size_t TreeItemChange::GetBytes() const
{
    return sizeof(TreeItemChange) + BytesOfText(text) + GetMarkBytes();
}

bool TreeItemChange::Merge(UndoChange& next)
{
    auto* change = dynamic_cast<TreeItemChange*>(&next);
    if (change == nullptr || change->item != item || (change->parts & ~parts) != 0)
        return false;
    JoinMarks(*change);
    return true;
}

bool TreeItemChange::Revert()
{
    const HTREEITEM handle = tree.Ids().ItemOf(item);
    TreeItemReader now(tree);
    if (handle == nullptr || !now.Read(handle, parts))
        return false;
    auto reverse = std::make_unique<TreeItemChange>(tree, item);
    reverse->parts = parts;
    reverse->looks = now.Looks();
    reverse->isTextAsked = now.IsTextAsked();
    if ((parts & TVIF_TEXT) != 0 && !now.IsTextAsked())
        reverse->text = now.Text();
    WriteTreeItem(tree, handle, parts, looks, isTextAsked ? nullptr : text.GetString());
    if ((parts & TVIF_TEXT) != 0)
        tree.TellLater(TreeUndo::Word::Renamed, item);
    if ((parts & ~static_cast<UINT>(TVIF_TEXT)) != 0)
        tree.TellLater(TreeUndo::Word::Changed, item);
    HandBack(std::move(reverse));
    return true;
}

// ---- Order

std::size_t TreeSorting::GetBytes() const
{
    return sizeof(TreeSorting) + order.capacity() * sizeof(TreeId) + GetMarkBytes();
}

// The platform sorts by item data: for that time they are the places.
bool TreeSorting::Revert()
{
    const HTREEITEM parentItem = tree.Ids().ItemOf(parent);
    if (parentItem == nullptr)
        return false;
    const std::vector<HTREEITEM> children = tree.ChildrenOf(parentItem);
    std::vector<TreeId> orderNow;
    orderNow.reserve(children.size());
    for (const HTREEITEM child : children)
        orderNow.push_back(tree.Ids().IdOf(child));
    if (orderNow.size() != order.size())
        return false;
    TreeItemReader reader(tree);
    std::vector<std::pair<HTREEITEM, TreeItemLooks>> data;
    for (std::size_t i = 0; i < order.size(); ++i)
    {
        const HTREEITEM item = tree.Ids().ItemOf(order[i]);
        if (item == nullptr || !reader.Read(item, TVIF_PARAM))
            return false;
        data.emplace_back(item, reader.Looks());
    }
    for (std::size_t i = 0; i < data.size(); ++i)
    {
        TreeItemLooks rank;
        rank.data = static_cast<LPARAM>(i);
        WriteTreeItem(tree, data[i].first, TVIF_PARAM, rank, nullptr);
    }
    TVSORTCB sorting = {parentItem, CompareRanks, 0};
    tree.AskTree(TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(&sorting));
    for (const auto& [item, looks] : data)
        WriteTreeItem(tree, item, TVIF_PARAM, looks, nullptr);
    tree.TellLater(TreeUndo::Word::Sorted, parent);
    HandBack(std::make_unique<TreeSorting>(tree, parent, std::move(orderNow)));
    return true;
}

bool TreeExpanding::Revert()
{
    const HTREEITEM handle = tree.Ids().ItemOf(item);
    if (handle == nullptr)
        return tree.Tree() != nullptr;
    auto reverse = std::make_unique<TreeExpanding>(tree, item, tree.IsOpen(handle));
    tree.SetOpen(handle, wasOpen);
    HandBack(std::move(reverse));
    return true;
}

} // namespace QuorUiCtr
