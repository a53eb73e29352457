// The watch of a tree: its life, what its changes need, and what it does around a step that is taken back.
#include "undo/TreeUndo.h"

#include "grid/model/ScopedValue.h"
#include "treedrag/TreeWatch.h"
#include "undo/TGTreeUndoHost.h"
#include "undo/UndoHistory.h"

#include <algorithm>
#include <set>

namespace QuorUiCtr
{

namespace
{

// What a tree shows: the selected item, the first one in view, and how far it is scrolled sideways.
struct TreeView : UndoView
{
    TreeView(TreeId selectedItem, TreeId firstItem, int leftPosition)
        : selected(selectedItem), first(firstItem), left(leftPosition)
    {
    }

    TreeId selected;
    TreeId first;
    int left;
};

} // namespace

TGTreeUndoHost::~TGTreeUndoHost() = default;
void TGTreeUndoHost::OnItemRemade(CTreeCtrlDrag&, HTREEITEM, HTREEITEM) {}
void TGTreeUndoHost::OnItemChanged(CTreeCtrlDrag&, HTREEITEM) {}
void TGTreeUndoHost::OnItemsSorted(CTreeCtrlDrag&, HTREEITEM) {}
void TGTreeUndoHost::OnItemDataGone(CTreeCtrlDrag&, DWORD_PTR) {}

// ---- Life

TreeUndo::TreeUndo(UndoHistory& keptIn, CTreeCtrlDrag& watchedTree, TGTreeUndoHost* toldHost)
    : history(keptIn),
      watched(watchedTree),
      tree(&watchedTree),
      window(watchedTree.GetSafeHwnd()),
      host(toldHost)
{
}

std::shared_ptr<TreeUndo> TreeUndo::Watch(UndoHistory& history, CTreeCtrlDrag& tree, TGTreeUndoHost* host)
{
    if (tree.GetSafeHwnd() == nullptr || WatcherOf(tree) != nullptr)
        return nullptr;
    std::shared_ptr<TreeUndo> watch(new TreeUndo(history, tree, host));
    SetWatcher(tree, watch.get());
    return watch;
}

TreeUndo::~TreeUndo()
{
    Leave();
}

void TreeUndo::Leave()
{
    if (tree == nullptr)
        return;
    SetWatcher(*tree, nullptr);
    tree = nullptr;
    ids.Clear();
    words.clear();
    moves.clear();
    history.Remove(*this);
    // Nobody tells of their ends any more.
    for (std::size_t open = std::exchange(actions, {}).size(); open > 0; --open)
        history.EndStep();
}

// ---- What changes need

LRESULT TreeUndo::AskTree(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (tree == nullptr)
        return 0;
    const ScopedValue mine(own, true);
    return ::SendMessage(window, message, wParam, lParam);
}

HTREEITEM TreeUndo::Next(HTREEITEM item, UINT code)
{
    return reinterpret_cast<HTREEITEM>(AskTree(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM TreeUndo::ParentOf(HTREEITEM item)
{
    const HTREEITEM parent = Next(item, TVGN_PARENT);
    return parent == nullptr ? TVI_ROOT : parent;
}

std::vector<HTREEITEM> TreeUndo::ChildrenOf(HTREEITEM parent)
{
    const bool isRoot = parent == nullptr || parent == TVI_ROOT;
    std::vector<HTREEITEM> children;
    HTREEITEM child = isRoot ? Next(nullptr, TVGN_ROOT) : Next(parent, TVGN_CHILD);
    for (; child != nullptr; child = Next(child, TVGN_NEXT))
        children.push_back(child);
    return children;
}

TreePlace TreeUndo::PlaceOf(HTREEITEM item, HTREEITEM skipped)
{
    HTREEITEM after = Next(item, TVGN_PREVIOUS);
    if (after != nullptr && after == skipped)
        after = Next(after, TVGN_PREVIOUS);
    return {ids.IdOf(ParentOf(item)), after == nullptr ? NoTreeId : ids.IdOf(after)};
}

bool TreeUndo::FindPlace(const TreePlace& place, HTREEITEM& parent, HTREEITEM& after)
{
    parent = ids.ItemOf(place.parent);
    after = place.after == NoTreeId ? TVI_FIRST : ids.ItemOf(place.after);
    return tree != nullptr && parent != nullptr && after != nullptr &&
           (after == TVI_FIRST || ParentOf(after) == parent);
}

TreeParentLooks TreeUndo::LooksOf(TreeId parent)
{
    TreeItemReader reader(*this);
    if (parent == RootTreeId || !reader.Read(ids.ItemOf(parent), TVIF_STATE | TVIF_CHILDREN))
        return {};
    return {(reader.Looks().state & TVIS_EXPANDED) != 0, reader.Looks().children};
}

void TreeUndo::RestoreLooks(TreeId parent, const TreeParentLooks& wanted)
{
    const HTREEITEM item = ids.ItemOf(parent);
    const TreeParentLooks now = LooksOf(parent);
    if (now.isOpen != wanted.isOpen)
        SetOpen(item, wanted.isOpen);
    TreeItemLooks looks;
    looks.children = wanted.children;
    if (now.children != wanted.children)
        WriteTreeItem(*this, item, TVIF_CHILDREN, looks, nullptr);
}

bool TreeUndo::IsOpen(HTREEITEM item)
{
    TreeItemReader reader(*this);
    return reader.Read(item, TVIF_STATE) && (reader.Looks().state & TVIS_EXPANDED) != 0;
}

// The platform expands no item without children, but keeps the state of one that has lost them.
void TreeUndo::SetOpen(HTREEITEM item, bool isOpen)
{
    const ScopedValue known(expanding, true);
    if (Next(item, TVGN_CHILD) != nullptr)
    {
        AskTree(TVM_EXPAND, isOpen ? TVE_EXPAND : TVE_COLLAPSE, reinterpret_cast<LPARAM>(item));
        return;
    }
    TVITEMEXW record = {};
    record.mask = TVIF_HANDLE | TVIF_STATE;
    record.hItem = item;
    record.state = isOpen ? TVIS_EXPANDED : 0;
    record.stateMask = TVIS_EXPANDED;
    AskTree(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&record));
}

bool TreeUndo::Delete(HTREEITEM item)
{
    const ScopedValue keeping(going, Going::Kept);
    const bool isDone = AskTree(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)) != 0;
    return !TakeInterference() && isDone && tree != nullptr;
}

bool TreeUndo::HasCheckBoxes() const
{
    return tree != nullptr && (tree->GetStyle() & TVS_CHECKBOXES) != 0;
}

// ---- Telling the owner

bool TreeUndo::TellGoing(const std::vector<HTREEITEM>& tops)
{
    std::vector<HTREEITEM> items;
    for (const HTREEITEM top : tops)
    {
        if (top == nullptr)
            return false;
        const std::size_t first = items.size();
        // Parents behind their children: the other way round, with the last child first.
        std::vector<HTREEITEM> open = {top};
        while (!open.empty())
        {
            const HTREEITEM item = open.back();
            open.pop_back();
            items.push_back(item);
            for (HTREEITEM child = Next(item, TVGN_CHILD); child != nullptr; child = Next(child, TVGN_NEXT))
                open.push_back(child);
        }
        std::reverse(items.begin() + static_cast<std::ptrdiff_t>(first), items.end());
    }
    const auto self = shared_from_this();
    TreeWatch watch(WatchesOf(*tree));
    for (const HTREEITEM item : items)
        if (tree != nullptr && !watch.IsGone(item))
            TreeActionWatcher::Tell(*tree, TDM_ITEM_DELETED, item, nullptr);
    return tree != nullptr &&
           std::none_of(tops.begin(), tops.end(), [&](HTREEITEM top) { return watch.IsGone(top); });
}

void TreeUndo::TellWords()
{
    const auto self = shared_from_this();
    const std::vector<Told> all = std::exchange(words, {});
    std::set<std::pair<Word, TreeId>> told;
    for (const Told& word : all)
        if (told.insert({word.word, word.id}).second)
            Tell(word);
}

// Not of what is gone again.
void TreeUndo::Tell(const Told& told)
{
    const HTREEITEM item = ids.ItemOf(told.id);
    if (tree == nullptr || item == nullptr)
        return;
    switch (told.word)
    {
    case Word::Remade:
        if (host != nullptr)
            host->OnItemRemade(*tree, told.before, item);
        break;
    case Word::Inserted: {
        const HTREEITEM after = Next(item, TVGN_PREVIOUS);
        TreeActionWatcher::Tell(*tree, TDM_ITEM_INSERTED, item, after != nullptr ? after : ParentOf(item));
        break;
    }
    case Word::Renamed:
        TreeActionWatcher::Tell(*tree, TDM_ITEM_RENAMED, item, nullptr);
        break;
    case Word::Changed:
        if (host != nullptr)
            host->OnItemChanged(*tree, item);
        break;
    case Word::Sorted:
        if (host != nullptr)
            host->OnItemsSorted(*tree, item);
        break;
    }
}

// ---- Around a step

void TreeUndo::EndEdit()
{
    const auto self = shared_from_this();
    if (tree->IsDragging())
        tree->CompleteDrag(FALSE);
    if (tree != nullptr && tree->GetEditControl() != nullptr)
        ::SendMessage(window, TVM_ENDEDITLABELNOW, FALSE, 0);
}

std::shared_ptr<UndoView> TreeUndo::KeepView()
{
    const HTREEITEM selected = Next(nullptr, TVGN_CARET);
    const HTREEITEM first = Next(nullptr, TVGN_FIRSTVISIBLE);
    return std::make_unique<TreeView>(selected == nullptr ? NoTreeId : ids.IdOf(selected),
                                      first == nullptr ? NoTreeId : ids.IdOf(first),
                                      tree->GetScrollPos(SB_HORZ));
}

void TreeUndo::BeginRevert()
{
    interfered = false;
    words.clear();
    if (tree != nullptr)
        tree->SetRedraw(FALSE);
}

// Also after a step that did not fit: what was taken back of it for a moment has new handles.
void TreeUndo::EndRevert(const UndoView* view)
{
    if (tree == nullptr)
        return;
    const auto self = shared_from_this();
    // Not every version of the platform's tree can draw again when the first item in view went meanwhile.
    if (Next(nullptr, TVGN_FIRSTVISIBLE) == nullptr && Next(nullptr, TVGN_ROOT) != nullptr)
        AskTree(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(Next(nullptr, TVGN_ROOT)));
    tree->SetRedraw(TRUE);
    tree->Invalidate();
    if (const auto* shown = static_cast<const TreeView*>(view))
    {
        const ScopedValue known(expanding, true);
        const HTREEITEM selected = ids.ItemOf(shown->selected);
        if (Next(nullptr, TVGN_CARET) != selected)
            AskTree(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(selected));
        // Who is told of the selection may have changed the tree.
        const HTREEITEM first = ids.ItemOf(shown->first);
        if (first != nullptr && Next(nullptr, TVGN_FIRSTVISIBLE) != first)
            AskTree(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(first));
        // To show an item the platform may have scrolled sideways, too.
        if (tree != nullptr && tree->GetScrollPos(SB_HORZ) != shown->left)
            AskTree(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, shown->left), 0);
    }
    TellWords();
}

void TreeUndo::TellChanged() {}

} // namespace QuorUiCtr
