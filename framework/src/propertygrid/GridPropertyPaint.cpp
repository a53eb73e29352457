// CMFCPropertyGridProperty: drawing the parts of a row, hit test and tool tips.
#include "afxpropertygridctrl.h"
#include "propertyrules/PropertyGridGeometry.h"

namespace
{

constexpr UINT OneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

// Draws one line of text in a cell and returns whether it was cut.
BOOL DrawCellText(CDC& dc, const CString& text, const CRect& cell)
{
    CRect rect = quorfx::TextRectangle(cell).As<CRect>();
    if (rect.Width() <= 0)
        return !text.IsEmpty();
    // A text that needs more than the cell has is measured only as far as it is drawn.
    constexpr int MostDrawn = 4096;
    const int count = (std::min)(text.GetLength(), MostDrawn);
    dc.DrawText(text.GetString(), count, &rect, OneLine);
    return dc.GetTextExtent(text.GetString(), count).cx > rect.Width();
}

} // namespace

CMFCPropertyGridProperty* CMFCPropertyGridProperty::HitTest(CPoint point,
                                                            CMFCPropertyGridProperty::ClickArea* pnArea)
{
    if (m_pWndList == nullptr || !GetRect().PtInRect(point))
        return nullptr;
    if (pnArea != nullptr)
        *pnArea = AreaAt(point);
    return this;
}

CMFCPropertyGridProperty::ClickArea CMFCPropertyGridProperty::AreaAt(CPoint point) const
{
    const CRect row = GetRect();
    const int indent = m_pWndList->IndentOf(*this);
    const int column = m_pWndList->GetLeftColumnWidth();
    const quorfx::Box name = quorfx::NameRectangle(row, m_pWndList->GetRowHeight(), indent, column);
    const bool isBox = point.x < name.left && point.x >= name.left - m_pWndList->GetRowHeight();
    if (isBox && !m_lstSubItems.IsEmpty())
        return ClickExpandBox;
    return point.x > row.left + column && HasValueField() ? ClickValue : ClickName;
}

CRect CMFCPropertyGridProperty::ValueRect() const
{
    return quorfx::ValueRectangle(GetRect(), m_pWndList->GetLeftColumnWidth()).As<CRect>();
}

void CMFCPropertyGridProperty::AdjustButtonRect()
{
    m_rectButton =
        m_pWndList != nullptr && HasButton() ? quorfx::ButtonRectangle(ValueRect()).As<CRect>() : CRect();
}

void CMFCPropertyGridProperty::OnDrawName(CDC* pDC, CRect rect)
{
    m_bNameIsTruncated = DrawCellText(*pDC, m_strName, rect);
}

void CMFCPropertyGridProperty::OnDrawValue(CDC* pDC, CRect rect)
{
    if (m_pWndList == nullptr)
        return;
    CFont* previous = nullptr;
    if (m_pWndList->IsMarkModifiedProperties() && IsModified())
        previous = pDC->SelectObject(&m_pWndList->GetBoldFont());
    m_bValueIsTruncated = DrawCellText(*pDC, FormatProperty(), rect);
    if (previous != nullptr)
        pDC->SelectObject(previous);
}

void CMFCPropertyGridProperty::OnDrawExpandBox(CDC* pDC, CRect rectExpand)
{
    const COLORREF colour =
        m_pWndList == nullptr ? ::GetSysColor(COLOR_WINDOWTEXT) : m_pWndList->GetTextColor();
    const COLORREF background =
        m_pWndList == nullptr ? ::GetSysColor(COLOR_WINDOW) : m_pWndList->GetBkColor();
    pDC->FillSolidRect(rectExpand, background);
    pDC->Draw3dRect(rectExpand, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
    const CPoint centre = rectExpand.CenterPoint();
    const int arm = rectExpand.Width() / 2 - 2;
    pDC->FillSolidRect(centre.x - arm, centre.y, 2 * arm + 1, 1, colour);
    if (!m_bExpanded)
        pDC->FillSolidRect(centre.x, centre.y - arm, 1, 2 * arm + 1, colour);
}

void CMFCPropertyGridProperty::OnDrawButton(CDC* pDC, CRect rectButton)
{
    const UINT state = m_pWndCombo != nullptr ? DFCS_PUSHED : 0;
    pDC->DrawFrameControl(rectButton, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | state);
}

void CMFCPropertyGridProperty::OnDrawDescription(CDC* pDC, CRect rect)
{
    if (m_pWndList == nullptr)
        return;
    CFont* const previous = pDC->SelectObject(&m_pWndList->GetBoldFont());
    CRect nameRect = rect;
    nameRect.bottom = std::min<int>(rect.bottom, rect.top + m_pWndList->GetRowHeight());
    pDC->DrawText(m_strName, nameRect, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    pDC->SelectObject(previous);
    rect.top = nameRect.bottom;
    pDC->DrawText(m_strDescr, rect, DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_EDITCONTROL);
}

CString CMFCPropertyGridProperty::GetNameTooltip()
{
    if (m_bNameIsTruncated || (m_pWndList != nullptr && m_pWndList->IsAlwaysShowUserToolTip()))
        return m_strName;
    return CString();
}

CString CMFCPropertyGridProperty::GetValueTooltip()
{
    const BOOL isWanted =
        m_bValueIsTruncated || (m_pWndList != nullptr && m_pWndList->IsAlwaysShowUserToolTip());
    return isWanted && m_pWndInPlace == nullptr ? FormatProperty() : CString();
}

HBRUSH CMFCPropertyGridProperty::OnCtlColor(CDC*, UINT)
{
    return nullptr;
}
