// CMFCPropertyGridCtrl: rows, areas, columns, fonts and scrolling.
#include "afxpropertygridctrl.h"
#include "propertyrules/PropertyGridGeometry.h"
#include "propertygrid/PropertyGridWatch.h"

#include <algorithm>

using quorfx::PropertyGridAreas;
using quorfx::PropertyGridMetrics;

namespace
{

constexpr UINT HeaderId = 2;
constexpr UINT ScrollBarId = 3;
constexpr int RowMargin = 4;

int HeightOfHeader(CMFCHeaderCtrl& header)
{
    CRect rect(0, 0, 100, 100);
    WINDOWPOS position = {};
    HDLAYOUT layout = {&rect, &position};
    return header.Layout(&layout) ? position.cy : 0;
}

} // namespace

// ---- Rows.

void CMFCPropertyGridCtrl::RowsChanged(BOOL bRedraw)
{
    m_bRowsDirty = TRUE;
    m_bLayoutDirty = TRUE;
    if (bRedraw && m_hWnd != nullptr)
        Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::AdjustLayout()
{
    RowsChanged(TRUE);
}

void CMFCPropertyGridCtrl::AddRowsOf(CMFCPropertyGridProperty& prop)
{
    if (!prop.m_bVisible)
        return;
    prop.m_nRow = static_cast<int>(m_rows.Add(&prop));
    for (INT_PTR i = 0; prop.m_bExpanded && i < prop.m_lstSubItems.GetCount(); ++i)
        AddRowsOf(*prop.m_lstSubItems[i]);
}

// Alphabetic mode shows what is in the groups; a value list is one property.
void CMFCPropertyGridCtrl::CollectTerminals(CMFCPropertyGridProperty& prop)
{
    if (!prop.m_bVisible)
        return;
    if (!prop.m_bGroup || prop.m_bIsValueList)
    {
        m_terminals.Add(&prop);
        return;
    }
    for (INT_PTR i = 0; i < prop.m_lstSubItems.GetCount(); ++i)
        CollectTerminals(*prop.m_lstSubItems[i]);
}

void CMFCPropertyGridCtrl::PrepareTerminals()
{
    if (!m_bTerminalsDirty)
        return;
    m_terminals.SetSize(0);
    for (INT_PTR i = 0; i < m_lstProps.GetCount(); ++i)
        CollectTerminals(*m_lstProps[i]);
    CMFCPropertyGridProperty** const first = m_terminals.GetData();
    std::stable_sort(first, first + m_terminals.GetCount(),
                     [this](const CMFCPropertyGridProperty* left, const CMFCPropertyGridProperty* right) {
                         return CompareProps(left, right) < 0;
                     });
    m_bTerminalsDirty = FALSE;
}

void CMFCPropertyGridCtrl::PrepareRows() const
{
    if (!m_bRowsDirty)
        return;
    CMFCPropertyGridCtrl& self = const_cast<CMFCPropertyGridCtrl&>(*this);
    self.m_rows.SetSize(0);
    if (m_bAlphabeticMode)
        self.PrepareTerminals();
    const Properties& roots = m_bAlphabeticMode ? m_terminals : m_lstProps;
    for (INT_PTR i = 0; i < roots.GetCount(); ++i)
        self.AddRowsOf(*roots[i]);
    self.m_bRowsDirty = FALSE;
}

int CMFCPropertyGridCtrl::RowCount() const
{
    PrepareRows();
    return static_cast<int>(m_rows.GetCount());
}

CMFCPropertyGridProperty* CMFCPropertyGridCtrl::PropertyOfRow(int row) const
{
    return row >= 0 && row < RowCount() ? m_rows[row] : nullptr;
}

// The row number that a property keeps is right only if that row is the property's.
int CMFCPropertyGridCtrl::RowOf(const CMFCPropertyGridProperty* pProp) const
{
    PrepareRows();
    return pProp != nullptr && PropertyOfRow(pProp->m_nRow) == pProp ? pProp->m_nRow : -1;
}

int CMFCPropertyGridCtrl::IndentOf(const CMFCPropertyGridProperty& prop) const
{
    int level = 0;
    for (const CMFCPropertyGridProperty* parent = prop.m_pParent; parent != nullptr;
         parent = parent->m_pParent)
        if (!m_bAlphabeticMode || !parent->m_bGroup || parent->m_bIsValueList)
            ++level;
    return m_bAlphabeticMode ? level : (std::max)(0, level - 1);
}

// ---- Areas.

void CMFCPropertyGridCtrl::PrepareLayout() const
{
    if (!m_bLayoutDirty || m_bInLayout || m_hWnd == nullptr)
        return;
    CMFCPropertyGridCtrl& self = const_cast<CMFCPropertyGridCtrl&>(*this);
    self.m_bInLayout = TRUE;
    self.CreateChildren();
    self.m_bLayoutDirty = FALSE;
    self.PlaceChildren();
    self.m_bInLayout = FALSE;
    if (m_pSel != nullptr && m_pSel->IsInPlaceEditing())
        m_pSel->OnPosSizeChanged(m_pSel->GetRect());
}

void CMFCPropertyGridCtrl::CreateChildren()
{
    if (m_wndHeader.m_hWnd == nullptr)
    {
        m_wndHeader.Create(WS_CHILD | HDS_HORZ | HDS_FULLDRAG, CRect(), this, HeaderId);
        InitHeader();
    }
    if (m_wndScroll.m_hWnd == nullptr)
        m_wndScroll.Create(WS_CHILD | SBS_VERT, CRect(), this, ScrollBarId);
}

void CMFCPropertyGridCtrl::InitHeader()
{
    while (m_wndHeader.GetItemCount() > 0)
        m_wndHeader.DeleteItem(0);
    m_wndHeader.SendMessage(WM_SETFONT, static_cast<WPARAM>(OnGetFont(0, 0)), FALSE);
    const CString* const titles[] = {&m_strLeftColumn, &m_strRightColumn};
    for (int i = 0; i < 2; ++i)
    {
        HDITEM item = {};
        item.mask = HDI_TEXT | HDI_FORMAT;
        item.pszText = const_cast<LPTSTR>(titles[i]->GetString());
        item.fmt = HDF_LEFT | HDF_STRING;
        m_wndHeader.InsertItem(i, &item);
    }
}

int CMFCPropertyGridCtrl::GetHeaderHeight() const
{
    if (!m_bHeaderCtrl || m_wndHeader.m_hWnd == nullptr)
        return 0;
    return HeightOfHeader(const_cast<CMFCHeaderCtrl&>(m_wndHeader));
}

namespace
{

PropertyGridAreas AreasOf(const CMFCPropertyGridCtrl& grid, int rowCount, int descriptionRows)
{
    CRect client;
    grid.GetClientRect(client);
    const PropertyGridMetrics metrics = {grid.GetRowHeight(), grid.GetHeaderHeight(), descriptionRows,
                                         ::GetSystemMetrics(SM_CXVSCROLL)};
    return quorfx::ComputeAreas(client.Width(), client.Height(), metrics, rowCount);
}

} // namespace

void CMFCPropertyGridCtrl::PlaceChildren()
{
    const PropertyGridAreas areas = AreasOf(*this, RowCount(), m_bDescriptionArea ? m_nDescrRows : 0);
    if (m_nLeftColumnWidth < 0)
        m_nLeftColumnWidth = areas.list.Width() / 2;
    else if (areas.list.Width() != m_nLayoutWidth && areas.list.Width() > 0)
        m_nLeftColumnWidth = quorfx::ScaleColumn(m_nLeftColumnWidth, m_nLayoutWidth, areas.list.Width());
    if (areas.list.Width() > 0)
    {
        m_nLayoutWidth = areas.list.Width();
        m_nLeftColumnWidth = quorfx::ClampColumn(m_nLeftColumnWidth, m_nLayoutWidth, m_nRowHeight);
    }
    PlaceHeader(areas.header.As<CRect>());
    m_nFirstRow = quorfx::ClampFirstRow(m_nFirstRow, RowCount(), quorfx::FullRows(areas.list, m_nRowHeight));
    PlaceScrollBar(areas.scrollBar.As<CRect>());
}

void CMFCPropertyGridCtrl::PlaceHeader(const CRect& rect)
{
    const UINT show = rect.IsRectEmpty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW;
    m_wndHeader.SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                             SWP_NOZORDER | SWP_NOACTIVATE | show);
    const int widths[] = {m_nLeftColumnWidth, (std::max)(0, rect.Width() - m_nLeftColumnWidth)};
    for (int i = 0; i < 2; ++i)
    {
        HDITEM item = {};
        item.mask = HDI_WIDTH;
        item.cxy = widths[i];
        m_wndHeader.SetItem(i, &item);
    }
}

