// How the report list draws its current cell.
#include "controls/CGridListCtrl.h"

#include "controls/WindowLife.h"

using namespace QuorUiCtr;

void CGridListCtrl::OnCustomDraw(NMHDR* header, LRESULT* result)
{
    const NMLVCUSTOMDRAW& draw = *reinterpret_cast<const NMLVCUSTOMDRAW*>(header);
    const bool isFocusedRow = (draw.nmcd.uItemState & CDIS_FOCUS) != 0;
    *result = CDRF_DODEFAULT;
    switch (draw.nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT:
        *result = CDRF_NOTIFYITEMDRAW;
        break;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        *result = CDRF_NOTIFYSUBITEMDRAW | CDRF_NOTIFYPOSTPAINT;
        break;
    case CDDS_ITEMPOSTPAINT | CDDS_SUBITEM:
        if (!isFocusedRow || !IsCurrentCell(draw))
            break;
        DrawCurrentCell(draw);
        *result = CDRF_SKIPDEFAULT;
        break;
    default:
        if (isFocusedRow)
            *result = CDRF_NOTIFYSUBITEMDRAW;
        break;
    }
}

BOOL CGridListCtrl::IsCurrentCell(const NMLVCUSTOMDRAW& draw)
{
    return curColumn != -1 && draw.iSubItem == OrderToIndex(curColumn);
}

CRect CGridListCtrl::CellRectangle(const NMLVCUSTOMDRAW& draw)
{
    const int row = static_cast<int>(draw.nmcd.dwItemSpec);
    CRect bounds;
    GetItemRect(row, bounds, LVIR_BOUNDS);
    CRect cell(draw.nmcd.rc);
    if (draw.iSubItem == 0)
        GetItemRect(row, cell, LVIR_LABEL);
    // Platforms differ in whether the rectangle counts from the edge of the row or of the window.
    else if (cell.left != bounds.left + ColumnOffset(draw.iSubItem))
        cell.OffsetRect(bounds.left, 0);
    cell.top = bounds.top;
    cell.bottom = bounds.bottom;
    return cell;
}

void CGridListCtrl::DrawCurrentCell(const NMLVCUSTOMDRAW& draw)
{
    constexpr UINT Format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    CDC* context = CDC::FromHandle(draw.nmcd.hdc);
    const HWND window = m_hWnd;
    const CString text = GetItemText(static_cast<int>(draw.nmcd.dwItemSpec), draw.iSubItem);
    // A list whose texts its owner keeps has asked for this one.
    if (!IsStillWindow(this, window))
        return;
    CRect cell = CellRectangle(draw);
    const int saved = context->SaveDC();
    context->FillSolidRect(cell, ::GetSysColor(COLOR_3DFACE));
    // The platform leaves the colours of a selected row in the context.
    context->SetBkMode(TRANSPARENT);
    context->SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    const int margin = 2 * context->GetTextExtent(L" ", 1).cx;
    cell.DeflateRect(margin, 0);
    context->DrawText(text, cell, Format);
    cell.InflateRect(margin, 0);
    context->Draw3dRect(cell, ::GetSysColor(COLOR_3DSHADOW), ::GetSysColor(COLOR_3DFACE));
    cell.DeflateRect(1, 1);
    context->Draw3dRect(cell, ::GetSysColor(COLOR_3DDKSHADOW), ::GetSysColor(COLOR_3DHIGHLIGHT));
    context->RestoreDC(saved);
}
