// TreeWatch: notes what becomes of a tree while code of its owner runs.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <unordered_set>

namespace QuorUiCtr
{

// A message to the owner may delete items, or the whole tree. An operation that goes on after it holds a
// watch over the call and asks. Watches are local variables: they end in the opposite order of their
// beginning.
class TreeWatch
{
public:
    // `newest` is where the tree keeps its newest watch; null there means none.
    explicit TreeWatch(TreeWatch*& newest);
    ~TreeWatch();
    TreeWatch(const TreeWatch&) = delete;
    TreeWatch& operator=(const TreeWatch&) = delete;

    // The window of the tree was destroyed since the watch began; the tree object may be gone as well.
    bool IsTreeGone() const { return newestOfTree == nullptr; }
    // The tree or the item is gone. A null item counts as gone.
    bool IsGone(HTREEITEM item) const;

    // For the tree: tells all its watches.
    static void NoteDeletedItem(TreeWatch* newest, HTREEITEM item);
    static void NoteTreeGone(TreeWatch*& newest);

private:
    TreeWatch** newestOfTree; // null once the tree is gone
    TreeWatch* older;
    std::unordered_set<HTREEITEM> deleted;
};

} // namespace QuorUiCtr