// Setting a scroll bar is slow, so it is only done when something changes.
void CMFCPropertyGridCtrl::PlaceScrollBar(const CRect& rect)
{
    const UINT show = rect.IsRectEmpty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW;
    m_wndScroll.SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                             SWP_NOZORDER | SWP_NOACTIVATE | show);
    SCROLLINFO old = {};
    m_wndScroll.GetScrollInfo(&old);
    SCROLLINFO info = {};
    info.fMask = SIF_ALL;
    info.nMax = (std::max)(0, RowCount() - 1);
    info.nPage = static_cast<UINT>(quorfx::FullRows(rect, m_nRowHeight));
    info.nPos = m_nFirstRow;
    if (old.nMax != info.nMax || old.nPage != info.nPage || old.nPos != info.nPos)
        m_wndScroll.SetScrollInfo(&info, !rect.IsRectEmpty());
}

CRect CMFCPropertyGridCtrl::GetListRect() const
{
    PrepareLayout();
    return m_hWnd == nullptr
               ? CRect()
               : AreasOf(*this, RowCount(), m_bDescriptionArea ? m_nDescrRows : 0).list.As<CRect>();
}

int CMFCPropertyGridCtrl::GetDescriptionHeight() const
{
    if (m_hWnd == nullptr || !m_bDescriptionArea)
        return 0;
    PrepareLayout();
    return AreasOf(*this, RowCount(), m_nDescrRows).description.Height();
}

