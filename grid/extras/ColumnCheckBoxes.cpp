// The check boxes of formatted columns: where they stand, and what the mouse and Space do to them.
#include "grid/extras/TGColumnFormats.h"

#include "grid/extras/MousePoint.h"
#include "grid/TGGrid.h"
#include "grid/TGUserAction.h"
#include "rules/ValueTexts.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace QuorUiCtr
{
namespace
{

constexpr long LargestBox = 13;

bool IsBlank(const CString& text)
{
    return CString(text).Trim().IsEmpty();
}

} // namespace

bool TGColumnFormats::IsBox(const TGGridCell& cell) const
{
    const TGColumnFormat* const format = FindFormat(cell.GetCol());
    return format != nullptr && format->checkBox && HasRow(cell) &&
           (IsBlank(cell.GetText()) || ReadTruth(cell.GetText().GetString()).has_value());
}

bool TGColumnFormats::IsChecked(const TGGridCell& cell) const
{
    return ReadTruth(cell.GetText().GetString()).value_or(false);
}

bool TGColumnFormats::IsCheckBox(long row, long col, bool* checked) const
{
    const TGGridCell* const cell = GetGrid() != nullptr ? FindCell(row, col) : nullptr;
    if (cell == nullptr || !IsBox(*cell))
        return false;
    if (checked != nullptr)
        *checked = IsChecked(*cell);
    return true;
}

// In the middle of the cell's height, which `place` has less of.
CRect TGColumnFormats::BoxPlace(const CRect& place, TGAlign align) const
{
    const long height = GetGrid()->GetRowHeight();
    const long size = (std::max)((std::min)(LargestBox, height - 4), 1L);
    const long top = place.bottom - (height + size) / 2;
    const long left = align == TGAlign::Left    ? place.left
                      : align == TGAlign::Right ? place.right - size
                                                : (place.left + place.right - size) / 2;
    return CRect(left, top, left + size, top + size);
}

bool TGColumnFormats::OnDrawContent(TGGridCell& cell, CDC& context, const CRect& place, const TGTextLook&)
{
    if (!IsBox(cell))
        return false;
    CRect box = BoxPlace(place, FindFormat(cell.GetCol())->align);
    const bool isFixed = cell.IsReadOnly() || FullCellFormat(cell).readOnly;
    const UINT state =
        DFCS_BUTTONCHECK | DFCS_FLAT | (IsChecked(cell) ? DFCS_CHECKED : 0U) | (isFixed ? DFCS_INACTIVE : 0U);
    const int saved = context.SaveDC();
    context.IntersectClipRect(&place);
    context.DrawFrameControl(&box, DFC_BUTTON, state);
    context.RestoreDC(saved);
    return true;
}

bool TGColumnFormats::IsOnBox(CPoint point, long& row, long& col) const
{
    PointToCell(point, row, col);
    TGGridCell* const cell = FindRow(row) != nullptr ? FindCell(row, col) : nullptr;
    if (cell == nullptr || !IsBox(*cell))
        return false;
    const TGTextLook look = GetLook(*cell);
    const TGColumnFormat* const format = GetGrid() != nullptr ? FindFormat(cell->GetCol()) : nullptr;
    return format != nullptr &&
           BoxPlace(GetTextPlace(*cell, look), format->align).PtInRect(ToLogical(point)) != FALSE;
}

// ---- Mouse and Space

// The click goes on to the grid and the other extensions: it sets a cursor, and ends an edit.
bool TGColumnFormats::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    if (window.m_hWnd != GetGrid()->m_hWnd)
        return false;
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (!IsOnBox(MousePoint(lParam), pressedRow, pressedCol))
            pressedRow = -1;
        return false;
    case WM_LBUTTONUP:
        ReleaseAt(MousePoint(lParam));
        return false;
    case WM_MOUSEMOVE:
        if ((wParam & MK_LBUTTON) == 0)
            pressedRow = -1;
        return false;
    case WM_CHAR:
        result = 0;
        return wParam == VK_SPACE && PressSpace();
    default:
        return false;
    }
}

void TGColumnFormats::ReleaseAt(CPoint point)
{
    const long row = std::exchange(pressedRow, -1);
    long onRow = -1;
    long onCol = -1;
    if (row >= 0 && IsOnBox(point, onRow, onCol) && onRow == row && onCol == pressedCol)
        Toggle(row, onCol);
}

bool TGColumnFormats::PressSpace()
{
    long row = -1;
    long col = -1;
    if (GetGrid()->IsEditing())
        return false;
    if (!FindCurrentCell(row, col))
        return ToggleSelected();
    if (!IsCheckBox(row, col))
        return false;
    Toggle(row, col);
    return true;
}

bool TGColumnFormats::ToggleCell(TGGridCell& cell)
{
    const TGColumnFormat* const format = FindFormat(cell.GetCol());
    if (format == nullptr || !IsBox(cell))
        return false;
    const auto other = OppositeTruth(cell.GetText().GetString(), format->checkedText.GetString());
    return other && TypeInto(cell, other->c_str());
}

bool TGColumnFormats::Toggle(long row, long col)
{
    TGGridCell* const cell = GetGrid() != nullptr ? FindCell(row, col) : nullptr;
    const std::weak_ptr<const int> alive = life;
    if (cell == nullptr)
        return false;
    const TGUserAction action(*GetGrid(), TGActionKind::Type);
    if (!ToggleCell(*cell))
        return false;
    if (!alive.expired() && GetGrid() != nullptr)
        TellDataChanged();
    return true;
}

// Hooks may change the rows: what is no check box any more is left out.
bool TGColumnFormats::ToggleSelected()
{
    TGGrid& grid = *GetGrid();
    struct Place
    {
        long row;
        long col;
    };
    std::vector<Place> boxes;
    for (long k = 0; k < grid.GetRowSelNum(); ++k)
    {
        const long row = grid.GetSelRow(k).GetIndex();
        for (long col = 0; col < grid.GetColNum(); ++col)
            if (IsCheckBox(row, col))
            {
                boxes.push_back({row, col});
                break;
            }
    }
    if (boxes.empty())
        return false;
    bool first = false;
    IsCheckBox(boxes.front().row, boxes.front().col, &first);
    const TGUserAction action(grid, TGActionKind::Type);
    const std::weak_ptr<const int> alive = life;
    bool anyChanged = false;
    for (const Place& place : boxes)
    {
        bool checked = false;
        if (alive.expired())
            return true;
        if (IsCheckBox(place.row, place.col, &checked) && checked == first)
            anyChanged = ToggleCell(*FindCell(place.row, place.col)) || anyChanged;
    }
    if (!alive.expired() && anyChanged && GetGrid() != nullptr)
        TellDataChanged();
    return true;
}

} // namespace QuorUiCtr
