// The messages of a tree's window, as far as they change the tree: what was before, and what is after.
#include "undo/TreeUndo.h"

#include "grid/model/ScopedValue.h"
#include "undo/UndoHistory.h"

#include <algorithm>
#include <cwchar>

namespace QuorUiCtr
{

namespace
{

bool IsStructural(UINT message, WPARAM wParam)
{
    switch (message)
    {
    case TVM_INSERTITEMA:
    case TVM_INSERTITEMW:
    case TVM_DELETEITEM:
    case TVM_SORTCHILDREN:
    case TVM_SORTCHILDRENCB:
        return true;
    case TVM_EXPAND:
        return (wParam & TVE_COLLAPSERESET) != 0;
    default:
        return false;
    }
}

// A step around one message; a part of the step that is going on, if there is one.
class MessageStep
{
public:
    MessageStep(UndoHistory& stepHistory, UndoRecorder& recorder, const UndoName& name = {})
        : history(stepHistory)
    {
        history.BeginStep(&recorder, name);
    }
    ~MessageStep() { history.EndStep(); }
    MessageStep(const MessageStep&) = delete;
    MessageStep& operator=(const MessageStep&) = delete;

private:
    UndoHistory& history;
};

} // namespace

LRESULT TreeUndo::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    // The watch may end while the message is carried out.
    const auto self = shared_from_this();
    if (own)
        return PassOwn(message, wParam, lParam);
    if (message == WM_DESTROY)
        history.Leave(watched);
    return tree == nullptr ? Pass(message, wParam, lParam) : OnOthersMessage(message, wParam, lParam);
}

LRESULT TreeUndo::OnOthersMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (structural > 0 && IsStructural(message, wParam))
    {
        interfered = true;
        return PassStructural(message, wParam, lParam);
    }
    switch (message)
    {
    case TVM_INSERTITEMA:
    case TVM_INSERTITEMW:
        return OnInsert(message, wParam, lParam);
    case TVM_DELETEITEM:
        return OnDelete(message, wParam, lParam);
    case TVM_SETITEMA:
    case TVM_SETITEMW:
        return OnSet(message, wParam, lParam);
    case TVM_SORTCHILDREN:
    case TVM_SORTCHILDRENCB:
        return OnSort(message, wParam, lParam);
    case TVM_EXPAND:
        return OnExpand(message, wParam, lParam);
    case TVM_SELECTITEM:
    case TVM_ENSUREVISIBLE:
    case TVM_EDITLABELA:
    case TVM_EDITLABELW:
        return OnShow(reinterpret_cast<HTREEITEM>(lParam), message, wParam, lParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
    case WM_KEYDOWN:
    case WM_CHAR:
        return OnInput(message, wParam, lParam);
    default:
        return Pass(message, wParam, lParam);
    }
}

LRESULT TreeUndo::Pass(UINT message, WPARAM wParam, LPARAM lParam)
{
    return PassOn(watched, message, wParam, lParam);
}

LRESULT TreeUndo::PassStructural(UINT message, WPARAM wParam, LPARAM lParam)
{
    ++structural;
    const LRESULT result = Pass(message, wParam, lParam);
    --structural;
    return result;
}

// What the owner does when it is told of it is recorded.
LRESULT TreeUndo::PassOwn(UINT message, WPARAM wParam, LPARAM lParam)
{
    const ScopedValue recording(own, false);
    if (message != TVM_DELETEITEM || reinterpret_cast<HTREEITEM>(lParam) != replaced)
        return IsStructural(message, wParam) ? PassStructural(message, wParam, lParam)
                                             : Pass(message, wParam, lParam);
    replaced = nullptr;
    const ScopedValue keeping(going, Going::Kept);
    return PassStructural(message, wParam, lParam);
}

// ---- Recording

bool TreeUndo::IsRecording() const
{
    return tree != nullptr && history.IsRecording();
}

void TreeUndo::Record(std::unique_ptr<TreeChange> change)
{
    if (!change->IsView())
        ++recorded;
    if (IsRecording())
        history.Record(std::move(change));
}

