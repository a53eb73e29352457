// Moving items: the drop of a drag, one place up or down, the copy of a subtree.
#include "treedrag/CTreeCtrlDrag.h"

#include "module/QuorTexts.h"
#include "treedrag/TreeActions.h"
#include "treedrag/TreeWatch.h"

#include <cwchar>
#include <vector>

namespace QuorUiCtr
{

// A move, from before its copy until its original is deleted. The owner, who is told of the copy, may begin
// another one inside. A local variable, which ends before its watch.
struct TreeMove
{
    TreeMove(const TreeWatch& watchOfMove, HTREEITEM movedItem, TreeMove*& innermost)
        : watch(watchOfMove), original(movedItem), innermostOfTree(innermost), outer(innermost)
    {
        innermost = this;
    }
    ~TreeMove()
    {
        if (!watch.IsTreeGone())
            innermostOfTree = outer;
    }
    TreeMove(const TreeMove&) = delete;
    TreeMove& operator=(const TreeMove&) = delete;

    bool HasBoth() const { return !watch.IsGone(original) && !watch.IsGone(copy); }

    const TreeWatch& watch;
    HTREEITEM original;
    HTREEITEM copy = nullptr;
    TreeMove*& innermostOfTree;
    TreeMove* outer;
};

namespace
{

constexpr UINT AllStates = 0xFFFF;

// Texts shorter than this are copied without another question.
constexpr int ShortText = 260;

} // namespace

void CTreeCtrlDrag::SuccessfulDrag()
{
    if (!FinishLabelEdit())
        return;
    TreeWatch watch(newestWatch);
    const TreeActionScope action(newestWatch, actionWatcher, TreeAction::Drop);
    SaveFirstAndLastVisibleItems();
    if (dragItem != nullptr && dropTarget != nullptr && !IsDropWithoutEffect())
    {
        SetRedraw(FALSE);
        const HTREEITEM original = dragItem;
        if (IsDropLeftToUs())
            if (const HTREEITEM copy = ReplaceDragItem(DropParent()))
                ResetVisibleItems(copy, original, nullptr);
    }
    if (!watch.IsTreeGone())
        EndMove();
}

bool CTreeCtrlDrag::IsDropWithoutEffect()
{
    if (dropTarget == dragItem)
        return true;
    if (dropAbove)
        return dropTarget == GetNextSiblingItem(dragItem);
    return dropTarget == GetPrevSiblingItem(dragItem) && !IsItemEmptyFolder(dropTarget);
}

bool CTreeCtrlDrag::IsDropLeftToUs()
{
    const HTREEITEM item = dragItem;
    const HTREEITEM target = dropTarget;
    const HTREEITEM parent = DropParent();
    const HTREEITEM after = InsertAfterUnder(parent);
    TreeWatch watch(newestWatch);
    if (TellParent(TDM_DROP_QUERY, item, after == TVI_FIRST ? parent : after) != 0)
        return false;
    return !watch.IsTreeGone() && dragItem == item && dropTarget == target;
}

HTREEITEM CTreeCtrlDrag::DropParent()
{
    return !dropAbove && IsItemEmptyFolder(dropTarget) ? dropTarget : ParentOrRoot(dropTarget);
}

HTREEITEM CTreeCtrlDrag::InsertAfterUnder(HTREEITEM parent) const
{
    const HTREEITEM after = dropAbove ? GetPrevSiblingItem(dropTarget) : dropTarget;
    return after == nullptr || after == parent ? TVI_FIRST : after;
}

HTREEITEM CTreeCtrlDrag::InsertItemAndSubtree(HTREEITEM parent)
{
    if (dropTarget == nullptr || dragItem == nullptr)
        return nullptr;
    if (parent == nullptr)
        parent = ParentOrRoot(dropTarget);
    // A copy inside of what is copied would never be complete, and it would be deleted with the original.
    if (IsSelfOrBelow(parent, dragItem))
        return nullptr;
    const HTREEITEM after = InsertAfterUnder(parent);
    if (actionWatcher != nullptr)
        actionWatcher->OnCopyBegin(dragItem, parent);
    const HTREEITEM copy = CopyDragItem(parent, after);
    if (actionWatcher != nullptr)
        actionWatcher->OnCopyEnd(copy);
    if (copy == nullptr)
        return nullptr;
    TreeWatch watch(newestWatch);
    TellParent(TDM_ITEM_INSERTED, copy, after == TVI_FIRST ? parent : after);
    return watch.IsGone(copy) ? nullptr : copy;
}

HTREEITEM CTreeCtrlDrag::CopyDragItem(HTREEITEM parent, HTREEITEM after)
{
    const HTREEITEM copy = InsertPlaceholder(L"dummy", parent, after);
    if (copy == nullptr)
        return nullptr;
    if (innermostMove != nullptr && innermostMove->original == dragItem)
        innermostMove->copy = copy;
    if (!CopySubtree(copy, dragItem))
    {
        DeleteItem(copy);
        return nullptr;
    }
    CopyItem(copy, dragItem);
    return copy;
}

HTREEITEM CTreeCtrlDrag::InsertPlaceholder(const wchar_t* text, HTREEITEM parent, HTREEITEM after)
{
    return InsertItem(TVIF_TEXT, text, 0, 0, 0, 0, 0, parent, after);
}

// Each item is completed after everything below it, because only an item with children can be expanded.
// Without recursion, because trees may be deep, and with as few questions to the tree as can be: each may
// cost it a search.
bool CTreeCtrlDrag::CopySubtree(HTREEITEM destination, HTREEITEM source)
{
    struct Step
    {
        HTREEITEM from;
        HTREEITEM to;
    };
    std::vector<Step> path = {{source, destination}};
    HTREEITEM from = GetChildItem(source);
    while (true)
    {
        if (from != nullptr)
        {
            const HTREEITEM to = InsertPlaceholder(L"dest child", path.back().to, TVI_LAST);
            if (to == nullptr)
                return false;
            path.push_back({from, to});
            from = GetChildItem(from);
            continue;
        }
        const Step done = path.back();
        path.pop_back();
        if (path.empty())
            return true;
        CopyItem(done.to, done.from);
        from = GetNextSiblingItem(done.from);
    }
}

void CTreeCtrlDrag::CopyItem(HTREEITEM destination, HTREEITEM source)
{
    wchar_t text[ShortText] = L"";
    TVITEM item = {};
    item.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_PARAM | TVIF_TEXT;
    item.hItem = source;
    item.stateMask = AllStates; // with the state image, which is the check mark
    item.pszText = text;
    item.cchTextMax = ShortText;
    if (!GetItem(&item))
        return;
    CString longText;
    if (std::wcslen(item.pszText) >= ShortText - 1)
    {
        longText = GetItemText(source);
        item.pszText = const_cast<wchar_t*>(longText.GetString());
    }
    item.hItem = destination;
    item.stateMask = AllStates;
    SetItem(&item);
    if ((item.state & TVIS_EXPANDED) != 0)
        Expand(destination, TVE_EXPAND);
    if (actionWatcher != nullptr)
        actionWatcher->OnCopied(source, destination);
}

HTREEITEM CTreeCtrlDrag::ReplaceDragItem(HTREEITEM newParent)
{
    const HTREEITEM original = dragItem;
    if (IsHeldByMove(original, newParent))
        return nullptr;
    TreeWatch watch(newestWatch);
    TreeMove move(watch, original, innermostMove);
    if (actionWatcher != nullptr)
        actionWatcher->OnMoveBegin(original);
    const HTREEITEM copy = InsertItemAndSubtree(newParent);
    if (!watch.IsGone(copy))
    {
        SelectItem(copy);
        if (!watch.IsGone(original))
        {
            if (actionWatcher != nullptr && !watch.IsGone(copy))
                actionWatcher->OnMoved(original, copy);
            DeleteItem(original);
        }
    }
    if (!watch.IsTreeGone() && actionWatcher != nullptr)
        actionWatcher->OnMoveEnd();
    return watch.IsGone(copy) ? nullptr : copy;
}

bool CTreeCtrlDrag::IsHeldByMove(HTREEITEM item, HTREEITEM newParent) const
{
    for (const TreeMove* move = innermostMove; move != nullptr; move = move->outer)
    {
        if (!move->HasBoth())
            continue;
        const bool holdsItem = IsSelfOrBelow(item, move->original) || IsSelfOrBelow(move->original, item) ||
                               IsSelfOrBelow(move->copy, item);
        if (holdsItem || IsSelfOrBelow(newParent, move->original))
            return true;
    }
    return false;
}

void CTreeCtrlDrag::EndMove()
{
    SetRedraw(TRUE);
    Invalidate();
}

void CTreeCtrlDrag::SaveFirstAndLastVisibleItems()
{
    firstVisibleItem = GetFirstVisibleItem();
    lastVisibleItem = GetLastVisibleItem();
}

void CTreeCtrlDrag::ResetVisibleItems(HTREEITEM newItem, HTREEITEM oldItem, HTREEITEM extra)
{
    if (firstVisibleItem != oldItem && lastVisibleItem != oldItem)
        for (const HTREEITEM item : {lastVisibleItem, firstVisibleItem})
            if (item != nullptr)
                EnsureVisible(item);
    if (extra != nullptr)
        EnsureVisible(extra);
    SetRedraw(TRUE);
    EnsureVisible(newItem);
}

void CTreeCtrlDrag::MoveItemUp()
{
    if (!BeginCommandMove())
        return;
    HTREEITEM newParent = nullptr;
    dropTarget = GetPrevVisibleItemToMoveTo(dragItem, dropAbove, newParent);
    CarryOutCommandMove(newParent, false);
}

void CTreeCtrlDrag::MoveItemDown()
{
    if (!BeginCommandMove())
        return;
    dropTarget = GetNextNonChildItem(dragItem, dropAbove);
    CarryOutCommandMove(DropParent(), true);
}

bool CTreeCtrlDrag::BeginCommandMove()
{
    if (!FinishLabelEdit())
        return false;
    if (isDragging)
        CancelDrag();
    SetRedraw(FALSE);
    SaveFirstAndLastVisibleItems();
    dragItem = GetSelectedItem();
    return true;
}

void CTreeCtrlDrag::CarryOutCommandMove(HTREEITEM newParent, bool tellAgain)
{
    TreeWatch watch(newestWatch);
    if (IsMoveAllowed(newParent))
        MoveByCommand(newParent, tellAgain);
    if (!watch.IsTreeGone())
        EndMove();
}

void CTreeCtrlDrag::MoveByCommand(HTREEITEM newParent, bool tellAgain)
{
    const TreeActionScope action(newestWatch, actionWatcher, TreeAction::Move);
    const HTREEITEM original = dragItem;
    const HTREEITEM copy = ReplaceDragItem(newParent);
    if (copy == nullptr)
        return;
    ResetVisibleItems(copy, original, GetPrevVisibleItem(copy));
    if (tellAgain)
        TellParent(TDM_ITEM_INSERTED, original, copy);
}

bool CTreeCtrlDrag::IsMoveAllowed(HTREEITEM newParent)
{
    if (dragItem == nullptr || !noDuplicates || newParent == ParentOrRoot(dragItem))
        return true;
    if (IsUniqueNameOnThisLevel(GetItemText(dragItem), dragItem, newParent))
        return true;
    AfxMessageBox(QuorTexts::Get(QuorText::TreeInvalidMove), MB_ICONEXCLAMATION);
    return false;
}

HTREEITEM CTreeCtrlDrag::GetPrevVisibleItemToMoveTo(HTREEITEM item, BOOL& above, HTREEITEM& newParent)
{
    const HTREEITEM previous = item == nullptr ? nullptr : GetPrevSiblingItem(item);
    HTREEITEM target = previous;
    above = previous == nullptr;
    newParent = nullptr;
    if (previous == nullptr)
        target = item == nullptr ? nullptr : GetParentItem(item);
    else if (IsOpen(previous))
        target = LastChild(previous);
    else if (IsItemEmptyFolder(previous))
        newParent = previous;
    else
        above = TRUE;
    if (newParent == nullptr)
        newParent = ParentOrRoot(target);
    return target;
}

HTREEITEM CTreeCtrlDrag::GetNextNonChildItem(HTREEITEM item, BOOL& above)
{
    above = FALSE;
    if (item == nullptr)
        return nullptr;
    const HTREEITEM next = GetNextSiblingItem(item);
    if (next == nullptr)
        return GetParentItem(item);
    if (!IsOpen(next))
        return next;
    above = TRUE;
    return GetChildItem(next);
}

} // namespace QuorUiCtr
