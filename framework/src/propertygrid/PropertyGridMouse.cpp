// CMFCPropertyGridCtrl: the mouse, the two lines that can be dragged, hit test and tool tips.
#include "afxpropertygridctrl.h"
#include "propertyrules/PropertyGridGeometry.h"
#include "propertygrid/PropertyGridWatch.h"

#include <cstdlib>

namespace
{

constexpr int GraspWidth = 3;

bool IsNear(int left, int right)
{
    return std::abs(left - right) <= GraspWidth;
}

} // namespace

CMFCPropertyGridProperty*
CMFCPropertyGridCtrl::HitTest(CPoint pt, CMFCPropertyGridProperty::ClickArea* pnArea, BOOL bPropsOnly) const
{
    if (m_hWnd == nullptr)
        return nullptr;
    CRect client;
    GetClientRect(client);
    const CRect list = GetListRect();
    if (!bPropsOnly && m_bDescriptionArea && client.PtInRect(pt) && pt.y >= list.bottom)
    {
        if (pnArea != nullptr)
            *pnArea = CMFCPropertyGridProperty::ClickDescription;
        return nullptr;
    }
    const bool isInList = pt.x >= list.left && pt.x < list.right;
    const int row = quorfx::RowAtY(list, m_nRowHeight, m_nFirstRow, RowCount(), pt.y);
    CMFCPropertyGridProperty* const prop = isInList ? PropertyOfRow(row) : nullptr;
    if (prop != nullptr && pnArea != nullptr)
        *pnArea = prop->AreaAt(pt);
    return prop;
}

// ---- Dragging.

CMFCPropertyGridCtrl::DragKind CMFCPropertyGridCtrl::DragAt(CPoint point) const
{
    const CRect list = GetListRect();
    const bool isOverBar = point.y >= list.bottom && point.y < list.bottom + quorfx::DescriptionBarHeight;
    if (m_bDescriptionArea && isOverBar)
        return DragDescription;
    const bool isOnLine = list.PtInRect(point) && IsNear(point.x, list.left + m_nLeftColumnWidth);
    const CMFCPropertyGridProperty* const prop = HitTest(point, nullptr, TRUE);
    // A group has no line of its own where its name goes over both columns.
    const bool isHidden = prop != nullptr && IsWide(*prop);
    return isOnLine && !isHidden ? DragColumns : DragNone;
}

void CMFCPropertyGridCtrl::BeginDrag(DragKind kind, CPoint point)
{
    PropertyGridWatch self(m_pWatches);
    if (!EndEditItem() || self.IsGone())
        return;
    const CRect list = GetListRect();
    m_drag = kind;
    m_nTrack = m_nLeftColumnWidth;
    m_nDragOffset = kind == DragColumns ? m_nLeftColumnWidth - point.x : list.bottom - point.y;
    SetCapture();
    InvalidateTrack();
}

void CMFCPropertyGridCtrl::Drag(CPoint point)
{
    if (m_drag == DragDescription)
    {
        CRect client;
        GetClientRect(client);
        const quorfx::PropertyGridMetrics metrics = {m_nRowHeight, GetHeaderHeight(), m_nDescrRows, 0};
        const int rows = quorfx::DescriptionRowsAt(point.y + m_nDragOffset, client.Height(), metrics);
        if (rows != m_nDescrRows)
            SetDescriptionRows(rows);
        return;
    }
    InvalidateTrack();
    m_nTrack = quorfx::ClampColumn(point.x + m_nDragOffset, GetListRect().Width(), m_nRowHeight);
    InvalidateTrack();
    if (m_bShowDragContext)
        SetColumnWidth(m_nTrack);
}

// Ends a drag, whether by the mouse or by losing it; only a released mouse applies it.
void CMFCPropertyGridCtrl::EndDrag(BOOL bApply)
{
    if (m_drag == DragNone)
        return;
    const DragKind ended = m_drag;
    m_drag = DragNone;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    if (ended == DragColumns && bApply)
        SetColumnWidth(m_nTrack);
    Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::OnMouseMove(UINT nFlags, CPoint point)
{
    if (m_drag != DragNone)
        Drag(point);
    else
        CWnd::OnMouseMove(nFlags, point);
}

void CMFCPropertyGridCtrl::OnLButtonUp(UINT nFlags, CPoint point)
{
    EndDrag(TRUE);
    CWnd::OnLButtonUp(nFlags, point);
}

void CMFCPropertyGridCtrl::OnCancelMode()
{
    EndDrag(FALSE);
    CWnd::OnCancelMode();
}

void CMFCPropertyGridCtrl::OnCaptureChanged(CWnd* pWnd)
{
    EndDrag(FALSE);
    CWnd::OnCaptureChanged(pWnd);
}

BOOL CMFCPropertyGridCtrl::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    const bool isOwn = pWnd->GetSafeHwnd() == m_hWnd && nHitTest == HTCLIENT;
    const DragKind kind = isOwn ? DragAt(point) : DragNone;
    if (kind == DragNone)
    {
        CMFCPropertyGridProperty::ClickArea area = CMFCPropertyGridProperty::ClickName;
        const CMFCPropertyGridProperty* const prop = isOwn ? HitTest(point, &area, TRUE) : nullptr;
        if (prop != nullptr && area == CMFCPropertyGridProperty::ClickValue && prop->OnSetCursor())
            return TRUE;
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    }
    ::SetCursor(::LoadCursor(nullptr, kind == DragColumns ? IDC_SIZEWE : IDC_SIZENS));
    return TRUE;
}

