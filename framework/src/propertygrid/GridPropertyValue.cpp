// CMFCPropertyGridProperty: values, original values and options.
#include "afxpropertygridctrl.h"
#include "propertygrid/PropertyValueText.h"

CString CMFCPropertyGridProperty::m_strFormatShort = _T("%d");
CString CMFCPropertyGridProperty::m_strFormatLong = _T("%ld");
CString CMFCPropertyGridProperty::m_strFormatFloat = _T("%f");
CString CMFCPropertyGridProperty::m_strFormatDouble = _T("%lf");

namespace
{

quorfx::FlagLabels LabelsOf(const CString& on, const CString& off)
{
    return {on, off};
}

} // namespace

void CMFCPropertyGridProperty::SetValue(const _variant_t& varValue)
{
    if (m_varValue.vt != VT_EMPTY && m_varValue.vt != varValue.vt)
    {
        TRACE(L"Property '%s' refused a value of another type.\n", static_cast<LPCTSTR>(m_strName));
        return;
    }
    m_varValue = varValue;
    if (m_pWndInPlace != nullptr)
        ShowText();
    RedrawWithParents();
}

void CMFCPropertyGridProperty::SetOriginalValue(const COleVariant& varValue)
{
    m_varValueOrig = varValue;
    Redraw();
}

void CMFCPropertyGridProperty::ResetOriginalValue()
{
    m_varValue = static_cast<const VARIANT&>(m_varValueOrig);
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount(); ++i)
        m_lstSubItems[i]->ResetOriginalValue();
    if (m_pWndInPlace != nullptr)
        ShowText();
    RedrawWithParents();
}

BOOL CMFCPropertyGridProperty::IsValueChanged() const
{
    return !(m_varValueOrig == static_cast<const VARIANT&>(m_varValue));
}

BOOL CMFCPropertyGridProperty::IsModified() const
{
    if (!m_bIsValueList)
        return IsValueChanged();
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount(); ++i)
        if (m_lstSubItems[i]->IsModified())
            return TRUE;
    return FALSE;
}

CString CMFCPropertyGridProperty::FormatProperty()
{
    if (m_bIsValueList)
        return FormatValueList();
    if (m_pWndList == nullptr)
        return quorfx::FormatValue(m_varValue, LabelsOf(_T("True"), _T("False")));
    return quorfx::FormatValue(m_varValue, LabelsOf(m_pWndList->m_strTrue, m_pWndList->m_strFalse));
}

CString CMFCPropertyGridProperty::FormatValueList()
{
    const TCHAR delimiter = m_pWndList == nullptr ? _T(',') : m_pWndList->m_cListDelimiter;
    CString text;
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount(); ++i)
    {
        if (i > 0)
        {
            text += delimiter;
            text += _T(' ');
        }
        text += m_lstSubItems[i]->FormatProperty();
    }
    return text;
}

BOOL CMFCPropertyGridProperty::TextToVar(const CString& strText)
{
    if (m_bIsValueList)
    {
        int start = 0;
        return ReadValueList(strText, start);
    }
    if (m_pWndList == nullptr)
        return quorfx::ParseValue(strText, LabelsOf(_T("True"), _T("False")), m_varValue);
    return quorfx::ParseValue(strText, LabelsOf(m_pWndList->m_strTrue, m_pWndList->m_strFalse), m_varValue);
}

// Gives the sub-items the parts of the text from nStart on, which moves behind the last one used. A part that
// is no value, or is not there, leaves its sub-item alone. Returns whether any part was a value.
BOOL CMFCPropertyGridProperty::ReadValueList(const CString& strText, int& nStart)
{
    const TCHAR delimiter = m_pWndList == nullptr ? _T(',') : m_pWndList->m_cListDelimiter;
    BOOL read = FALSE;
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount() && nStart <= strText.GetLength(); ++i)
    {
        CMFCPropertyGridProperty& subItem = *m_lstSubItems[i];
        if (subItem.m_bIsValueList)
        {
            read = subItem.ReadValueList(strText, nStart) || read;
            continue;
        }
        const int found = strText.Find(delimiter, nStart);
        const int end = found < 0 ? strText.GetLength() : found;
        CString part = strText.Mid(nStart, end - nStart);
        part.Trim();
        nStart = end + 1;
        if (subItem.m_bEnabled && subItem.TextToVar(part))
        {
            subItem.ClampToRange();
            read = TRUE;
        }
    }
    return read;
}