int CMFCPropertyGridCtrl::GetPropertyColumnWidth() const
{
    return (std::max)(0, GetListRect().Width() - GetLeftColumnWidth());
}

int CMFCPropertyGridCtrl::GetLeftColumnWidth() const
{
    PrepareLayout();
    return (std::max)(0, m_nLeftColumnWidth);
}

CRect CMFCPropertyGridCtrl::RowRect(int row) const
{
    // Asking for the list may move the first row.
    const CRect list = GetListRect();
    return quorfx::RowRectangle(list, m_nRowHeight, m_nFirstRow, row).As<CRect>();
}

void CMFCPropertyGridCtrl::RedrawRow(int row)
{
    if (m_hWnd != nullptr && row >= 0)
        InvalidateRect(RowRect(row), FALSE);
}

void CMFCPropertyGridCtrl::SetColumnWidth(int width)
{
    const int clamped = quorfx::ClampColumn(width, GetListRect().Width(), m_nRowHeight);
    if (clamped == m_nLeftColumnWidth)
        return;
    m_nLeftColumnWidth = clamped;
    m_bLayoutDirty = TRUE;
    Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType == SIZE_MINIMIZED)
        return;
    m_bLayoutDirty = TRUE;
    Invalidate(FALSE);
}

// ---- Fonts.

