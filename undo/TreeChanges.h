// TreeChanges: the changes of a tree that an undo stack keeps.
#pragma once

#include "undo/TreeItems.h"
#include "undo/UndoChange.h"

#include <vector>

namespace QuorUiCtr
{

class TreeUndo;

// A change that fits as long as nobody else has changed the same aspects of the same items.
class TreeChange : public UndoChange
{
public:
    explicit TreeChange(TreeUndo& changedTree);
    ~TreeChange() override;

    // The change has just been made, or taken back, to that aspect.
    void Mark(TreeId id, TreeAspect aspect);
    bool Fits() const override;

protected:
    struct Marked
    {
        TreeId id;
        TreeAspect aspect;
        TreeMark before;
        TreeMark after;
    };

    // The aspects are as before again; `reverse` is what takes that back. Hands it over.
    void HandBack(std::unique_ptr<TreeChange> reverse);
    // Takes over the marks of the change that follows.
    void JoinMarks(const TreeChange& next);
    std::size_t GetMarkBytes() const { return marks.capacity() * sizeof(Marked); }

    TreeUndo& tree;

private:
    void Keep(const Marked& marked);

    std::vector<Marked> marks;
};

// A place among siblings: behind `after`, or first for NoTreeId.
struct TreePlace
{
    TreeId parent = RootTreeId;
    TreeId after = NoTreeId;
};

// How an item shows that it has children, which the platform changes when the first comes or the last goes.
struct TreeParentLooks
{
    bool isOpen = false;
    int children = 0;
};

// Items have come in, have left, or one has moved.
class TreePlacing : public TreeChange
{
public:
    enum class Kind
    {
        Inserted,
        Removed,
        Moved
    };

    TreePlacing(TreeUndo& changedTree, Kind placingKind) : TreeChange(changedTree), kind(placingKind) {}
    ~TreePlacing() override;

    // The items on top.
    std::vector<TreeId> tops;
    // Where they were; of no account for items that have come in.
    TreePlace place;
    // What was deleted.
    KeptItems kept;
    // How the parent looked before, for a move also the other one.
    TreeId parent = RootTreeId;
    TreeParentLooks parentLooks;
    TreeId otherParent = RootTreeId;
    TreeParentLooks otherLooks;
    // Item data are in the tree as well.
    bool isShared = false;
    // Belongs to a move that is still going on: what follows is not joined to it.
    bool isPending = false;

    // The item that has come in took the place of another one, which has just gone.
    void BecomeMove(TreeId item, TreePlace from);
    // What was kept has not gone.
    void Disarm() { isShared = true; }

    bool Revert() override;
    std::size_t GetBytes() const override;
    bool Merge(UndoChange& next) override;
    long GetNumber() const override;

private:
    bool TakeOut();
    bool PutBack();
    bool MoveBack();

    Kind kind;
};

// Text, images, states and item data of an item are others.
class TreeItemChange : public TreeChange
{
public:
    TreeItemChange(TreeUndo& changedTree, TreeId changedItem) : TreeChange(changedTree), item(changedItem) {}

    TreeId Item() const { return item; }
    // Those parts (TVIF_ bits) were like that before.
    void Keep(UINT changedParts, const TreeItemReader& before);

    bool Revert() override;
    std::size_t GetBytes() const override;
    bool Merge(UndoChange& next) override;

private:
    TreeId item;
    UINT parts = 0;
    bool isTextAsked = false;
    CString text;
    TreeItemLooks looks;
};

// The children of an item have another order.
class TreeSorting : public TreeChange
{
public:
    TreeSorting(TreeUndo& changedTree, TreeId sortedParent, std::vector<TreeId> orderBefore)
        : TreeChange(changedTree), parent(sortedParent), order(std::move(orderBefore))
    {
    }

    bool Revert() override;
    std::size_t GetBytes() const override;

private:
    TreeId parent;
    std::vector<TreeId> order;
};

// An item was expanded or collapsed.
class TreeExpanding : public TreeChange
{
public:
    TreeExpanding(TreeUndo& changedTree, TreeId expandedItem, bool openBefore)
        : TreeChange(changedTree), item(expandedItem), wasOpen(openBefore)
    {
    }

    // It never hinders: what is open is not data.
    bool Fits() const override { return true; }
    bool Revert() override;
    std::size_t GetBytes() const override { return sizeof(TreeExpanding); }
    bool IsView() const override { return true; }

private:
    TreeId item;
    bool wasOpen;
};

} // namespace QuorUiCtr
