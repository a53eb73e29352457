// Reading, keeping and making of items.
#include "undo/TreeItems.h"

#include "undo/TreeUndo.h"

#include <algorithm>
#include <climits>
#include <cwchar>

namespace QuorUiCtr
{

namespace
{

constexpr std::size_t UsualText = 260;
// Comes back for a part that the platform's version of the tree does not know.
constexpr int UnknownPart = INT_MIN;
constexpr UINT ReadStates = TreeLookStates | TreeOpenStates;

// An item as the messages want it.
TVITEMEXW RecordOf(HTREEITEM item, UINT parts, const TreeItemLooks& looks)
{
    TVITEMEXW record = {};
    record.mask = TVIF_HANDLE | parts;
    record.hItem = item;
    record.iImage = looks.image;
    record.iSelectedImage = looks.selectedImage;
    record.iExpandedImage = looks.expandedImage;
    record.iIntegral = looks.integral;
    record.cChildren = looks.children;
    record.state = looks.state;
    record.stateMask = TreeLookStates;
    record.uStateEx = looks.stateEx;
    record.lParam = looks.data;
    if (looks.expandedImage == UnknownPart)
        record.mask &= ~static_cast<UINT>(TVIF_EXPANDEDIMAGE);
    return record;
}

// The platform only reads it.
wchar_t* MessageText(const wchar_t* text)
{
    return text == nullptr ? LPSTR_TEXTCALLBACKW : const_cast<wchar_t*>(text);
}

} // namespace

UINT TreeItemLooks::PartsUnlike(const TreeItemLooks& other, UINT parts) const
{
    const std::pair<UINT, bool> all[] = {
        {TVIF_IMAGE, image != other.image},
        {TVIF_SELECTEDIMAGE, selectedImage != other.selectedImage},
        {TVIF_EXPANDEDIMAGE, expandedImage != other.expandedImage},
        {TVIF_INTEGRAL, integral != other.integral},
        {TVIF_CHILDREN, children != other.children},
        {TVIF_STATE, ((state ^ other.state) & TreeLookStates) != 0},
        {TVIF_STATEEX, stateEx != other.stateEx},
        {TVIF_PARAM, data != other.data},
    };
    UINT unlike = 0;
    for (const auto& [part, isOther] : all)
        if (isOther && (parts & part) != 0)
            unlike |= part;
    return unlike;
}

// ---- Reading

TreeItemReader::TreeItemReader(TreeUndo& readTree) : tree(readTree), buffer(UsualText) {}

bool TreeItemReader::Fetch(TVITEMEXW& item)
{
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(buffer.size());
    return tree.AskTree(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) != 0;
}

bool TreeItemReader::Read(HTREEITEM item, UINT parts)
{
    TVITEMEXW record = {};
    record.mask = TVIF_HANDLE | parts;
    record.hItem = item;
    record.stateMask = ReadStates;
    record.iExpandedImage = UnknownPart;
    tree.askedParts = 0;
    if (!Fetch(record))
        return false;
    while ((parts & TVIF_TEXT) != 0 && std::wcslen(record.pszText) + 1 >= buffer.size())
    {
        buffer.resize(buffer.size() * 2);
        if (!Fetch(record))
            return false;
    }
    const UINT asked = tree.askedParts;
    text = (parts & TVIF_TEXT) != 0 ? record.pszText : L"";
    isTextAsked = (asked & TVIF_TEXT) != 0;
    looks.image = (asked & TVIF_IMAGE) != 0 ? I_IMAGECALLBACK : record.iImage;
    looks.selectedImage = (asked & TVIF_SELECTEDIMAGE) != 0 ? I_IMAGECALLBACK : record.iSelectedImage;
    looks.expandedImage = (asked & TVIF_EXPANDEDIMAGE) != 0 ? I_IMAGECALLBACK : record.iExpandedImage;
    looks.children = (asked & TVIF_CHILDREN) != 0 ? I_CHILDRENCALLBACK : record.cChildren;
    looks.integral = record.iIntegral;
    looks.state = record.state & ReadStates;
    looks.stateEx = record.uStateEx;
    looks.data = record.lParam;
    return true;
}

void WriteTreeItem(TreeUndo& tree, HTREEITEM item, UINT parts, const TreeItemLooks& looks,
                   const wchar_t* text)
{
    TVITEMEXW record = RecordOf(item, parts, looks);
    record.pszText = MessageText(text);
    tree.AskTree(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&record));
}