// A placeholder that the control was attached to might let the mouse through.
LRESULT CMFCPropertyGridCtrl::OnNcHitTest(CPoint screenPoint)
{
    return ::DefWindowProc(m_hWnd, WM_NCHITTEST, 0, MAKELPARAM(screenPoint.x, screenPoint.y));
}

// ---- Clicks.

void CMFCPropertyGridCtrl::OnLButtonDown(UINT, CPoint point)
{
    const DragKind kind = DragAt(point);
    if (kind != DragNone)
    {
        BeginDrag(kind, point);
        return;
    }
    PropertyGridWatch self(m_pWatches);
    CMFCPropertyGridProperty* const clicked = HitTest(point, nullptr, TRUE);
    // Taking the focus closes an editor of another property, which runs the host.
    if (clicked == nullptr || clicked != m_pSel || !clicked->IsInPlaceEditing())
    {
        const BOOL closed = EndEditItem();
        if (self.IsGone() || !closed)
            return;
        SetFocus();
        if (self.IsGone())
            return;
    }
    // The host may have changed the rows.
    if (clicked != nullptr && HitTest(point, nullptr, TRUE) == clicked)
        ClickRow(clicked, point);
}

void CMFCPropertyGridCtrl::ClickRow(CMFCPropertyGridProperty* pProp, CPoint point)
{
    const CMFCPropertyGridProperty::ClickArea area = pProp->AreaAt(point);
    const bool wasSelected = pProp == m_pSel;
    PropertyGridWatch clicked(pProp->m_pWatches);
    if (!Select(pProp, TRUE) || clicked.IsGone())
        return;
    EnsureVisible(pProp);
    if (area == CMFCPropertyGridProperty::ClickExpandBox)
    {
        pProp->Expand(!pProp->IsExpanded());
    }
    else if (area == CMFCPropertyGridProperty::ClickName)
    {
        pProp->OnClickName(point);
    }
    else
    {
        pProp->AdjustButtonRect();
        if (wasSelected && pProp->m_rectButton.PtInRect(point))
            OnClickButton(point);
        else if (!pProp->OnClickValue(WM_LBUTTONDOWN, point) && !clicked.IsGone())
            EditItem(pProp, &point);
    }
}

void CMFCPropertyGridCtrl::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    if (DragAt(point) != DragNone)
        return;
    CMFCPropertyGridProperty::ClickArea area = CMFCPropertyGridProperty::ClickName;
    CMFCPropertyGridProperty* const prop = HitTest(point, &area, TRUE);
    const bool isBox = area == CMFCPropertyGridProperty::ClickExpandBox;
    const bool isButton = prop != nullptr && prop == m_pSel && prop->m_rectButton.PtInRect(point);
    // Quick clicks on a box or a button count one by one.
    if (prop == nullptr || prop != m_pSel || isBox || isButton)
        OnLButtonDown(nFlags, point);
    else if (!prop->HasValueField())
        prop->Expand(!prop->IsExpanded());
    else
        prop->OnDblClk(point);
}

void CMFCPropertyGridCtrl::OnRButtonUp(UINT nFlags, CPoint point)
{
    PropertyGridWatch self(m_pWatches);
    CMFCPropertyGridProperty::ClickArea area = CMFCPropertyGridProperty::ClickName;
    CMFCPropertyGridProperty* const prop = HitTest(point, &area, TRUE);
    if (prop != nullptr && area == CMFCPropertyGridProperty::ClickName)
        prop->OnRClickName(point);
    else if (prop != nullptr && area == CMFCPropertyGridProperty::ClickValue)
        prop->OnRClickValue(point, prop == m_pSel);
    if (!self.IsGone())
        CWnd::OnRButtonUp(nFlags, point);
}

// ---- Tool tips.

INT_PTR CMFCPropertyGridCtrl::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    CMFCPropertyGridProperty::ClickArea area = CMFCPropertyGridProperty::ClickName;
    CMFCPropertyGridProperty* const prop = HitTest(point, &area, TRUE);
    if (prop == nullptr || area == CMFCPropertyGridProperty::ClickExpandBox)
        return CWnd::OnToolHitTest(point, pTI);
    const bool isValue = area == CMFCPropertyGridProperty::ClickValue;
    const CString text = isValue ? prop->GetValueTooltip() : prop->GetNameTooltip();
    if (text.IsEmpty())
        return -1;
    const CRect row = RowRect(RowOf(prop));
    if (pTI != nullptr)
    {
        pTI->hwnd = m_hWnd;
        const quorfx::Box place =
            isValue ? quorfx::ValueRectangle(row, m_nLeftColumnWidth)
                    : quorfx::NameRectangle(row, m_nRowHeight, IndentOf(*prop), m_nLeftColumnWidth);
        pTI->rect = place.As<CRect>();
        pTI->uId = static_cast<UINT_PTR>(RowOf(prop)) * 2 + (isValue ? 1 : 0);
        pTI->lpszText = _wcsdup(text);
    }
    // Control ids are positive 16-bit numbers, which the base returns for children.
    constexpr INT_PTR FirstRowTool = 0x10000;
    return FirstRowTool + RowOf(prop) * 2 + (isValue ? 1 : 0);
}
