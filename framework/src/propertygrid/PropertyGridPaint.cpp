// CMFCPropertyGridCtrl: painting. Only the rows in the clip box are looked at.
#include "afxpropertygridctrl.h"
#include "propertygrid/CustomColor.h"
#include "propertyrules/PropertyGridGeometry.h"

namespace
{

// A bitmap to paint on, which the destructor copies to the window in one go.
class PaintBuffer
{
public:
    PaintBuffer(CDC& window, const CRect& rect) : m_window(window), m_rect(rect)
    {
        m_dc.CreateCompatibleDC(&window);
        m_bitmap.CreateCompatibleBitmap(&window, (std::max)(1, rect.Width()), (std::max)(1, rect.Height()));
        m_previous = m_dc.SelectObject(&m_bitmap);
        m_dc.SetViewportOrg(-rect.left, -rect.top);
        m_dc.IntersectClipRect(rect);
    }
    ~PaintBuffer()
    {
        m_window.BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), &m_dc, m_rect.left,
                        m_rect.top, SRCCOPY);
        m_dc.SelectObject(m_previous);
    }
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

    CDC& Dc() { return m_dc; }

private:
    CDC& m_window;
    CRect m_rect;
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_previous;
};

} // namespace

BOOL CMFCPropertyGridCtrl::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CMFCPropertyGridCtrl::OnPaint()
{
    // Moving the children invalidates, so it is done before the update region is read.
    PrepareLayout();
    CPaintDC dc(this);
    PaintBuffer buffer(dc, CRect(dc.m_ps.rcPaint));
    CDC& paper = buffer.Dc();
    CFont* const previous = paper.SelectObject(CFont::FromHandle(reinterpret_cast<HFONT>(OnGetFont(0, 0))));
    paper.SetBkMode(TRANSPARENT);
    OnDrawList(&paper);
    if (m_bDescriptionArea)
    {
        CRect client;
        GetClientRect(client);
        client.top = client.bottom - GetDescriptionHeight();
        OnDrawDescription(&paper, client);
    }
    OnDrawBorder(&paper);
    DrawTrackLine(paper);
    paper.SelectObject(previous);
}

void CMFCPropertyGridCtrl::OnDrawBorder(CDC*) {}

void CMFCPropertyGridCtrl::OnDrawList(CDC* pDC)
{
    const CRect list = GetListRect();
    CRect clip;
    pDC->GetClipBox(clip);
    clip.IntersectRect(CRect(clip), list);
    if (clip.IsRectEmpty() || m_nRowHeight <= 0)
        return;
    pDC->FillSolidRect(clip, GetBkColor());
    const int saved = pDC->SaveDC();
    pDC->IntersectClipRect(list);
    const int first = m_nFirstRow + (clip.top - list.top) / m_nRowHeight;
    for (int row = first; row < RowCount() && RowRect(row).top < clip.bottom; ++row)
        OnDrawProperty(pDC, PropertyOfRow(row));
    pDC->RestoreDC(saved);
}

// A band runs through both columns, in the colours of groups.
BOOL CMFCPropertyGridCtrl::IsBand(const CMFCPropertyGridProperty& prop) const
{
    return prop.m_bGroup && !prop.m_bIsValueList;
}

BOOL CMFCPropertyGridCtrl::IsWide(const CMFCPropertyGridProperty& prop) const
{
    return IsBand(prop) && (m_bGroupNameFullWidth || m_bVSDotNetLook);
}

void CMFCPropertyGridCtrl::DrawRowBackground(CDC& dc, CMFCPropertyGridProperty& prop, const CRect& rect) const
{
    dc.FillSolidRect(rect, IsBand(prop) ? GroupColor() : GetBkColor());
    if (m_bVSDotNetLook)
        dc.FillSolidRect(rect.left, rect.top, m_nRowHeight, rect.Height(), GroupColor());
    dc.FillSolidRect(rect.left, rect.bottom - 1, rect.Width(), 1, LineColor());
    if (!IsWide(prop))
        dc.FillSolidRect(rect.left + m_nLeftColumnWidth, rect.top, 1, rect.Height(), LineColor());
}