// ---- Keeping

std::size_t KeptItems::GetBytes() const
{
    return items.capacity() * sizeof(KeptItem) + texts.capacity() * sizeof(wchar_t);
}

// Without recursion, because trees may be deep.
bool KeptItems::Keep(TreeUndo& tree, const std::vector<HTREEITEM>& tops)
{
    TreeItemReader reader(tree);
    for (const HTREEITEM top : tops)
    {
        if (!KeepItem(reader, tree, top, 0))
            return false;
        std::vector<HTREEITEM> path = {top};
        HTREEITEM item = tree.Next(top, TVGN_CHILD);
        while (!path.empty())
        {
            if (item == nullptr)
            {
                item = path.size() > 1 ? tree.Next(path.back(), TVGN_NEXT) : nullptr;
                path.pop_back();
                continue;
            }
            if (!KeepItem(reader, tree, item, static_cast<unsigned>(path.size())))
                return false;
            path.push_back(item);
            item = tree.Next(item, TVGN_CHILD);
        }
    }
    items.shrink_to_fit();
    texts.shrink_to_fit();
    return true;
}

bool KeptItems::KeepItem(TreeItemReader& reader, TreeUndo& tree, HTREEITEM item, unsigned level)
{
    if (!reader.Read(item, TVIF_TEXT | TreeLookParts))
        return false;
    items.push_back(
        {item, tree.Ids().FindId(item), level, reader.IsTextAsked(), texts.size(), reader.Looks()});
    if (!reader.IsTextAsked())
        texts.append(reader.Text());
    texts.push_back(L'\0');
    return true;
}

// ---- Making

bool KeptItems::HasChildren(std::size_t i) const
{
    return i + 1 < items.size() && items[i + 1].level > items[i].level;
}

HTREEITEM KeptItems::Insert(TreeUndo& tree, const KeptItem& kept, HTREEITEM parent, HTREEITEM after) const
{
    TVINSERTSTRUCTW insertion = {};
    insertion.hParent = parent;
    insertion.hInsertAfter = after;
    const UINT parts = TVIF_TEXT | (TreeLookParts & ~static_cast<UINT>(TVIF_CHILDREN));
    insertion.itemex = RecordOf(nullptr, parts, kept.looks);
    insertion.itemex.mask &= ~static_cast<UINT>(TVIF_HANDLE);
    insertion.itemex.pszText = MessageText(kept.isTextAsked ? nullptr : texts.data() + kept.textAt);
    // An item that is expanded before it has children costs no further message, and tells nobody.
    insertion.itemex.stateMask = ReadStates;
    return reinterpret_cast<HTREEITEM>(
        tree.AskTree(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
}

// What the platform makes of an item by itself: a button when there are children, a check box of its own.
void KeptItems::Complete(TreeUndo& tree, std::size_t i, HTREEITEM item) const
{
    const TreeItemLooks& looks = items[i].looks;
    if (looks.children != (HasChildren(i) ? 1 : 0))
        WriteTreeItem(tree, item, TVIF_CHILDREN, looks, nullptr);
    if (tree.HasCheckBoxes())
        WriteTreeItem(tree, item, TVIF_STATE, looks, nullptr);
}

bool KeptItems::PutBack(TreeUndo& tree, HTREEITEM parent, HTREEITEM after, NewHandles& made) const
{
    std::vector<HTREEITEM> path;
    HTREEITEM previousTop = after;
    made.clear();
    made.reserve(items.size());
    for (const KeptItem& kept : items)
    {
        path.resize(kept.level);
        const bool isTop = path.empty();
        const HTREEITEM item =
            Insert(tree, kept, isTop ? parent : path.back(), isTop ? previousTop : TVI_LAST);
        if (item == nullptr)
        {
            for (std::size_t i = made.size(); i-- > 0;)
                if (items[i].level == 0)
                    tree.AskTree(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(made[i].second));
            return false;
        }
        if (isTop)
            previousTop = item;
        path.push_back(item);
        made.emplace_back(kept.handle, item);
    }
    for (std::size_t i = 0; i < items.size(); ++i)
    {
        Complete(tree, i, made[i].second);
        if (items[i].id != NoTreeId)
            tree.Ids().Bind(items[i].id, made[i].second);
    }
    return true;
}

} // namespace QuorUiCtr
