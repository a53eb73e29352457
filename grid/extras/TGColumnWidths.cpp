// Measures columns, and steers the drag of an edge that the column header makes.
#include "grid/extras/TGColumnWidths.h"

#include "grid/extras/MousePoint.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"
#include "grid/TGUserAction.h"
#include "grid/extras/TextRuler.h"
#include "rules/ColumnEdges.h"
#include "rules/WidestTexts.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace QuorUiCtr
{
namespace
{

// As for every column.
constexpr long WidestFit = 65535;

// What is free between a text and the next column.
constexpr long Air = 3;

} // namespace

TGColumnWidths::TGColumnWidths() : ruler(std::make_unique<TextRuler>()) {}

TGColumnWidths::TGColumnWidths(TGGrid& newGrid) : TGColumnWidths()
{
    AttachTo(newGrid);
}

TGColumnWidths::~TGColumnWidths()
{
    Detach();
}

void TGColumnWidths::OnDetach(TGGrid&)
{
    caughtAt = 0;
    passing = false;
}

bool TGColumnWidths::IsCalledFirst() const
{
    return true;
}

// ---- Measuring

// With what is beside the text. Other extensions are asked, which may detach this one: there is no grid any
// more afterwards.
long TGColumnWidths::WidthOfText(const TGTextLook& look, const CRect& place, const TGGridCol& col) const
{
    const CString& whole = look.wholeText.IsEmpty() ? look.text : look.wholeText;
    if (whole.IsEmpty())
        return 0;
    CFont* const font = look.font != nullptr ? look.font : GetGrid()->GetFont();
    return ruler->Measure(whole, look.format, font).cx + col.GetWidth() - place.Width() + Air;
}

long TGColumnWidths::WidthOfCell(long row, long col) const
{
    TGGridCell* const cell = GetGrid() != nullptr ? FindCell(row, col) : nullptr;
    if (cell == nullptr)
        return 0;
    const TGTextLook look = GetLook(*cell);
    return GetGrid() != nullptr ? WidthOfText(look, GetTextPlace(*cell, look), cell->GetCol()) : 0;
}

long TGColumnWidths::WidthOfCaption(TGGridCol& col) const
{
    const TGTextLook look = GetLook(col);
    return GetGrid() != nullptr ? WidthOfText(look, GetTextPlace(col, look), col) : 0;
}

long TGColumnWidths::WidestVisible(long col) const
{
    TGGrid& grid = *GetGrid();
    const CRect view = GetView();
    const long first = (std::max)(view.top / grid.GetRowHeight(), 0L);
    const long last = (std::min)(view.bottom / grid.GetRowHeight(), grid.GetRowNum() - 1);
    long widest = 0;
    for (long row = first; row <= last; ++row)
        widest = (std::max)(widest, WidthOfCell(row, col));
    return widest;
}

// In a tree the texts of deep rows begin further right.
long TGColumnWidths::WidestOfAll(long col) const
{
    TGGrid& grid = *GetGrid();
    CFont* const font = grid.GetFont();
    TextRuler estimating;
    WidestTexts widestTexts;
    for (long row = 0, number = grid.GetRowNum(); row < number; ++row)
    {
        TGGridCell* const cell = FindCell(row, col);
        if (cell == nullptr || cell->GetText().IsEmpty())
            continue;
        const bool isInTree = col == 0 && cell->GetRow().IsTreeRow();
        const long indent = isInTree ? cell->GetCol().GetWidth() - GetTextPlace(*cell, {}).Width() : 0;
        widestTexts.Add(row, static_cast<std::size_t>(cell->GetText().GetLength()),
                        estimating.Estimate(cell->GetText(), font) + indent);
    }
    long widest = 0;
    for (const long row : widestTexts.Items())
        widest = (std::max)(widest, WidthOfCell(row, col));
    return widest;
}

long TGColumnWidths::GetFitWidth(long col, Cells what) const
{
    if (GetGrid() == nullptr || !GetGrid()->IsValidCol(col))
        return -1;
    TGGrid& grid = *GetGrid();
    const long caption = WidthOfCaption(grid.GetCol(col));
    if (GetGrid() == nullptr)
        return -1;
    const long widest = what == Cells::All ? WidestOfAll(col) : WidestVisible(col);
    return std::clamp((std::max)(widest, caption), grid.GetRowHeight(), WidestFit);
}

bool TGColumnWidths::FitCol(long col, Cells what)
{
    const long width = GetFitWidth(col, what);
    if (width < 0 || GetGrid() == nullptr)
        return false;
    GetGrid()->GetCol(col).SetWidth(width);
    return true;
}

void TGColumnWidths::FitCols(Cells what)
{
    if (GetGrid() == nullptr)
        return;
    const TGGridUpdate update(*GetGrid());
    for (long col = 0; GetGrid() != nullptr && col < GetGrid()->GetColNum(); ++col)
        FitCol(col, what);
}

// ---- Edges

long TGColumnWidths::LogicalX(CWnd& header, CPoint point) const
{
    header.MapWindowPoints(GetGrid(), &point, 1);
    return ToLogical(point).x;
}

long TGColumnWidths::RightOf(long col) const
{
    return GetBlockRect(0, col, -1, col).right;
}

// The column whose right edge is meant; -1 where none is.
long TGColumnWidths::EdgeUnder(CWnd& header, CPoint point) const
{
    TGGrid& grid = *GetGrid();
    if (grid.IsColFixWidth())
        return -1;
    return NearestEdge(LogicalX(header, point), Reach, grid.GetColNum(),
                       [this](long i) { return RightOf(i); });
}

// ---- Messages

bool TGColumnWidths::OnPreTranslate(MSG& message)
{
    return message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE && CancelDrag();
}

bool TGColumnWidths::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    result = 0;
    if (message == WM_KEYDOWN)
        return wParam == VK_ESCAPE && CancelDrag();
    CWnd* const header = GetColHeader();
    if (header == nullptr || window.m_hWnd != header->m_hWnd || std::exchange(passing, false))
        return false;
    switch (message)
    {
    case WM_SETCURSOR:
        return ShowEdgeCursor(window, result);
    case WM_LBUTTONDOWN:
        return Catch(window, wParam, MousePoint(lParam), result);
    case WM_LBUTTONDBLCLK:
        return PressTwice(window, MousePoint(lParam));
    case WM_MOUSEMOVE:
        return caughtAt != 0 && PassOn(window, message, wParam, MousePoint(lParam), result);
    case WM_LBUTTONUP:
        return caughtAt != 0 && PassOn(window, message, wParam, MousePoint(lParam), result);
    case WM_CAPTURECHANGED:
        caughtAt = 0;
        return false;
    default:
        return false;
    }
}