void CMFCPropertyGridCtrl::DrawName(CDC& dc, CMFCPropertyGridProperty& prop, const CRect& row) const
{
    CRect name = quorfx::NameRectangle(row, m_nRowHeight, IndentOf(prop), m_nLeftColumnWidth).As<CRect>();
    if (IsWide(prop))
        name.right = row.right;
    const bool isFocused = HasFocusInside(::GetFocus());
    COLORREF color = IsBand(prop) ? ColorOr(m_clrGroupText, COLOR_BTNTEXT) : GetTextColor();
    if (prop.m_bEnabled == FALSE || !IsWindowEnabled())
        color = ::GetSysColor(COLOR_GRAYTEXT);
    if (&prop == m_pSel)
    {
        dc.FillSolidRect(name, ::GetSysColor(isFocused ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
        if (isFocused)
            color = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    }
    CFont* const previous = IsBand(prop) ? dc.SelectObject(const_cast<CFont*>(&m_fontBold)) : nullptr;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(color);
    prop.OnDrawName(&dc, name);
    if (previous != nullptr)
        dc.SelectObject(previous);
}

void CMFCPropertyGridCtrl::DrawValue(CDC& dc, CMFCPropertyGridProperty& prop, const CRect& row) const
{
    CRect value = quorfx::ValueRectangle(row, m_nLeftColumnWidth).As<CRect>();
    prop.AdjustButtonRect();
    const bool hasButton = &prop == m_pSel && prop.HasButton();
    if (hasButton)
        value.right = prop.m_rectButton.left;
    const bool isGrey = !prop.IsEditable() || !IsWindowEnabled();
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(isGrey ? ::GetSysColor(COLOR_GRAYTEXT) : GetTextColor());
    prop.OnDrawValue(&dc, value);
    if (hasButton)
        prop.OnDrawButton(&dc, prop.m_rectButton);
}

int CMFCPropertyGridCtrl::OnDrawProperty(CDC* pDC, CMFCPropertyGridProperty* pProp) const
{
    if (pProp == nullptr)
        return FALSE;
    const CRect row = RowRect(RowOf(pProp));
    DrawRowBackground(*pDC, *pProp, row);
    if (!pProp->m_lstSubItems.IsEmpty())
        pProp->OnDrawExpandBox(
            pDC,
            quorfx::FoldBoxRectangle(row, m_nRowHeight, IndentOf(*pProp), m_nLeftColumnWidth).As<CRect>());
    DrawName(*pDC, *pProp, row);
    if (pProp->HasValueField())
        DrawValue(*pDC, *pProp, row);
    return TRUE;
}

void CMFCPropertyGridCtrl::OnDrawDescription(CDC* pDC, CRect rect)
{
    if (rect.IsRectEmpty())
        return;
    pDC->FillSolidRect(rect, ColorOr(m_clrDescriptionBackground, COLOR_BTNFACE));
    CRect frame = rect;
    frame.top += quorfx::DescriptionBarHeight;
    pDC->Draw3dRect(frame, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
    if (m_pSel == nullptr)
        return;
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(ColorOr(m_clrDescriptionText, COLOR_BTNTEXT));
    frame.DeflateRect(4, 3);
    m_pSel->OnDrawDescription(pDC, frame);
}

// While the column line is dragged, the place where it would go.
void CMFCPropertyGridCtrl::DrawTrackLine(CDC& dc)
{
    if (m_drag != DragColumns || m_bShowDragContext)
        return;
    const CRect list = GetListRect();
    dc.PatBlt(list.left + m_nTrack, list.top, 1, list.Height(), DSTINVERT);
}

void CMFCPropertyGridCtrl::InvalidateTrack()
{
    const CRect list = GetListRect();
    InvalidateRect(CRect(list.left + m_nTrack, list.top, list.left + m_nTrack + 1, list.bottom), FALSE);
}

COLORREF CMFCPropertyGridCtrl::ColorOr(COLORREF custom, int systemColor) const
{
    return custom == SystemColor ? ::GetSysColor(systemColor) : custom;
}

COLORREF CMFCPropertyGridCtrl::GetBkColor() const
{
    return ColorOr(m_clrBackground, COLOR_WINDOW);
}

COLORREF CMFCPropertyGridCtrl::GetTextColor() const
{
    return ColorOr(m_clrText, COLOR_WINDOWTEXT);
}

COLORREF CMFCPropertyGridCtrl::GroupColor() const
{
    return ColorOr(m_clrGroupBackground, COLOR_BTNFACE);
}

COLORREF CMFCPropertyGridCtrl::LineColor() const
{
    return ColorOr(m_clrLine, COLOR_3DLIGHT);
}

void CMFCPropertyGridCtrl::OnEnable(BOOL bEnable)
{
    CWnd::OnEnable(bEnable);
    Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::OnSysColorChange()
{
    CWnd::OnSysColorChange();
    m_brushBackground.DeleteObject();
    Invalidate(FALSE);
}

// The editors look like the cells they stand on, read-only ones too.
HBRUSH CMFCPropertyGridCtrl::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    CWnd* const editor = m_pSel == nullptr ? nullptr : m_pSel->m_pWndInPlace;
    if (editor == nullptr || pWnd->GetSafeHwnd() != editor->m_hWnd)
        return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    pDC->SetTextColor(GetTextColor());
    pDC->SetBkColor(GetBkColor());
    if (const HBRUSH own = m_pSel->OnCtlColor(pDC, nCtlColor))
        return own;
    if (m_brushBackground.GetSafeHandle() == nullptr)
        m_brushBackground.CreateSolidBrush(GetBkColor());
    return m_brushBackground;
}