LRESULT CMFCPropertyGridCtrl::OnSetFont(WPARAM wParam, LPARAM lParam)
{
    m_hFont = reinterpret_cast<HFONT>(wParam);
    UpdateFonts();
    if (m_wndHeader.m_hWnd != nullptr)
        m_wndHeader.SendMessage(WM_SETFONT, wParam, FALSE);
    if (m_pSel != nullptr && m_pSel->m_pWndInPlace != nullptr)
        m_pSel->m_pWndInPlace->SendMessage(WM_SETFONT, wParam, TRUE);
    RowsChanged(LOWORD(lParam) != 0);
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnGetFont(WPARAM, LPARAM)
{
    if (m_hFont == nullptr && m_fontOwn.GetSafeHandle() == nullptr)
        UpdateFonts();
    return reinterpret_cast<LRESULT>(m_hFont != nullptr ? m_hFont : static_cast<HFONT>(m_fontOwn));
}

// Makes the bold font and the row height from the font in use.
void CMFCPropertyGridCtrl::UpdateFonts()
{
    if (m_fontOwn.GetSafeHandle() == nullptr)
    {
        NONCLIENTMETRICS metrics = {};
        metrics.cbSize = sizeof(metrics);
        ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
        m_fontOwn.CreateFontIndirect(&metrics.lfMessageFont);
    }
    const HFONT font = m_hFont != nullptr ? m_hFont : static_cast<HFONT>(m_fontOwn);
    LOGFONT description = {};
    ::GetObject(font, sizeof(description), &description);
    description.lfWeight = FW_BOLD;
    m_fontBold.DeleteObject();
    m_fontBold.CreateFontIndirect(&description);

    const HDC screen = ::GetDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(screen, font);
    TEXTMETRIC metrics = {};
    ::GetTextMetrics(screen, &metrics);
    ::SelectObject(screen, previous);
    ::ReleaseDC(nullptr, screen);
    m_nRowHeight = metrics.tmHeight + RowMargin;
}

// ---- Scrolling.

CScrollBar* CMFCPropertyGridCtrl::GetScrollBarCtrl(int nBar) const
{
    const bool isThere = nBar == SB_VERT && m_wndScroll.m_hWnd != nullptr;
    return isThere ? const_cast<CScrollBar*>(&m_wndScroll) : nullptr;
}

int CMFCPropertyGridCtrl::VisibleRows() const
{
    return quorfx::FullRows(GetListRect(), m_nRowHeight);
}

// Returns whether the grid scrolled; an open editor is closed first and may refuse.
BOOL CMFCPropertyGridCtrl::ScrollTo(int firstRow)
{
    PrepareLayout();
    if (quorfx::ClampFirstRow(firstRow, RowCount(), VisibleRows()) == m_nFirstRow)
        return FALSE;
    PropertyGridWatch self(m_pWatches);
    if (!EndEditItem() || self.IsGone())
        return FALSE;
    m_nFirstRow = quorfx::ClampFirstRow(firstRow, RowCount(), VisibleRows());
    m_bLayoutDirty = TRUE;
    InvalidateRect(GetListRect(), FALSE);
    return TRUE;
}

void CMFCPropertyGridCtrl::EnsureVisible(CMFCPropertyGridProperty* pProp, BOOL bExpandParents)
{
    if (pProp == nullptr || pProp->m_pWndList != this || m_hWnd == nullptr)
        return;
    for (CMFCPropertyGridProperty* parent = pProp->m_pParent; bExpandParents && parent != nullptr;
         parent = parent->m_pParent)
        parent->Expand();
    PrepareLayout();
    const int row = RowOf(pProp);
    if (row >= 0)
        ScrollTo(quorfx::FirstRowShowing(row, m_nFirstRow, VisibleRows()));
}

void CMFCPropertyGridCtrl::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar == nullptr || pScrollBar->m_hWnd != m_wndScroll.m_hWnd)
    {
        CWnd::OnVScroll(nSBCode, nPos, pScrollBar);
        return;
    }
    PrepareLayout();
    SCROLLINFO info = {};
    m_wndScroll.GetScrollInfo(&info);
    switch (nSBCode)
    {
    case SB_LINEUP:
        ScrollTo(m_nFirstRow - 1);
        break;
    case SB_LINEDOWN:
        ScrollTo(m_nFirstRow + 1);
        break;
    case SB_PAGEUP:
        ScrollTo(m_nFirstRow - VisibleRows());
        break;
    case SB_PAGEDOWN:
        ScrollTo(m_nFirstRow + VisibleRows());
        break;
    case SB_TOP:
        ScrollTo(0);
        break;
    case SB_BOTTOM:
        ScrollTo(RowCount());
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        ScrollTo(info.nTrackPos);
        break;
    default:
        break;
    }
}

BOOL CMFCPropertyGridCtrl::OnMouseWheel(UINT, short zDelta, CPoint)
{
    constexpr int RowsPerNotch = 3;
    PrepareLayout();
    m_nWheelRest += zDelta * RowsPerNotch;
    const int rows = m_nWheelRest / WHEEL_DELTA;
    m_nWheelRest -= rows * WHEEL_DELTA;
    ScrollTo(m_nFirstRow - rows);
    return TRUE;
}
