// Finds texts that are cut, and shows them over their place.
#include "grid/extras/TGTextTips.h"

#include "grid/TGGrid.h"
#include "grid/extras/TextRuler.h"
#include "grid/extras/TipWindow.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{
namespace
{

// No place; -1 is the row of captions.
constexpr long Nowhere = -2;

CPoint PointUnderMouse(LPARAM lParam)
{
    return CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
}

bool EndsTip(UINT message)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CANCELMODE:
        return true;
    default:
        return false;
    }
}

CRect WorkAreaAround(const CPoint& point)
{
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    if (!::GetMonitorInfo(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &monitor))
        return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    return monitor.rcWork;
}

} // namespace

TGTextTips::TGTextTips() : ruler(std::make_unique<TextRuler>()), tip(std::make_unique<TipWindow>()) {}

TGTextTips::TGTextTips(TGGrid& newGrid) : TGTextTips()
{
    AttachTo(newGrid);
}

TGTextTips::~TGTextTips()
{
    Detach();
}

void TGTextTips::OnDetach(TGGrid&)
{
    tip->DestroyWindow();
    Forget();
}

void TGTextTips::SetDelay(int milliseconds)
{
    delay = (std::max)(milliseconds, -1);
}

CString TGTextTips::GetShownText() const
{
    return shown;
}

// ---- Texts that are cut

// Where a text stands that is as wide as it is, for the alignment that a shortened one has.
bool TGTextTips::IsCut(const TGTextLook& look, const CRect& place, const CRect& view, CutText& cut) const
{
    const bool isShortened = !look.wholeText.IsEmpty();
    cut.text = isShortened ? look.wholeText : look.text;
    cut.font = look.font != nullptr ? look.font : GetGrid()->GetFont();
    if (cut.text.IsEmpty())
        return false;
    const CSize size = ruler->Measure(cut.text, look.format, cut.font);
    const bool hasDots = isShortened || (look.format & (DT_END_ELLIPSIS | DT_PATH_ELLIPSIS)) != 0;
    long left = place.left;
    if (!hasDots && (look.format & DT_RIGHT) != 0)
        left = place.right - size.cx;
    else if (!hasDots && (look.format & DT_CENTER) != 0)
        left = (place.left + place.right - size.cx) / 2;
    cut.place = CRect(CPoint(left, place.top), size);
    cut.format = look.format & ~static_cast<UINT>(DT_END_ELLIPSIS | DT_PATH_ELLIPSIS | DT_WORD_ELLIPSIS);
    const bool isTooWide = isShortened || size.cx > place.Width();
    // The last line may lack what letters have below, as all lines do.
    const bool lacksLines = size.cy - ruler->LineHeight(cut.font) / 2 > place.Height();
    const bool isOutside = cut.place.left < view.left || cut.place.right > view.right;
    return isTooWide || lacksLines || isOutside;
}

bool TGTextTips::FindCutText(long row, long col, CutText& cut) const
{
    if (GetGrid() == nullptr || GetGrid()->GetSafeHwnd() == nullptr || !GetGrid()->IsValidCol(col))
        return false;
    TGGrid& grid = *GetGrid();
    const CRect view = GetView();
    const CPoint origin = ToLogical(CPoint(0, 0));
    TGGridCell* const cell = row >= 0 ? FindCell(row, col) : nullptr;
    if (row >= 0 && cell == nullptr)
        return false;
    if (cell != nullptr)
    {
        const TGTextLook look = GetLook(*cell);
        if (GetGrid() == nullptr || !IsCut(look, GetTextPlace(*cell, look), view, cut))
            return false;
        cut.place.OffsetRect(-origin.x, -origin.y);
        return true;
    }
    // The boxes of the header stand one pixel further right than the columns of the cells.
    const TGTextLook look = GetLook(grid.GetCol(col));
    if (GetGrid() == nullptr || GetColHeader() == nullptr ||
        !IsCut(look, GetTextPlace(grid.GetCol(col), look), view, cut))
        return false;
    cut.place.OffsetRect(1 - origin.x, 0);
    return true;
}

CString TGTextTips::GetTipText(long row, long col) const
{
    CutText cut;
    return row >= -1 && FindCutText(row, col, cut) ? cut.text : CString();
}

// ---- Mouse

bool TGTextTips::OnPreTranslate(MSG& message)
{
    if (EndsTip(message.message))
        Hide();
    return false;
}