// In which order things happened is not known.
void TreeUndo::EndUnclear()
{
    interfered = false;
    ids.Clear();
    if (!history.IsReverting())
        history.End();
    else
        interfered = true;
}

bool TreeUndo::IsInside(HTREEITEM item, HTREEITEM ancestor)
{
    while (item != nullptr && item != TVI_ROOT && item != ancestor)
        item = Next(item, TVGN_PARENT);
    return item != nullptr && item == ancestor;
}

// Within a move, original and copy have the same item data.
bool TreeUndo::IsShared(HTREEITEM item)
{
    return std::any_of(moves.begin(), moves.end(), [&](const Move& move) {
        return move.copy != nullptr && (IsInside(item, move.copy) || IsInside(item, move.original));
    });
}

// ---- Inserting and deleting

LRESULT TreeUndo::OnInsert(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto* insertion = reinterpret_cast<const TVINSERTSTRUCTW*>(lParam);
    const MessageStep step(history, *this);
    const TreeId parent = insertion == nullptr ? RootTreeId : ids.IdOf(insertion->hParent);
    const TreeParentLooks looks = LooksOf(parent);
    const LRESULT result = PassStructural(message, wParam, lParam);
    const HTREEITEM item = reinterpret_cast<HTREEITEM>(result);
    if (TakeInterference())
    {
        EndUnclear();
        return result;
    }
    if (item == nullptr || tree == nullptr)
        return result;
    if (!IsRecording())
    {
        ids.Touch(parent, TreeAspect::Children);
        return result;
    }
    auto change = std::make_unique<TreePlacing>(*this, TreePlacing::Kind::Inserted);
    change->tops = {ids.IdOf(item)};
    change->parent = parent;
    change->parentLooks = looks;
    change->Mark(parent, TreeAspect::Children);
    Record(std::move(change));
    return result;
}

LRESULT TreeUndo::OnDelete(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HTREEITEM item = reinterpret_cast<HTREEITEM>(lParam);
    if (item == replaced && item != nullptr)
    {
        const ScopedValue mine(own, true);
        const LRESULT result = PassOwn(message, wParam, lParam);
        if (TakeInterference())
            EndUnclear();
        return result;
    }
    if (item == nullptr || item == TVI_ROOT)
        return RemoveAll(ChildrenOf(TVI_ROOT), message, wParam, lParam);
    return RemoveAll({item}, message, wParam, lParam);
}

// Items that stand side by side.
LRESULT TreeUndo::RemoveAll(const std::vector<HTREEITEM>& items, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (items.empty())
        return PassStructural(message, wParam, lParam);
    const MessageStep step(history, *this);
    auto change = std::make_unique<TreePlacing>(*this, TreePlacing::Kind::Removed);
    const bool isShared = IsShared(items.front());
    change->isShared = true; // until the items are gone
    const bool isRecording = IsRecording();
    change->place = PlaceOf(items.front());
    change->parent = change->place.parent;
    if (isRecording)
    {
        for (const HTREEITEM item : items)
            change->tops.push_back(ids.IdOf(item));
        change->parentLooks = LooksOf(change->parent);
    }
    if (isRecording && !change->kept.Keep(*this, items))
        return PassStructural(message, wParam, lParam);
    LRESULT result = 0;
    {
        const ScopedValue end(going, isRecording ? Going::Kept : Going::LeftOut);
        result = PassStructural(message, wParam, lParam);
    }
    if (TakeInterference())
    {
        EndUnclear();
        return result;
    }
    // A collapse that deletes does not always say that it has.
    const bool isGone = result != 0 || (isRecording && ids.ItemOf(change->tops.front()) == nullptr);
    if (!isGone || tree == nullptr)
        return result;
    change->isShared = isShared;
    change->Mark(change->parent, TreeAspect::Children);
    if (isRecording)
        Record(std::move(change));
    return result;
}

