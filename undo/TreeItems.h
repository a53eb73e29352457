// TreeItems: items of a tree with everything below them, kept outside of it and put back.
#pragma once

#include "undo/TreeIds.h"

#include <afxwin.h>
#include <afxcmn.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

class TreeUndo;

// What a tree has of an item, its text apart. Values that the owner is asked for are kept as such.
struct TreeItemLooks
{
    int image = 0;
    int selectedImage = 0;
    int expandedImage = 0;
    int integral = 1;
    // The button: there are children, or will be.
    int children = 0;
    UINT state = 0;
    UINT stateEx = 0;
    LPARAM data = 0;

    // Those of the parts in a mask of TVIF_ bits that are not the same.
    UINT PartsUnlike(const TreeItemLooks& other, UINT parts) const;
};

// States that belong to an item, not to what is shown at the moment.
constexpr UINT TreeLookStates =
    TVIS_CUT | TVIS_BOLD | TVIS_EXPANDPARTIAL | TVIS_OVERLAYMASK | TVIS_STATEIMAGEMASK;
constexpr UINT TreeOpenStates = TVIS_EXPANDED | TVIS_EXPANDEDONCE;
constexpr UINT TreeLookParts = TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_EXPANDEDIMAGE | TVIF_INTEGRAL |
                               TVIF_CHILDREN | TVIF_STATE | TVIF_STATEEX | TVIF_PARAM;

// Reads items one after the other.
class TreeItemReader
{
public:
    explicit TreeItemReader(TreeUndo& readTree);

    // Reads parts (TVIF_ bits) of an item; false when there is no such item.
    bool Read(HTREEITEM item, UINT parts);
    const TreeItemLooks& Looks() const { return looks; }
    // As long as nothing else is read.
    const wchar_t* Text() const { return text; }
    // The text is not the item's: its owner is asked for it.
    bool IsTextAsked() const { return isTextAsked; }

private:
    bool Fetch(TVITEMEXW& item);

    TreeUndo& tree;
    std::vector<wchar_t> buffer;
    const wchar_t* text = L"";
    bool isTextAsked = false;
    TreeItemLooks looks;
};

// Sets those parts of an item. A null text means one that the owner is asked for.
void WriteTreeItem(TreeUndo& tree, HTREEITEM item, UINT parts, const TreeItemLooks& looks,
                   const wchar_t* text);

// An item that was in the tree.
struct KeptItem
{
    HTREEITEM handle = nullptr; // it had
    TreeId id = NoTreeId;       // when it has one
    unsigned level = 0;         // below the items on top
    bool isTextAsked = false;
    std::size_t textAt = 0;
    TreeItemLooks looks = {};
};

// Siblings that stand side by side, with everything below them, in the order of the tree.
class KeptItems
{
public:
    bool IsEmpty() const { return items.empty(); }
    const std::vector<KeptItem>& All() const { return items; }
    std::size_t GetBytes() const;

    // Copies them out of the tree, where they stay.
    bool Keep(TreeUndo& tree, const std::vector<HTREEITEM>& tops);
    // The old handle and the new one.
    using NewHandles = std::vector<std::pair<HTREEITEM, HTREEITEM>>;
    // Makes them again behind `after` (TVI_FIRST: as first ones) under `parent`; their numbers go over.
    // False: it failed, and nothing of them is left.
    bool PutBack(TreeUndo& tree, HTREEITEM parent, HTREEITEM after, NewHandles& made) const;

private:
    bool KeepItem(TreeItemReader& reader, TreeUndo& tree, HTREEITEM item, unsigned level);
    HTREEITEM Insert(TreeUndo& tree, const KeptItem& kept, HTREEITEM parent, HTREEITEM after) const;
    void Complete(TreeUndo& tree, std::size_t i, HTREEITEM item) const;
    bool HasChildren(std::size_t i) const;

    std::vector<KeptItem> items;
    std::wstring texts;
};

} // namespace QuorUiCtr