bool TGTextTips::OnMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT&)
{
    if (EndsTip(message))
        Hide();
    const bool isGrid = window.m_hWnd == GetGrid()->m_hWnd;
    const bool isHeader = GetColHeader() != nullptr && window.m_hWnd == GetColHeader()->m_hWnd;
    if (message == WM_MOUSEMOVE && (isGrid || isHeader))
        (wParam & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) == 0 ? MoveOver(window, PointUnderMouse(lParam))
                                                               : Forget();
    else if (message == WM_MOUSELEAVE && &window == under)
        Forget();
    else if (message == WM_DESTROY && isGrid)
    {
        tip->DestroyWindow();
        Forget();
    }
    return false;
}

void TGTextTips::MoveOver(CWnd& window, CPoint point)
{
    mouse = point;
    CPoint inGrid = point;
    window.MapWindowPoints(GetGrid(), &inGrid, 1);
    long row = Nowhere;
    long col = Nowhere;
    PointToCell(inGrid, row, col);
    if (window.m_hWnd != GetGrid()->m_hWnd)
        row = -1;
    if (&window == under && row == overRow && col == overCol)
        return;
    Forget();
    under = &window;
    overRow = row;
    overCol = col;
    TRACKMOUSEEVENT leaving = {};
    leaving.cbSize = sizeof(leaving);
    leaving.dwFlags = TME_LEAVE;
    leaving.hwndTrack = window.m_hWnd;
    ::TrackMouseEvent(&leaving);
    CutText cut;
    if (FindCutText(row, col, cut))
        ShowAfterDelay();
}

// What the hooks and other extensions have for the place.
bool TGTextTips::HasOtherTip() const
{
    return under->OnToolHitTest(mouse, nullptr) != -1;
}

// ---- The tip

void TGTextTips::ShowAfterDelay()
{
    if (!tip->MakeWindow(*GetGrid()))
        return;
    const UINT wait = delay < 0 ? ::GetDoubleClickTime() : static_cast<UINT>(delay);
    if (wait == 0)
        Show();
    else
        ::SetTimer(tip->m_hWnd, reinterpret_cast<UINT_PTR>(this), wait, &TGTextTips::OnTime);
}

void TGTextTips::OnTime(HWND window, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(window, timer);
    reinterpret_cast<TGTextTips*>(timer)->Show();
}

// Over an editor there is nothing to be seen of the cell.
bool TGTextTips::IsEdited() const
{
    long row = -1;
    long col = -1;
    return GetGrid()->GetCurCell(row, col) && row == overRow && col == overCol;
}

// A text that is wider than the screen goes on in further lines.
void TGTextTips::Show()
{
    CutText cut;
    const std::weak_ptr<const int> alive = life;
    if (GetGrid() == nullptr || tip->m_hWnd == nullptr || under == nullptr || IsEdited() || HasOtherTip() ||
        alive.expired() || !FindCutText(overRow, overCol, cut))
        return;
    GetGrid()->ClientToScreen(&cut.place);
    const CRect area = WorkAreaAround(cut.place.TopLeft());
    const long widest = area.Width() - 2 * GetGrid()->GetRowHeight();
    if (cut.place.Width() > widest)
    {
        cut.format = (cut.format & ~static_cast<UINT>(DT_SINGLELINE)) | DT_WORDBREAK;
        const CSize size = ruler->MeasureBroken(cut.text, cut.format, cut.font, widest);
        cut.place = CRect(cut.place.TopLeft(), size);
    }
    shown = cut.text;
    tip->Show(cut.text, cut.place, cut.format, *cut.font, area);
}

void TGTextTips::Hide()
{
    const bool wasShown = !shown.IsEmpty();
    shown.Empty();
    if (tip->m_hWnd == nullptr)
        return;
    ::KillTimer(tip->m_hWnd, reinterpret_cast<UINT_PTR>(this));
    if (wasShown)
        tip->Hide();
}

void TGTextTips::Forget()
{
    Hide();
    under = nullptr;
    overRow = Nowhere;
    overCol = Nowhere;
}

// ---- Changes

void TGTextTips::OnTextChanged(TGGridCell& cell, const CString&)
{
    if (cell.GetRowIndex() == overRow && cell.GetColIndex() == overCol)
        Forget();
}

void TGTextTips::OnColResized(TGGridCol&, long)
{
    Forget();
}

void TGTextTips::OnLaidOut()
{
    Forget();
}

void TGTextTips::OnScrolled()
{
    Forget();
}

} // namespace QuorUiCtr
