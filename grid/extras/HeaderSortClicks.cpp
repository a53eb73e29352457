// Sorting by header clicks: what is a click and what a drag, and the arrows in the captions.
#include "grid/extras/TGHeaderSort.h"

#include "grid/extras/MousePoint.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"

#include <algorithm>
#include <cstdlib>

namespace QuorUiCtr
{
namespace
{

LPARAM PackedPoint(CPoint point)
{
    return MAKELPARAM(static_cast<WORD>(point.x), static_cast<WORD>(point.y));
}

// Room at both sides of an arrow.
constexpr int ArrowMargin = 4;

int ArrowHeight(int rowHeight)
{
    return (std::max)(rowHeight / 5, 3);
}

// A triangle of lines, as wide at its foot as twice its height.
void DrawArrow(CDC& context, int left, int top, int height, bool up)
{
    const COLORREF colour = ::GetSysColor(COLOR_BTNTEXT);
    for (int line = 0; line < height; ++line)
    {
        const int inset = up ? height - 1 - line : line;
        context.FillSolidRect(left + inset, top + line, 2 * (height - inset) - 1, 1, colour);
    }
}

} // namespace

// ---- Mouse

bool TGHeaderSort::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    const bool isButton = message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
    if (passing || (!isButton && pressed == nullptr) || window.m_hWnd == nullptr ||
        window.m_hWnd == GetGrid()->m_hWnd || window.GetDlgCtrlID() != static_cast<int>(ColHeaderId))
        return false;
    result = 0;
    return AnswerHeader(window, message, wParam, lParam);
}

bool TGHeaderSort::AnswerHeader(CWnd& header, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return Press(header, MousePoint(lParam), wParam);
    case WM_LBUTTONUP:
        return Release(header, MousePoint(lParam));
    case WM_MOUSEMOVE:
        return (wParam & MK_LBUTTON) != 0 && BeginDrag(header, MousePoint(lParam));
    case WM_CAPTURECHANGED:
        pressed = nullptr;
        return false;
    default:
        return false;
    }
}

// Edges, and what selects and nothing else, are the header's.
bool TGHeaderSort::Press(CWnd& header, CPoint point, WPARAM pressKeys)
{
    pressed = nullptr;
    const long col = IsOnEdge(header, point) ? -1 : ColAt(header, point);
    if (!IsSortable(col) || (selecting == Selecting::ControlClick && (pressKeys & MK_CONTROL) != 0))
        return false;
    pressed = &GetGrid()->GetCol(col);
    pressPoint = point;
    pressAdds = (pressKeys & MK_SHIFT) != 0;
    if (selecting == Selecting::EveryClick)
        return false;
    // The end of an edit runs hooks, which may close the window or delete this object.
    const std::weak_ptr<int> alive = life;
    GetGrid()->SetFocus();
    if (!alive.expired() && pressed != nullptr && header.m_hWnd != nullptr)
        header.SetCapture();
    return true;
}

// What a click selects is selected before it sorts.
bool TGHeaderSort::Release(CWnd& header, CPoint point)
{
    CRect area;
    header.GetClientRect(&area);
    const bool isClick = area.PtInRect(point) && ColAt(header, point) == pressed->GetIndex();
    const std::weak_ptr<int> alive = life;
    if (selecting == Selecting::EveryClick)
    {
        passing = true;
        header.SendMessage(WM_LBUTTONUP, 0, PackedPoint(point));
        if (!alive.expired())
            passing = false;
    }
    if (alive.expired())
        return true;
    // Losing the capture ends a press.
    TGGridCol* const col = pressed;
    const bool adds = pressAdds;
    if (CWnd::GetCapture() == &header)
        ::ReleaseCapture();
    pressed = nullptr;
    if (isClick && col != nullptr && GetGrid() != nullptr)
        ClickCol(*col, adds);
    return true;
}

// Beyond the distance that the system has for it, a press is no click any more: the header drags the column,
// which it does when that is selected. Hooks may delete this object and the column.
bool TGHeaderSort::BeginDrag(CWnd& header, CPoint point)
{
    if (std::abs(point.x - pressPoint.x) <= ::GetSystemMetrics(SM_CXDRAG))
        return false;
    if (selecting == Selecting::EveryClick || GetGrid()->IsColPosFix())
    {
        if (selecting != Selecting::EveryClick && CWnd::GetCapture() == &header)
            ::ReleaseCapture();
        pressed = nullptr;
        return false;
    }
    const std::weak_ptr<int> alive = life;
    const auto goesOn = [&] { return !alive.expired() && pressed != nullptr && GetGrid() != nullptr; };
    if (!GetGrid()->IsColSelected(pressed->GetIndex()))
    {
        GetGrid()->UnSelect();
        if (goesOn())
            GetGrid()->SelectCol(pressed->GetIndex(), true);
    }
    if (!goesOn() || header.m_hWnd == nullptr)
        return true;
    pressed = nullptr;
    passing = true;
    header.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, PackedPoint(pressPoint));
    if (!alive.expired())
        passing = false;
    return false;
}