void TreeUndo::OnItemGone(HTREEITEM item)
{
    if (item == replaced)
        replaced = nullptr;
    const TreeId id = ids.FindId(item);
    if (going == Going::Unexpected && structural == 0)
        EndUnclear();
    else if (id != NoTreeId)
    {
        ids.Unbind(item);
        if (going != Going::Kept)
            ids.TouchAll(id);
    }
}

// ---- Changing

LRESULT TreeUndo::OnSet(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto* set = reinterpret_cast<const TVITEMW*>(lParam);
    const UINT parts = set == nullptr ? 0 : set->mask & (TreeLookParts | TVIF_TEXT);
    const HTREEITEM item = set == nullptr ? nullptr : set->hItem;
    TreeItemReader before(*this);
    // Who is asked for the text may end the watch.
    if (item == nullptr || !before.Read(item, parts) || tree == nullptr)
        return Pass(message, wParam, lParam);
    const MessageStep step(history, *this);
    const TreeId id = ids.IdOf(item);
    const LRESULT result = Pass(message, wParam, lParam);
    TreeItemReader after(*this);
    if (tree == nullptr || ids.ItemOf(id) != item || !after.Read(item, parts))
        return result;
    if (const UINT unlike = PartsUnlike(before, after, parts))
        RecordChange(item, unlike, before);
    // States that were not read are alike.
    if (((after.Looks().state ^ before.Looks().state) & TVIS_EXPANDED) != 0)
        RecordExpansion(item, (before.Looks().state & TVIS_EXPANDED) != 0);
    return result;
}

UINT TreeUndo::PartsUnlike(const TreeItemReader& before, const TreeItemReader& after, UINT parts)
{
    const UINT unlike = after.Looks().PartsUnlike(before.Looks(), parts);
    const bool isTextUnlike =
        after.IsTextAsked() != before.IsTextAsked() || std::wcscmp(after.Text(), before.Text()) != 0;
    return isTextUnlike ? unlike | (parts & TVIF_TEXT) : unlike;
}

void TreeUndo::RecordChange(HTREEITEM item, UINT parts, const TreeItemReader& before)
{
    auto change = std::make_unique<TreeItemChange>(*this, ids.IdOf(item));
    change->Keep(parts, before);
    Record(std::move(change));
}

// The children of the item, or, where the platform is to sort what is below them too, all of it.
LRESULT TreeUndo::OnSort(UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool isWithCall = message == TVM_SORTCHILDRENCB;
    if (isWithCall && lParam == 0)
        return Pass(message, wParam, lParam);
    const HTREEITEM top =
        isWithCall ? reinterpret_cast<const TVSORTCB*>(lParam)->hParent : reinterpret_cast<HTREEITEM>(lParam);
    std::vector<std::pair<TreeId, std::vector<TreeId>>> orders;
    std::vector<HTREEITEM> parents = {top == nullptr ? TVI_ROOT : top};
    while (!parents.empty())
    {
        const HTREEITEM parent = parents.back();
        parents.pop_back();
        orders.push_back({ids.IdOf(parent), {}});
        for (const HTREEITEM child : ChildrenOf(parent))
        {
            orders.back().second.push_back(ids.IdOf(child));
            if (wParam != 0 && Next(child, TVGN_CHILD) != nullptr)
                parents.push_back(child);
        }
    }
    const MessageStep step(history, *this);
    const LRESULT result = PassStructural(message, wParam, lParam);
    if (TakeInterference())
    {
        EndUnclear();
        return result;
    }
    for (auto& [parent, before] : orders)
    {
        std::vector<TreeId> after;
        if (tree != nullptr)
            for (const HTREEITEM child : ChildrenOf(ids.ItemOf(parent)))
                after.push_back(ids.IdOf(child));
        if (tree == nullptr || after == before)
            continue;
        auto change = std::make_unique<TreeSorting>(*this, parent, std::move(before));
        change->Mark(parent, TreeAspect::Children);
        Record(std::move(change));
    }
    return result;
}

