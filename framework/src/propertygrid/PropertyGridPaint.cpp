// CMFCPropertyGridCtrl: painting. Only the rows in the clip box are looked at.
#include "afxpropertygridctrl.h"
#include "propertygrid/PropertyGridGeometry.h"

namespace
{

constexpr COLORREF SystemColor = static_cast<COLORREF>(-1);

// A bitmap to paint on, which the destructor copies to the window in one go.
class PaintBuffer
{
public:
    PaintBuffer(CDC& window, const CRect& rect) : m_window(window), m_rect(rect)
    {
        m_dc.CreateCompatibleDC(&window);
        m_bitmap.CreateCompatibleBitmap(&window, std::max(1, rect.Width()), std::max(1, rect.Height()));
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

void CMFCPropertyGridCtrl::DrawRowBackground(CDC& dc, CMFCPropertyGridProperty& prop, const CRect& rect) const
{
    const bool isBand = prop.IsGroup() && !prop.m_bIsValueList;
    dc.FillSolidRect(rect, isBand ? GroupColor() : GetBkColor());
    if (m_bVSDotNetLook)
        dc.FillSolidRect(rect.left, rect.top, m_nRowHeight, rect.Height(), GroupColor());
    dc.FillSolidRect(rect.left, rect.bottom - 1, rect.Width(), 1, LineColor());
    if (!isBand || !(m_bGroupNameFullWidth || m_bVSDotNetLook))
        dc.FillSolidRect(rect.left + m_nLeftColumnWidth, rect.top, 1, rect.Height(), LineColor());
}

int CMFCPropertyGridCtrl::OnDrawProperty(CDC* pDC, CMFCPropertyGridProperty* pProp) const
{
    if (pProp == NULL)
        return FALSE;
    const int row = RowOf(pProp);
    const CRect rect = RowRect(row);
    const bool isBand = pProp->IsGroup() && !pProp->m_bIsValueList;
    const bool isWide = isBand && (m_bGroupNameFullWidth || m_bVSDotNetLook);
    const bool isFocused = HasFocusInside(::GetFocus());
    DrawRowBackground(*pDC, *pProp, rect);

    const int indent = IndentOf(*pProp);
    if (!pProp->m_lstSubItems.IsEmpty())
        pProp->OnDrawExpandBox(pDC, quorfx::FoldBoxRectangle(rect, m_nRowHeight, indent, m_nLeftColumnWidth));

    CRect name = quorfx::NameRectangle(rect, m_nRowHeight, indent, m_nLeftColumnWidth);
    if (isWide)
        name.right = rect.right;
    COLORREF textColor = isBand ? ColorOr(m_clrGroupText, COLOR_BTNTEXT) : GetTextColor();
    const COLORREF greyColor = ::GetSysColor(COLOR_GRAYTEXT);
    const bool isOff = !pProp->m_bEnabled || !IsWindowEnabled();
    if (pProp == m_pSel)
    {
        pDC->FillSolidRect(name, ::GetSysColor(isFocused ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
        textColor = ::GetSysColor(isFocused ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT);
    }
    CFont* const previous = isBand ? pDC->SelectObject(const_cast<CFont*>(&m_fontBold)) : NULL;
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(isOff && !(pProp == m_pSel && isFocused) ? greyColor : textColor);
    pProp->OnDrawName(pDC, name);
    if (previous != NULL)
        pDC->SelectObject(previous);
    if (!pProp->HasValueField())
        return TRUE;

    CRect value = quorfx::ValueRectangle(rect, m_nLeftColumnWidth);
    pProp->AdjustButtonRect();
    const bool hasButton = pProp == m_pSel && pProp->HasButton();
    if (hasButton)
        value.right = pProp->m_rectButton.left;
    pDC->SetTextColor(isOff || !pProp->IsEditable() ? greyColor : GetTextColor());
    pProp->OnDrawValue(pDC, value);
    if (hasButton)
        pProp->OnDrawButton(pDC, pProp->m_rectButton);
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
    if (m_pSel == NULL)
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
    CWnd* const editor = m_pSel == NULL ? NULL : m_pSel->m_pWndInPlace;
    if (editor == NULL || pWnd->GetSafeHwnd() != editor->m_hWnd)
        return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    pDC->SetTextColor(GetTextColor());
    pDC->SetBkColor(GetBkColor());
    if (const HBRUSH own = m_pSel->OnCtlColor(pDC, nCtlColor))
        return own;
    if (m_brushBackground.GetSafeHandle() == NULL)
        m_brushBackground.CreateSolidBrush(GetBkColor());
    return m_brushBackground;
}