void CMFCPropertyGridProperty::ClampToRange()
{
    if (!m_bHasSpin || m_nMinValue >= m_nMaxValue)
        return;
    const long long number = quorfx::IntegerOf(m_varValue);
    quorfx::SetInteger(m_varValue, std::clamp<long long>(number, m_nMinValue, m_nMaxValue));
}

// Takes a text of the user's as the value and tells the grid of a change. The host may delete this property
// then, so nothing may come after it.
BOOL CMFCPropertyGridProperty::ApplyText(const CString& strText)
{
    const CString textBefore = FormatProperty();
    if (strText == textBefore)
        return TRUE;
    const COleVariant valueBefore(static_cast<const VARIANT&>(m_varValue));
    if (!TextToVar(strText))
        return TRUE;
    ClampToRange();
    const BOOL isSame = m_bIsValueList ? FormatProperty() == textBefore
                                       : valueBefore == static_cast<const VARIANT&>(m_varValue);
    if (isSame)
        return TRUE;
    RedrawWithParents();
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount(); ++i)
        m_lstSubItems[i]->Redraw();
    if (m_pWndList != nullptr)
        m_pWndList->OnPropertyChanged(this);
    return TRUE;
}

BOOL CMFCPropertyGridProperty::AddOption(LPCTSTR lpszOption, BOOL bInsertUnique)
{
    if (lpszOption == nullptr || (bInsertUnique && m_lstOptions.Find(lpszOption) != nullptr))
        return FALSE;
    m_lstOptions.AddTail(lpszOption);
    Redraw();
    return TRUE;
}

void CMFCPropertyGridProperty::RemoveAllOptions()
{
    m_lstOptions.RemoveAll();
    Redraw();
}

LPCTSTR CMFCPropertyGridProperty::GetOption(int nIndex) const
{
    const POSITION position = m_lstOptions.FindIndex(nIndex);
    return position == nullptr ? nullptr : m_lstOptions.GetAt(position).GetString();
}

void CMFCPropertyGridProperty::EnableSpinControl(BOOL bEnable, int nMin, int nMax)
{
    m_bHasSpin = bEnable && quorfx::IsSpinType(m_varValue.vt);
    m_nMinValue = nMin;
    m_nMaxValue = nMax;
}

// What the user can choose from: the options, or the two labels of a flag.
void CMFCPropertyGridProperty::CollectOptions(CStringArray& options) const
{
    if (m_varValue.vt == VT_BOOL && m_pWndList != nullptr)
    {
        options.Add(m_pWndList->m_strTrue);
        options.Add(m_pWndList->m_strFalse);
        return;
    }
    for (POSITION position = m_lstOptions.GetHeadPosition(); position != nullptr;)
        options.Add(m_lstOptions.GetNext(position));
}

BOOL CMFCPropertyGridProperty::HasButton() const
{
    return IsEditable() && (m_varValue.vt == VT_BOOL || !m_lstOptions.IsEmpty());
}

BOOL CMFCPropertyGridProperty::IsEditable() const
{
    if (!m_bEnabled || !HasValueField())
        return FALSE;
    if (m_bIsValueList)
        return m_bAllowEdit;
    if (!quorfx::IsEditableType(m_varValue.vt))
        return FALSE;
    return m_bAllowEdit || m_varValue.vt == VT_BOOL || !m_lstOptions.IsEmpty();
}

BOOL CMFCPropertyGridProperty::IsTypingAllowed() const
{
    return m_bAllowEdit && m_varValue.vt != VT_BOOL;
}