// ---- Expanding

void TreeUndo::RecordExpansion(HTREEITEM item, bool wasOpen)
{
    Record(std::make_unique<TreeExpanding>(*this, ids.IdOf(item), wasOpen));
}

LRESULT TreeUndo::OnExpand(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HTREEITEM item = reinterpret_cast<HTREEITEM>(lParam);
    if ((wParam & TVE_COLLAPSERESET) != 0 && item != nullptr)
        return RemoveAll(ChildrenOf(item), message, wParam, lParam);
    return OnShow(item, message, wParam, lParam);
}

// The platform opens the items above one that is to be seen.
LRESULT TreeUndo::OnShow(HTREEITEM item, UINT message, WPARAM wParam, LPARAM lParam)
{
    std::vector<std::pair<TreeId, bool>> before;
    const bool isSelfConcerned = message == TVM_EXPAND;
    HTREEITEM above = item == nullptr || isSelfConcerned ? item : Next(item, TVGN_PARENT);
    for (; above != nullptr && above != TVI_ROOT; above = Next(above, TVGN_PARENT))
    {
        const bool isOpen = IsOpen(above);
        if (!isOpen || isSelfConcerned)
            before.emplace_back(ids.IdOf(above), isOpen);
        if (isSelfConcerned)
            break;
    }
    LRESULT result = 0;
    {
        const ScopedValue known(expanding, !before.empty());
        result = Pass(message, wParam, lParam);
    }
    for (const auto& [id, wasOpen] : before)
    {
        const HTREEITEM expanded = ids.ItemOf(id);
        if (tree != nullptr && expanded != nullptr && IsOpen(expanded) != wasOpen)
            RecordExpansion(expanded, wasOpen);
    }
    return result;
}

void TreeUndo::OnNotify(const NMHDR& header)
{
    if (header.code == TVN_GETDISPINFOW)
        askedParts |= reinterpret_cast<const NMTVDISPINFOW&>(header).item.mask;
    if (header.code != TVN_ITEMEXPANDEDW || expanding)
        return;
    const auto& expanded = reinterpret_cast<const NMTREEVIEWW&>(header);
    const HTREEITEM item = expanded.itemNew.hItem;
    const bool wasOpen = (expanded.action & TVE_EXPAND) == 0;
    if (IsOpen(item) != wasOpen)
        RecordExpansion(item, wasOpen);
}

// ---- Input

// The item whose check box a click or a key may switch.
HTREEITEM TreeUndo::CheckedBy(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!HasCheckBoxes())
        return nullptr;
    if (message == WM_KEYDOWN || message == WM_CHAR)
        return wParam == VK_SPACE ? Next(nullptr, TVGN_CARET) : nullptr;
    TVHITTESTINFO hit = {};
    hit.pt = CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    AskTree(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return (hit.flags & TVHT_ONITEMSTATEICON) != 0 ? hit.hItem : nullptr;
}

LRESULT TreeUndo::OnInput(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HTREEITEM item = CheckedBy(message, wParam, lParam);
    TreeItemReader before(*this);
    if (item == nullptr || !before.Read(item, TVIF_STATE))
        return Pass(message, wParam, lParam);
    const TreeId id = ids.IdOf(item);
    const TreeMark mark = ids.GetMark(id, TreeAspect::Looks);
    const LRESULT result = Pass(message, wParam, lParam);
    TreeItemReader after(*this);
    if (tree == nullptr || ids.ItemOf(id) != item || !after.Read(item, TVIF_STATE))
        return result;
    const bool isSwitched = ((after.Looks().state ^ before.Looks().state) & TVIS_STATEIMAGEMASK) != 0;
    if (isSwitched && ids.GetMark(id, TreeAspect::Looks) == mark)
    {
        const MessageStep step(history, *this, {QuorText::UndoTreeCheck, QuorText::UndoTreeCheck});
        RecordChange(item, TVIF_STATE, before);
    }
    return result;
}

} // namespace QuorUiCtr
