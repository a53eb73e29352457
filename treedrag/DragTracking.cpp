// Dragging with the mouse: begin, tracking, automatic scrolling and opening of folders, end.
#include "treedrag/CTreeCtrlDrag.h"

#include "treedrag/TreeWatch.h"
#include "rules/TreeDragRules.h"

namespace QuorUiCtr
{

namespace
{

constexpr UINT_PTR ScrollTimer = 1;
constexpr UINT ScrollMilliseconds = 25;
constexpr UINT_PTR HoverTimer = 2;
constexpr UINT HoverMilliseconds = 1000;
constexpr UINT UnknownVisibleCount = 0xFFFFFFFF;

// Takes the drag image off the screen for as long as it lives.
class HiddenDragImage
{
public:
    HiddenDragImage() { CImageList::DragShowNolock(FALSE); }
    ~HiddenDragImage() { CImageList::DragShowNolock(TRUE); }
    HiddenDragImage(const HiddenDragImage&) = delete;
    HiddenDragImage& operator=(const HiddenDragImage&) = delete;
};

} // namespace

void CTreeCtrlDrag::OnBeginDrag(NMHDR* header, LRESULT* result)
{
    const NMTREEVIEW& begin = *reinterpret_cast<const NMTREEVIEW*>(header);
    const HTREEITEM item = begin.itemNew.hItem;
    *result = 0;
    if (item == nullptr || isDragging)
        return;
    dragItem = item;
    TreeWatch watch(newestWatch);
    SelectItem(item);
    if (!watch.IsGone(item))
        StartDragging(begin.ptDrag);
}

void CTreeCtrlDrag::StartDragging(CPoint dragPoint)
{
    dragImage = CreateDragImage(dragItem);
    if (dragImage == nullptr)
        return;
    dragImage->BeginDrag(0, CPoint(0, 0));
    CImageList::DragEnter(this, dragPoint);
    isDragging = TRUE;
    ::ShowCursor(FALSE);
    SetCapture();
    dropTarget = nullptr;
    scrollTimerId = static_cast<UINT>(SetTimer(ScrollTimer, ScrollMilliseconds, nullptr));
}

HTREEITEM CTreeCtrlDrag::GetDragTarget(HTREEITEM item, POINT point, BOOL& above)
{
    CRect row;
    GetItemRect(item, row, FALSE);
    const DropPlace place = DropPlaceAt(row, point.y, IsOpen(item));
    above = place != DropPlace::AfterItem;
    return place == DropPlace::BeforeFirstChild ? GetChildItem(item) : item;
}

void CTreeCtrlDrag::OnMouseMove(UINT, CPoint point)
{
    StopTimer(hoverTimerId);
    if (isDragging)
        TrackDrag(point);
    Default();
}

void CTreeCtrlDrag::TrackDrag(CPoint point)
{
    CImageList::DragMove(point);
    hoverTimerId = static_cast<UINT>(SetTimer(HoverTimer, HoverMilliseconds, nullptr));
    hoverPoint = point;
    if (const HTREEITEM item = HitTest(point))
    {
        CImageList::DragLeave(this);
        const DropSpot spot = DropSpotAt(item, point);
        if (spot.target != dropTarget || spot.above != dropAbove)
        {
            SetDropTarget(spot);
            EnsureVisible(spot.target);
            Repaint();
        }
        CImageList::DragEnter(this, point);
    }
    if (GetScrollPos(SB_HORZ) > 0 && GetScrollLimit(SB_VERT) > 0)
        Invalidate();
    CImageList::DragShowNolock(TRUE);
}

CTreeCtrlDrag::DropSpot CTreeCtrlDrag::DropSpotAt(HTREEITEM item, CPoint point)
{
    BOOL above = FALSE;
    const HTREEITEM target = GetDragTarget(item, point, above);
    return {target, above};
}

void CTreeCtrlDrag::SetDropTarget(const DropSpot& spot)
{
    SelectDropTarget(spot.target);
    dropTarget = spot.target;
    dropAbove = spot.above;
}

void CTreeCtrlDrag::AimAt(HTREEITEM item, CPoint point)
{
    SetDropTarget(DropSpotAt(item, point));
    Repaint();
}

void CTreeCtrlDrag::Repaint()
{
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CTreeCtrlDrag::StopTimer(UINT& id)
{
    if (id != 0)
        KillTimer(id);
    id = 0;
}

void CTreeCtrlDrag::OnTimer(UINT_PTR id)
{
    // The platform's tree may have a timer of the same number, which begins a label edit: it does not see
    // this one.
    if (hoverTimerId != 0 && id == hoverTimerId)
    {
        ToggleHoveredItem();
        return;
    }
    if (isDragging)
        ScrollDuringDrag();
    Default();
}

void CTreeCtrlDrag::ToggleHoveredItem()
{
    StopTimer(hoverTimerId);
    const HTREEITEM item = HitTest(hoverPoint);
    if (item == nullptr)
        return;
    const HiddenDragImage hidden;
    TreeWatch watch(newestWatch);
    Expand(item, TVE_TOGGLE);
    if (watch.IsGone(item))
        return;
    AimAt(item, hoverPoint);
}

void CTreeCtrlDrag::ScrollDuringDrag()
{
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    if (const HTREEITEM item = HitTest(point))
    {
        const DropSpot spot = DropSpotAt(item, point);
        if (spot.target != dropTarget)
        {
            const HiddenDragImage hidden;
            EnsureVisible(spot.target);
            SetDropTarget(spot);
        }
    }
    else
    {
        ScrollVertically(point);
        ScrollHorizontally(point);
    }
    CImageList::DragMove(point);
}

void CTreeCtrlDrag::ScrollVertically(CPoint point)
{
    CRect client;
    GetClientRect(client);
    const ScrollStep step = ScrollStepFor(point.y, client.top, client.bottom, VerticalScrollMargin,
                                          GetScrollPos(SB_VERT), GetScrollLimit(SB_VERT));
    if (step == ScrollStep::Back)
        ShowDropTarget(GetPrevVisibleItem(GetFirstVisibleItem()), point);
    else if (step == ScrollStep::Forward)
        ShowDropTarget(ItemBelowView(), point);
}

HTREEITEM CTreeCtrlDrag::ItemBelowView() const
{
    const UINT count = GetVisibleCount();
    if (count == UnknownVisibleCount)
        return nullptr;
    HTREEITEM item = GetFirstVisibleItem();
    for (UINT i = 0; i < count && item != nullptr; ++i)
        item = GetNextVisibleItem(item);
    return item;
}

void CTreeCtrlDrag::ShowDropTarget(HTREEITEM item, CPoint point)
{
    if (item == nullptr)
        return;
    const HiddenDragImage hidden;
    EnsureVisible(item);
    AimAt(item, point);
}

void CTreeCtrlDrag::ScrollHorizontally(CPoint point)
{
    CRect client;
    GetClientRect(client);
    const ScrollStep step = ScrollStepFor(point.x, client.left, client.right, HorizontalScrollMargin,
                                          GetScrollPos(SB_HORZ), GetScrollLimit(SB_HORZ));
    if (step == ScrollStep::None)
        return;
    const HiddenDragImage hidden;
    SendMessage(WM_HSCROLL, step == ScrollStep::Back ? SB_LINELEFT : SB_LINERIGHT);
    Repaint();
}

BOOL CTreeCtrlDrag::OnMouseWheel(UINT, short, CPoint)
{
    if (dragImage == nullptr)
        return static_cast<BOOL>(Default());
    const HiddenDragImage hidden;
    return static_cast<BOOL>(Default());
}

void CTreeCtrlDrag::OnLButtonUp(UINT, CPoint)
{
    TreeWatch watch(newestWatch);
    if (isDragging)
    {
        TidyUpEndOfDrag();
        if (dropTarget != nullptr)
            SuccessfulDrag();
    }
    if (!watch.IsTreeGone())
        Default();
}

void CTreeCtrlDrag::OnRButtonDown(UINT, CPoint point)
{
    if (isDragging)
        CancelDrag();
    TreeWatch watch(newestWatch);
    SelectItem(HitTest(point));
    if (!watch.IsTreeGone())
        Default();
}

void CTreeCtrlDrag::OnCaptureChanged(CWnd* newOwner)
{
    if (isDragging && !isEndingDrag && newOwner != this)
        CancelDrag();
    Default();
}

void CTreeCtrlDrag::CompleteDrag(BOOL success)
{
    if (!success)
    {
        CancelDrag();
        return;
    }
    TidyUpEndOfDrag();
    if (dropTarget != nullptr)
        SuccessfulDrag();
}

void CTreeCtrlDrag::CancelDrag()
{
    TidyUpEndOfDrag();
    if (dragItem != nullptr)
        EnsureVisible(dragItem);
    Invalidate();
}

void CTreeCtrlDrag::TidyUpEndOfDrag()
{
    StopTimer(scrollTimerId);
    StopTimer(hoverTimerId);
    isEndingDrag = true;
    // After a loss of the capture it is another window's.
    if (GetCapture() == this)
        ReleaseCapture();
    isEndingDrag = false;
    if (isDragging)
        ::ShowCursor(TRUE);
    isDragging = FALSE;
    if (dragImage != nullptr)
    {
        CImageList::DragLeave(this);
        CImageList::EndDrag();
        delete dragImage;
    }
    dragImage = nullptr;
    SelectDropTarget(nullptr);
}

} // namespace QuorUiCtr
