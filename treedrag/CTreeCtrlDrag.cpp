// The tree itself: life, message map, questions about items, walking the tree.
#include "treedrag/CTreeCtrlDrag.h"

#include "treedrag/TreeActions.h"
#include "treedrag/TreeWatch.h"

namespace QuorUiCtr
{

namespace
{

constexpr int UsualIndent = 19;

} // namespace

const UINT CTreeCtrlDrag::ReopenLabelEditMessage =
    ::RegisterWindowMessage(L"QuorUiCtr.CTreeCtrlDrag.ReopenLabelEdit");

BEGIN_MESSAGE_MAP(CTreeCtrlDrag, CTreeCtrl)
    ON_NOTIFY_REFLECT(TVN_BEGINDRAGW, &CTreeCtrlDrag::OnBeginDrag)
    ON_NOTIFY_REFLECT(TVN_BEGINLABELEDITW, &CTreeCtrlDrag::OnBeginLabelEdit)
    ON_NOTIFY_REFLECT(TVN_ENDLABELEDITW, &CTreeCtrlDrag::OnEndLabelEdit)
    ON_WM_TIMER()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONUP()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_RBUTTONDOWN()
    ON_WM_CAPTURECHANGED()
    ON_WM_DESTROY()
    ON_REGISTERED_MESSAGE(ReopenLabelEditMessage, &CTreeCtrlDrag::OnReopenLabelEdit)
END_MESSAGE_MAP()

CTreeCtrlDrag::CTreeCtrlDrag() : hoverPoint(0, 0) {}

CTreeCtrlDrag::~CTreeCtrlDrag()
{
    StopTimer(hoverTimerId);
    StopTimer(scrollTimerId);
    // While this is still a CTreeCtrlDrag, so that OnDestroy sees it.
    DestroyWindow();
}

void CTreeCtrlDrag::OnDestroy()
{
    if (isDragging)
        TidyUpEndOfDrag();
    dragItem = dropTarget = firstVisibleItem = lastVisibleItem = itemToReopen = nullptr;
    endedEdit = nullptr;
    innermostMove = nullptr;
    TreeWatch::NoteTreeGone(newestWatch);
    CTreeCtrl::OnDestroy();
}

LRESULT CTreeCtrlDrag::TellParent(UINT message, HTREEITEM item, HTREEITEM place)
{
    CWnd* parent = GetParent();
    if (parent == nullptr)
        return 0;
    return parent->SendMessage(message, reinterpret_cast<WPARAM>(item), reinterpret_cast<LPARAM>(place));
}

LRESULT CTreeCtrlDrag::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (actionWatcher != nullptr)
        return actionWatcher->OnMessage(message, wParam, lParam);
    return CTreeCtrl::WindowProc(message, wParam, lParam);
}

BOOL CTreeCtrlDrag::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == TVN_DELETEITEMW)
        ForgetItem(reinterpret_cast<const NMTREEVIEW*>(lParam)->itemOld.hItem);
    else if (message == WM_NOTIFY && actionWatcher != nullptr)
        actionWatcher->OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
    return CTreeCtrl::OnChildNotify(message, wParam, lParam, result);
}

void CTreeCtrlDrag::ForgetItem(HTREEITEM item)
{
    TreeWatch::NoteDeletedItem(newestWatch, item);
    if (actionWatcher != nullptr)
        actionWatcher->OnItemGone(item);
    if (item == itemToReopen)
        itemToReopen = nullptr;
    if (item == dropTarget)
        dropTarget = nullptr;
    // A moved item stays among the saved ones: ResetVisibleItems knows by it that the view cannot be
    // restored.
    if (item == dragItem)
    {
        dragItem = nullptr;
        return;
    }
    if (item == firstVisibleItem)
        firstVisibleItem = nullptr;
    if (item == lastVisibleItem)
        lastVisibleItem = nullptr;
}

bool CTreeCtrlDrag::IsFolder(HTREEITEM item) const
{
    int image = -1;
    int selectedImage = -1;
    return GetItemImage(item, image, selectedImage) && image == 0;
}

BOOL CTreeCtrlDrag::IsItemEmptyFolder(HTREEITEM item)
{
    return IsFolder(item) && !ItemHasChildren(item);
}

bool CTreeCtrlDrag::IsOpen(HTREEITEM item) const
{
    return ItemHasChildren(item) && (GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
}

bool CTreeCtrlDrag::IsSelfOrBelow(HTREEITEM item, HTREEITEM ancestor) const
{
    while (item != nullptr && item != TVI_ROOT && item != ancestor)
        item = GetParentItem(item);
    return item == ancestor;
}

HTREEITEM CTreeCtrlDrag::ParentOrRoot(HTREEITEM item) const
{
    const HTREEITEM parent = item == nullptr ? nullptr : GetParentItem(item);
    return parent == nullptr ? TVI_ROOT : parent;
}

HTREEITEM CTreeCtrlDrag::DeepestFirstChild(HTREEITEM item) const
{
    while (const HTREEITEM child = GetChildItem(item))
        item = child;
    return item;
}

HTREEITEM CTreeCtrlDrag::LastChild(HTREEITEM item) const
{
    HTREEITEM last = nullptr;
    for (HTREEITEM child = GetChildItem(item); child != nullptr; child = GetNextSiblingItem(child))
        last = child;
    return last;
}

DWORD_PTR CTreeCtrlDrag::GetDragItemData()
{
    return dragItem == nullptr ? 0 : GetItemData(dragItem);
}

int CTreeCtrlDrag::GetParentToChildIndent()
{
    for (HTREEITEM item = GetRootItem(); item != nullptr; item = GetNextVisibleItem(item))
    {
        if (!IsOpen(item))
            continue;
        CRect label;
        CRect childLabel;
        if (GetItemRect(item, label, TRUE) && GetItemRect(GetChildItem(item), childLabel, TRUE))
            return childLabel.left - label.left;
    }
    return UsualIndent;
}

HTREEITEM CTreeCtrlDrag::GetNextItem(HTREEITEM item)
{
    if (item == nullptr)
        return nullptr;
    if (const HTREEITEM child = GetChildItem(item))
        return child;
    for (; item != nullptr; item = GetParentItem(item))
        if (const HTREEITEM sibling = GetNextSiblingItem(item))
            return sibling;
    return nullptr;
}

HTREEITEM CTreeCtrlDrag::GetPrevItem(HTREEITEM item)
{
    if (item == nullptr)
        return nullptr;
    HTREEITEM last = GetPrevSiblingItem(item);
    if (last == nullptr)
        return GetParentItem(item);
    while (const HTREEITEM child = LastChild(last))
        last = child;
    return last;
}

void CTreeCtrlDrag::ReportDragBackToParent(HTREEITEM source, HTREEITEM destination)
{
    HTREEITEM from = GetChildItem(source);
    HTREEITEM to = GetChildItem(destination);
    while (from != nullptr && from != source)
    {
        if (const HTREEITEM child = GetChildItem(from))
        {
            from = child;
            to = GetChildItem(to);
            continue;
        }
        while (from != source && GetNextSiblingItem(from) == nullptr)
        {
            from = GetParentItem(from);
            to = GetParentItem(to);
        }
        if (from != source)
        {
            from = GetNextSiblingItem(from);
            to = GetNextSiblingItem(to);
        }
    }
}

} // namespace QuorUiCtr