bool TGColumnWidths::ShowEdgeCursor(CWnd& header, LRESULT& result) const
{
    CPoint point;
    ::GetCursorPos(&point);
    header.ScreenToClient(&point);
    if (EdgeUnder(header, point) == -1)
        return false;
    ::SetCursor(::LoadCursor(nullptr, IDC_SIZEWE));
    result = TRUE;
    return true;
}

// The header drags edges that are hit exactly: it gets to know points that are moved to the edge.
bool TGColumnWidths::Catch(CWnd& header, WPARAM keys, CPoint point, LRESULT& result)
{
    caughtAt = 0;
    const long edge = EdgeUnder(header, point);
    if (edge == -1)
        return false;
    caughtAt = LogicalX(header, point) - RightOf(edge);
    return caughtAt != 0 && PassOn(header, WM_LBUTTONDOWN, keys, point, result);
}

// What comes of it may close the window, or detach this object.
bool TGColumnWidths::PassOn(CWnd& header, UINT message, WPARAM keys, CPoint point, LRESULT& result)
{
    const CPoint atEdge(point.x - caughtAt, point.y);
    passing = true;
    result = header.SendMessage(message, keys, MAKELPARAM(atEdge.x, atEdge.y));
    return true;
}

bool TGColumnWidths::PressTwice(CWnd& header, CPoint point)
{
    const long edge = EdgeUnder(header, point);
    if (edge == -1)
        return false;
    const TGUserAction action(*GetGrid(), TGActionKind::ResizeCols);
    FitCol(edge, doubleClickCells);
    return true;
}

// The header drops a drag that loses the capture.
bool TGColumnWidths::CancelDrag()
{
    const HWND capture = ::GetCapture();
    const int id = capture != nullptr ? ::GetDlgCtrlID(capture) : 0;
    const bool isHeader = id == static_cast<int>(ColHeaderId) || id == static_cast<int>(RowHeaderId);
    if (!isHeader || ::GetParent(capture) != GetGrid()->m_hWnd)
        return false;
    ::ReleaseCapture();
    return true;
}

} // namespace QuorUiCtr
