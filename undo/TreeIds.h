// TreeIds: numbers for the items of a tree that stay while handles change, and marks of what became of them.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <cstdint>
#include <unordered_map>

namespace QuorUiCtr
{

using TreeId = std::uint64_t;

constexpr TreeId NoTreeId = 0;
// Stands for TVI_ROOT.
constexpr TreeId RootTreeId = 1;

// What of an item changes by itself: a history is only true while nobody else changed the same.
enum class TreeAspect : unsigned
{
    Text,
    // Images, states, item data and the like.
    Looks,
    // Which children there are, in which order.
    Children
};

constexpr unsigned TreeAspectCount = 3;

// Stands for one value of an aspect: while the mark of an item's text is the same, so is the text.
using TreeMark = std::uint64_t;

class TreeIds
{
public:
    // The number of an item in the tree, which gets one now if it has none; the root's for TVI_ROOT and null.
    TreeId IdOf(HTREEITEM item);
    // The same without giving numbers: NoTreeId for an item that nothing was kept of.
    TreeId FindId(HTREEITEM item) const;
    // Null for an item that is not in the tree now.
    HTREEITEM ItemOf(TreeId id) const;
    // From now on `item` is the item of that number.
    void Bind(TreeId id, HTREEITEM item);
    // The handle is nobody's any more; the number may get another one.
    void Unbind(HTREEITEM item);

    TreeMark GetMark(TreeId id, TreeAspect aspect) const;
    void SetMark(TreeId id, TreeAspect aspect, TreeMark mark);
    // The mark of an item that is not in the tree is kept as long as somebody compares it with one of before.
    void UseMark(TreeId id, TreeAspect aspect);
    void ReleaseMark(TreeId id, TreeAspect aspect);
    // A mark that there was never before.
    TreeMark NewMark() { return ++newestMark; }
    // Somebody changed it without leave: what was kept about it is not true any more.
    void Touch(TreeId id, TreeAspect aspect) { SetMark(id, aspect, NewMark()); }
    void TouchAll(TreeId id);

    // Nothing is known of the tree any more: no number has an item, and no mark is as it was.
    void Clear();

private:
    struct Kept
    {
        TreeMark mark;
        long users;
    };

    bool IsThere(TreeId id) const { return id == RootTreeId || items.contains(id); }
    void DropUnused(TreeId id, TreeAspect aspect);
    // The number has no item any more.
    void Lose(TreeId id);
    static std::uint64_t KeyOf(TreeId id, TreeAspect aspect)
    {
        return id * TreeAspectCount + static_cast<unsigned>(aspect);
    }

    std::unordered_map<HTREEITEM, TreeId> ids;
    std::unordered_map<TreeId, HTREEITEM> items;
    std::unordered_map<std::uint64_t, Kept> marks;
    TreeId newestId = RootTreeId;
    TreeMark newestMark = 0;
    // Of all aspects that were never marked.
    TreeMark usualMark = 0;
};

} // namespace QuorUiCtr
