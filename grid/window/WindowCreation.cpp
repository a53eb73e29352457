// TGGrid's window: its message map, creation, fonts and header windows.
#include "grid/window/GridLayout.h"
#include "grid/model/GridExtensions.h"
#include "grid/TGActiveQuad.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"

#include <algorithm>
#include <cstdlib>

namespace QuorUiCtr
{

namespace
{

// The font's description; the system font's for a null font, which is what null means to WM_GETFONT.
LOGFONT DescribeFont(HFONT font)
{
    LOGFONT description = {};
    const HGDIOBJ source = font != nullptr ? font : ::GetStockObject(SYSTEM_FONT);
    ::GetObject(source, sizeof(description), &description);
    return description;
}

HFONT FontOfParent(const CWnd& window)
{
    const HWND parent = ::GetParent(window.GetSafeHwnd());
    return parent == nullptr ? nullptr : reinterpret_cast<HFONT>(::SendMessage(parent, WM_GETFONT, 0, 0));
}

// New windows come last among their siblings, whose order is the one of the Tab key.
void PlaceBehind(HWND window, HWND sibling)
{
    ::SetWindowPos(window, ::IsWindow(sibling) ? sibling : HWND_TOP, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// A grid whose window is made a second time has the object already, and code of it may be running: a hook of
// it can make the grid's window anew.
template <class Header> void MakeHeader(Header*& header, bool shown, TGGrid& grid)
{
    if (!shown)
        return;
    if (header == nullptr)
        header = new Header(grid);
    else
        header->MakeWindow();
}

} // namespace

BEGIN_MESSAGE_MAP(TGGrid, CWnd)
    ON_WM_SIZE()
    ON_MESSAGE(WM_SETFONT, &TGGrid::OnSetFont)
    ON_MESSAGE(WM_SETREDRAW, &TGGrid::OnSetRedraw)
    ON_MESSAGE(WM_SETTEXT, &TGGrid::OnSetText)
    ON_WM_CANCELMODE()
    ON_WM_GETDLGCODE()
    ON_WM_PAINT()
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_CREATE()
    ON_WM_CTLCOLOR()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_SETCURSOR()
    ON_WM_ERASEBKGND()
    ON_WM_KILLFOCUS()
    ON_WM_SETFOCUS()
    ON_WM_DESTROY()
    ON_WM_RBUTTONUP()
    ON_WM_TIMER()
    ON_CBN_SELCHANGE(CellEditorId, &TGGrid::OnCbnSelchange)
    ON_CBN_EDITCHANGE(CellEditorId, &TGGrid::OnCbnEditChange)
END_MESSAGE_MAP()

BOOL TGGrid::Create(const RECT& rect, DWORD windowStyle, CWnd* parent)
{
    return CreateEx(0, windowClass.Register(backBrush), nullptr, windowStyle, rect, parent, 0);
}

BOOL TGGrid::Create(CWnd* parent, UINT id, DWORD windowStyle)
{
    CWnd* placeholder = parent == nullptr ? nullptr : parent->GetDlgItem(static_cast<int>(id));
    if (placeholder == nullptr)
        return FALSE;
    CRect rect;
    placeholder->GetWindowRect(&rect);
    parent->ScreenToClient(&rect);
    const HWND before = ::GetWindow(placeholder->m_hWnd, GW_HWNDPREV);
    placeholder->DestroyWindow();
    if (!CreateEx(0, windowClass.Register(backBrush), nullptr, windowStyle, rect, parent, id))
        return FALSE;
    PlaceBehind(m_hWnd, before);
    return TRUE;
}

LRESULT TGGrid::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (extensions != nullptr && extensions->Answer(*this, message, wParam, lParam, result))
        return result;
    return CWnd::WindowProc(message, wParam, lParam);
}

int TGGrid::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    Layout(*this).CreateFont();
    RecalcLayout(1);
    // Inside the layout of another grid the one of this grid has to wait, and hit tests need the context.
    PrepareDC(nullptr);
    EnableToolTips(TRUE);
    Layout(*this).CreateHeaders();
    return 0;
}

void TGGrid::Layout::CreateHeaders()
{
    MakeHeader(grid.colHeader, grid.IsColSel(), grid);
    MakeHeader(grid.rowHeader, grid.IsRowSel(), grid);
    MakeHeader(grid.quad, grid.IsColSel() && grid.IsRowSel(), grid);
    grid.headerMeasure = CSize(grid.GetRowHeight(), grid.GetColHeaderHeight());
}

void TGGrid::Layout::CreateFont()
{
    if (grid.font.GetSafeHandle() == nullptr)
        AdoptFont(FontOfParent(grid), DEFAULT_QUALITY);
}

void TGGrid::Layout::AdoptFont(HFONT source, BYTE quality)
{
    LOGFONT description = DescribeFont(source);
    description.lfWidth = 0;
    description.lfQuality = quality;
    grid.ClearDC();
    grid.font.DeleteObject();
    grid.font.CreateFontIndirect(&description);
    grid.textHeight = std::abs(description.lfHeight) + 1;
    // Positions are divided by the row height.
    grid.rowSpace = (std::max)(grid.rowSpace, 1 - grid.textHeight);
}

LRESULT TGGrid::OnSetFont(WPARAM newFont, LPARAM)
{
    Default();
    Layout(*this).AdoptFont(reinterpret_cast<HFONT>(newFont), PROOF_QUALITY);
    RecalcLayout(1);
    // A layout that is postponed or refused leaves the grid without a context for hit tests.
    PrepareDC(nullptr);
    return 0;
}

LRESULT TGGrid::OnSetRedraw(WPARAM, LPARAM)
{
    repaintAwaited = false;
    return Default();
}

LRESULT TGGrid::OnSetText(WPARAM, LPARAM)
{
    Default();
    RecalcLayout(1);
    return 0;
}

void TGGrid::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    RecalcLayout(0);
}

void TGGrid::PostNcDestroy()
{
    ClearDC();
    // Editors delete themselves with their windows, which are gone by now.
    editCell = nullptr;
    cellLock = nullptr;
    cellCtrl = nullptr;
    vScrollShown = false;
    hScrollShown = false;
    layoutPending = false;
    redrawPending = false;
    repaintAwaited = false;
    barStale = false;
    showPending = false;
    for (BarPicture& picture : barPictures)
        picture = {};
    CWnd::PostNcDestroy();
}

} // namespace QuorUiCtr