void TGHeaderSort::ClickCol(TGGridCol& col, bool add)
{
    Sort(KeysAfterClick(col.GetIndex(), add));
}

// Ascending, descending, not at all.
std::vector<TGSortKey> TGHeaderSort::KeysAfterClick(long col, bool add) const
{
    std::vector<TGSortKey> wanted = GetKeys();
    const auto isClicked = [col](const TGSortKey& key) { return key.col == col; };
    if (!add && (wanted.size() != 1 || !isClicked(wanted.front())))
        return {{col, true}};
    const auto key = std::find_if(wanted.begin(), wanted.end(), isClicked);
    if (key == wanted.end())
        wanted.push_back({col, true});
    else if (key->ascending)
        key->ascending = false;
    else
        wanted.erase(key);
    return wanted;
}

// ---- Places

// -1 beside the columns.
long TGHeaderSort::ColAt(const CWnd& header, CPoint point) const
{
    header.MapWindowPoints(GetGrid(), &point, 1);
    long row = -1;
    long col = -1;
    PointToCell(point, row, col);
    return GetGrid()->IsValidCol(col) ? col : -1;
}

// Where the header drags edges: the right edge of a column and the pixel before it.
bool TGHeaderSort::IsOnEdge(const CWnd& header, CPoint point) const
{
    if (GetGrid()->IsColFixWidth())
        return false;
    const long found = ColAt(header, point);
    const long col = found >= 0 ? found : GetGrid()->GetColNum();
    header.MapWindowPoints(GetGrid(), &point, 1);
    const long x = ToLogical(point).x;
    for (const long candidate : {col - 1, col})
        if (GetGrid()->IsValidCol(candidate))
            if (const long edge = GetCellRect(0, candidate).right; edge == x || edge == x + 1)
                return true;
    return false;
}

// ---- Painting

long TGHeaderSort::KeyOf(const TGGridCol& col) const
{
    const auto key = std::find_if(keys.begin(), keys.end(),
                                  [&col](const Key& candidate) { return candidate.col == &col; });
    return key != keys.end() ? static_cast<long>(key - keys.begin()) : -1;
}

int TGHeaderSort::ArrowWidth() const
{
    const int rowHeight = static_cast<int>(GetGrid()->GetRowHeight());
    return 2 * ArrowHeight(rowHeight) - 1 + 2 * ArrowMargin + (keys.size() > 1 ? rowHeight / 2 : 0);
}

// Right-aligned captions end where they end without an arrow.
void TGHeaderSort::OnCaptionLook(TGGridCol& col, TGTextLook& look)
{
    arrowLeft = (look.format & DT_RIGHT) != 0;
    if (KeyOf(col) >= 0)
        (arrowLeft ? look.inset.left : look.inset.right) += ArrowWidth();
}

void TGHeaderSort::OnDrawCaption(TGGridCol& col, CDC& context, const CRect& box)
{
    const long key = KeyOf(col);
    if (key < 0)
        return;
    // In a narrow column the caption does not show through.
    const int width = ArrowWidth();
    const int right = arrowLeft ? box.left + 2 + width : box.right - 2;
    const CRect patch(right - width, box.top + 2, right, box.bottom - 2);
    context.IntersectClipRect(CRect(box.left + 1, box.top + 1, box.right - 1, box.bottom - 1));
    context.FillSolidRect(patch, ::GetSysColor(COLOR_BTNFACE));
    const int height = ArrowHeight(static_cast<int>(GetGrid()->GetRowHeight()));
    const int left = patch.left + ArrowMargin;
    const int middle = (box.top + box.bottom) / 2;
    DrawArrow(context, left, middle - height / 2, height, keys[static_cast<std::size_t>(key)].ascending);
    if (keys.size() < 2)
        return;
    CString number;
    number.Format(L"%d", static_cast<int>(key) + 1);
    context.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    context.SetBkMode(TRANSPARENT);
    context.TextOut(left + 2 * height + 1, middle - context.GetTextExtent(number).cy / 2, number);
}

void TGHeaderSort::InvalidateHeader() const
{
    CWnd* const header = GetGrid() != nullptr && GetGrid()->GetSafeHwnd() != nullptr
                             ? GetGrid()->GetDlgItem(ColHeaderId)
                             : nullptr;
    if (header != nullptr)
        header->Invalidate();
}

} // namespace QuorUiCtr
