// TreeWatch: notes what becomes of a tree while code of its owner runs.
#pragma once

#include "rules/ListedWatch.h"

#include <afxwin.h>
#include <afxcmn.h>

#include <unordered_set>

namespace QuorUiCtr
{

// A message to the owner may delete items, or the whole tree. An operation that goes on after it holds a
// watch over the call and asks.
class TreeWatch : private ListedWatch<TreeWatch>
{
public:
    // `newestOfTree` is where the tree keeps its newest watch; null there means none.
    explicit TreeWatch(TreeWatch*& newestOfTree) : ListedWatch(newestOfTree) {}

    // The window of the tree was destroyed since the watch began; the tree object may be gone as well.
    bool IsTreeGone() const { return IsOwnerGone(); }
    // The tree or the item is gone. A null item counts as gone.
    bool IsGone(HTREEITEM item) const;

    // For the tree: tells all its watches.
    static void NoteDeletedItem(TreeWatch* newest, HTREEITEM item);
    static void NoteTreeGone(TreeWatch*& newest) { NoteOwnerGone(newest); }

private:
    friend class ListedWatch<TreeWatch>;

    std::unordered_set<HTREEITEM> deleted;
};

} // namespace QuorUiCtr
