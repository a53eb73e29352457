// The column header: its caption boxes, the column under a point and its tool tips.
#include "grid/TGColSelector.h"

#include "grid/headers/HeaderBand.h"
#include "grid/model/GridExtensions.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"
#include "grid/window/TipAnswer.h"

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TGColSelector, CWnd)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONUP()
    ON_WM_RBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

TGColSelector::TGColSelector(TGGrid& owner) : grid(&owner)
{
    bkBrush.CreateSolidBrush(::GetSysColor(COLOR_BTNFACE));
    MakeWindow();
}

void TGColSelector::MakeWindow()
{
    if (m_hWnd != nullptr || grid->GetSafeHwnd() == nullptr)
        return;
    moving = false;
    resizing = false;
    resizeCol = -1;
    markX = -1;
    const CString& className = windowClass.Register(bkBrush);
    if (CreateEx(0, className, nullptr, WS_CHILD | WS_VISIBLE, Band().WindowRect(), grid, ColHeaderId))
        EnableToolTips(TRUE);
}

TGColSelector::~TGColSelector()
{
    DestroyWindow();
}

HeaderBand TGColSelector::Band() const
{
    return HeaderBand(*grid, HeaderAxis::Cols);
}

void TGColSelector::OnPaint()
{
    grid->repaintAwaited = false;
    CPaintDC context(this);
    const HeaderPainter painter(context, Band());
    context.SetTextColor(RGB(0, 0, 0));
    context.SetBkMode(TRANSPARENT);
    context.SelectObject(grid->GetFont());
    CRect clip;
    context.GetClipBox(&clip);
    auto col = grid->cols.FindPartition(
        [&clip](const TGGridCol* candidate) { return candidate->GetRight() <= clip.left; });
    for (; col != grid->cols.end() && (*col)->GetLeft() < clip.right; ++col)
    {
        const CRect box = painter.Box((*col)->GetLeft(), (*col)->GetRight());
        if (painter.DrawFrame(box))
        {
            DrawCaption(context, **col, box);
            if (m_hWnd == nullptr)
                return;
        }
    }
}

UINT TGColSelector::CaptionFormat(const TGGridCol& col)
{
    const UINT alignment = col.IsCenterAlign() ? DT_CENTER : DT_LEFT;
    return DT_EDITCONTROL | alignment;
}

CRect TGColSelector::CaptionPlace(const TGGrid& grid, const CRect& box)
{
    return CRect(box.left + 2, grid.GetRowSpace(), box.right, box.bottom - 1);
}

void TGColSelector::DrawCaption(CDC& context, TGGridCol& col, const CRect& box) const
{
    CRect text = CaptionPlace(*grid, box);
    if (grid->extensions != nullptr)
        DrawExtended(context, col, box, text);
    else
        context.DrawText(col.GetName(), &text, CaptionFormat(col));
}

void TGColSelector::DrawExtended(CDC& context, TGGridCol& col, const CRect& box, CRect place) const
{
    TGTextLook look{col.GetName(), context.GetTextColor(), context.GetBkColor(), CaptionFormat(col)};
    grid->extensions->Tell(GridExtensions::CaptionLook, col, look);
    place.DeflateRect(&look.inset);
    const COLORREF textColor = context.SetTextColor(look.textColor);
    CFont* const font = look.font != nullptr ? context.SelectObject(look.font) : nullptr;
    context.DrawText(look.text, &place, look.format);
    if (font != nullptr)
        context.SelectObject(font);
    context.SetTextColor(textColor);
    if (grid->extensions == nullptr)
        return;
    const int saved = context.SaveDC();
    grid->extensions->Tell(GridExtensions::CaptionDrawing, col, context, box);
    context.RestoreDC(saved);
}

long TGColSelector::PtToCol(CPoint point) const
{
    if (grid->GetDC() == nullptr)
        return point.x;
    return grid->ColAtX(Band().LogicalPlace(point));
}

LRESULT TGColSelector::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (grid->extensions != nullptr && grid->extensions->Answer(*this, message, wParam, lParam, result))
        return result;
    return CWnd::WindowProc(message, wParam, lParam);
}

INT_PTR TGColSelector::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const long col = PtToCol(point);
    CString tip;
    if (!grid->IsValidCol(col) ||
        !(grid->OnColTip(col, tip) || grid->HasExtensionTip(TGGridPlace::ColHeader, -1, col, tip)))
        return -1;
    return AnswerTip(*this, tip, col, 0, info);
}

} // namespace QuorUiCtr
