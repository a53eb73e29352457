// Painting: the tree's own picture through a buffer, and the labels and the insertion line of a drag.
#include "treedrag/CTreeCtrlDrag.h"
#include "rules/TreeDragRules.h"

#include <algorithm>

namespace QuorUiCtr
{

namespace
{

constexpr UINT MeasureLabel = DT_SINGLELINE | DT_NOCLIP | DT_CALCRECT | DT_END_ELLIPSIS;
constexpr UINT DrawLabel = DT_SINGLELINE | DT_NOCLIP | DT_END_ELLIPSIS;

} // namespace

BOOL CTreeCtrlDrag::OnEraseBkgnd(CDC*)
{
    return FALSE;
}

void CTreeCtrlDrag::OnPaint()
{
    CPaintDC screen(this);
    CRect client;
    GetClientRect(client);
    CRect clip;
    screen.GetClipBox(clip);
    if (client.IsRectEmpty() || clip.IsRectEmpty())
        return;
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height());
    CBitmap* previousBitmap = memory.SelectObject(&bitmap);
    CRgn clipRegion;
    clipRegion.CreateRectRgnIndirect(clip);
    memory.SelectClipRgn(&clipRegion);

    PaintTree(memory, client);
    screen.BitBlt(clip.left, clip.top, clip.Width(), clip.Height(), &memory, clip.left, clip.top, SRCCOPY);
    memory.SelectObject(previousBitmap);
}

void CTreeCtrlDrag::PaintTree(CDC& context, const CRect& client)
{
    CWnd::DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(context.GetSafeHdc()), 0);
    if (isDragging)
        PaintDragLabels(context, client);
}

// The labels are painted over, so that selection and drop highlight do not show: the insertion line alone
// says where a drop goes.
void CTreeCtrlDrag::PaintDragLabels(CDC& context, const CRect& client)
{
    const auto forEachShownItem = [this](auto action) {
        HTREEITEM item = GetFirstVisibleItem();
        for (UINT i = 0; i <= GetVisibleCount() && item != nullptr; ++i, item = GetNextVisibleItem(item))
            action(item);
    };
    CBrush background(::GetSysColor(COLOR_WINDOW));
    forEachShownItem([&](HTREEITEM item) {
        CRect label;
        GetItemRect(item, label, TRUE);
        label.right = client.right;
        context.FillRect(label, &background);
    });
    forEachShownItem([&](HTREEITEM item) { PaintDragLabel(context, item, client.right); });
}

void CTreeCtrlDrag::PaintDragLabel(CDC& context, HTREEITEM item, int clientRight)
{
    CRect label;
    GetItemRect(item, label, TRUE);
    label.right = std::min<LONG>(label.right, clientRight - 2);
    CRect textArea(label.left + 2, label.top + 1, label.right + 2, label.bottom);
    const CString text = GetItemText(item);
    CFont* previousFont = context.SelectObject(GetFont());
    context.SetBkMode(TRANSPARENT);
    context.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    context.DrawText(text, textArea, MeasureLabel);
    label.right = textArea.right + 2;
    if ((GetItemState(item, TVIS_SELECTED) & TVIS_SELECTED) != 0)
        context.DrawFocusRect(label);
    if (item == dropTarget)
    {
        const bool goesInside = !dropAbove && IsItemEmptyFolder(item);
        DrawDropTargetLine(label + CPoint(goesInside ? GetParentToChildIndent() : 0, 0), &context);
    }
    context.DrawText(text, textArea, DrawLabel);
    context.SelectObject(previousFont);
}

void CTreeCtrlDrag::DrawDropTargetLine(CRect rect, CDC* context)
{
    CRect client;
    GetClientRect(client);
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CPen* previousPen = context->SelectObject(&pen);
    for (const LineStroke& stroke : InsertionLine(rect, client.right, dropAbove != FALSE))
    {
        context->MoveTo(stroke.from.As<CPoint>());
        context->LineTo(stroke.to.As<CPoint>());
    }
    context->SelectObject(previousPen);
}

} // namespace QuorUiCtr
