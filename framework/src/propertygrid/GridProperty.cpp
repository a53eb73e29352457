// CMFCPropertyGridProperty: the tree of properties, their names and states.
#include "afxpropertygridctrl.h"
#include "propertygrid/PropertyGridWatch.h"

IMPLEMENT_DYNAMIC(CMFCPropertyGridProperty, CObject)

CMFCPropertyGridProperty::CMFCPropertyGridProperty(const CString& strGroupName, DWORD_PTR dwData,
                                                   BOOL bIsValueList)
    : m_strName(strGroupName), m_dwData(dwData)
{
    Init();
    m_bGroup = TRUE;
    m_bIsValueList = bIsValueList;
    m_bExpanded = !bIsValueList;
}

CMFCPropertyGridProperty::CMFCPropertyGridProperty(const CString& strName, const _variant_t& varValue,
                                                   LPCTSTR lpszDescr, DWORD_PTR dwData, LPCTSTR lpszEditMask,
                                                   LPCTSTR lpszEditTemplate, LPCTSTR lpszValidChars)
    : m_varValue(varValue),
      m_strName(strName),
      m_strDescr(lpszDescr),
      m_strEditMask(lpszEditMask),
      m_strEditTempl(lpszEditTemplate),
      m_strValidChars(lpszValidChars),
      m_varValueOrig(static_cast<const VARIANT&>(varValue)),
      m_dwData(dwData)
{
    Init();
}

void CMFCPropertyGridProperty::Init()
{
    m_pWndList = nullptr;
    m_pParent = nullptr;
    m_bGroup = FALSE;
    m_bIsValueList = FALSE;
    m_bExpanded = FALSE;
    m_bVisible = TRUE;
    m_bEnabled = TRUE;
    m_bAllowEdit = TRUE;
    m_bNameIsTruncated = FALSE;
    m_bValueIsTruncated = FALSE;
    m_bHasSpin = FALSE;
    m_nMinValue = 0;
    m_nMaxValue = 0;
    m_pWndInPlace = nullptr;
    m_pWndCombo = nullptr;
    m_pWndSpin = nullptr;
    m_nRow = -1;
    m_pWatches = nullptr;
}

CMFCPropertyGridProperty::~CMFCPropertyGridProperty()
{
    LeaveOwner();
    PropertyGridWatch::TellAll(m_pWatches);
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount(); ++i)
    {
        m_lstSubItems[i]->m_pParent = nullptr;
        delete m_lstSubItems[i];
    }
}

// Unlinks the property, with all in it, from what owns it.
void CMFCPropertyGridProperty::LeaveOwner()
{
    CMFCPropertyGridCtrl* const list = m_pWndList;
    if (list != nullptr)
    {
        list->PropertyGone(this);
        SetOwnerList(nullptr);
    }
    if (m_pParent != nullptr)
        m_pParent->ForgetSubItem(this);
    else if (list != nullptr)
        list->ForgetTopLevel(this);
    m_pParent = nullptr;
}

void CMFCPropertyGridProperty::ForgetSubItem(const CMFCPropertyGridProperty* pProp)
{
    for (INT_PTR i = m_lstSubItems.GetCount() - 1; i >= 0; --i)
    {
        if (m_lstSubItems[i] == pProp)
        {
            m_lstSubItems.RemoveAt(i);
            return;
        }
    }
}

void CMFCPropertyGridProperty::SetOwnerList(CMFCPropertyGridCtrl* pWndList)
{
    m_pWndList = pWndList;
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount(); ++i)
        m_lstSubItems[i]->SetOwnerList(pWndList);
}

// Whether pProp is this property or somewhere in it.
BOOL CMFCPropertyGridProperty::Contains(const CMFCPropertyGridProperty* pProp) const
{
    while (pProp != nullptr && pProp != this)
        pProp = pProp->m_pParent;
    return pProp != nullptr;
}

BOOL CMFCPropertyGridProperty::IsSubItem(CMFCPropertyGridProperty* pProp) const
{
    return pProp != this && Contains(pProp);
}

BOOL CMFCPropertyGridProperty::AddSubItem(CMFCPropertyGridProperty* pProp)
{
    if (pProp == nullptr || pProp->m_pParent != nullptr || pProp->m_pWndList != nullptr ||
        pProp->Contains(this))
        return FALSE;
    m_lstSubItems.Add(pProp);
    pProp->m_pParent = this;
    if (m_pWndList != nullptr)
    {
        pProp->SetOwnerList(m_pWndList);
        m_pWndList->m_bTerminalsDirty = TRUE;
        AdjustLayout();
    }
    return TRUE;
}

BOOL CMFCPropertyGridProperty::RemoveSubItem(CMFCPropertyGridProperty*& pProp, BOOL bDelete)
{
    if (pProp == nullptr || pProp->m_pParent != this)
        return FALSE;
    pProp->LeaveOwner();
    if (bDelete)
    {
        delete pProp;
        pProp = nullptr;
    }
    return TRUE;
}

CMFCPropertyGridProperty* CMFCPropertyGridProperty::GetSubItem(int nIndex) const
{
    return nIndex >= 0 && nIndex < GetSubItemsCount() ? m_lstSubItems[nIndex] : nullptr;
}

int CMFCPropertyGridProperty::GetExpandedSubItems(BOOL bIncludeHidden) const
{
    if (!m_bExpanded)
        return 0;
    int count = 0;
    for (INT_PTR i = 0; i < m_lstSubItems.GetCount(); ++i)
    {
        const CMFCPropertyGridProperty& subItem = *m_lstSubItems[i];
        if (bIncludeHidden || subItem.m_bVisible)
            count += 1 + subItem.GetExpandedSubItems(bIncludeHidden);
    }
    return count;
}

int CMFCPropertyGridProperty::GetHierarchyLevel() const
{
    int level = 0;
    for (const CMFCPropertyGridProperty* parent = m_pParent; parent != nullptr; parent = parent->m_pParent)
        ++level;
    return level;
}

BOOL CMFCPropertyGridProperty::IsParentExpanded() const
{
    for (const CMFCPropertyGridProperty* parent = m_pParent; parent != nullptr; parent = parent->m_pParent)
        if (!parent->m_bExpanded)
            return FALSE;
    return TRUE;
}

BOOL CMFCPropertyGridProperty::IsVisible() const
{
    return m_bVisible && (m_pParent == nullptr || m_pParent->IsVisible());
}

BOOL CMFCPropertyGridProperty::IsSelected() const
{
    return m_pWndList != nullptr && m_pWndList->GetCurSel() == this;
}

BOOL CMFCPropertyGridProperty::HasValueField() const
{
    return !m_bGroup || m_bIsValueList;
}

void CMFCPropertyGridProperty::SetName(LPCTSTR lpszName, BOOL bRedraw)
{
    m_strName = lpszName;
    if (m_pWndList == nullptr)
        return;
    if (m_pWndList->IsAlphabeticMode())
    {
        m_pWndList->m_bTerminalsDirty = TRUE;
        m_pWndList->RowsChanged(bRedraw);
    }
    else if (bRedraw)
    {
        Redraw();
    }
}

void CMFCPropertyGridProperty::SetDescription(const CString& strDescr)
{
    m_strDescr = strDescr;
    if (IsSelected() && m_pWndList->GetSafeHwnd() != nullptr)
        m_pWndList->Invalidate(FALSE);
}

void CMFCPropertyGridProperty::Expand(BOOL bExpand)
{
    bExpand = bExpand ? TRUE : FALSE;
    if (m_bExpanded == bExpand)
        return;
    PropertyGridWatch self(m_pWatches);
    if (!bExpand && m_pWndList != nullptr)
        m_pWndList->KeepSelectionIn(this);
    // The host may have deleted this property when the selection moved.
    if (self.IsGone())
        return;
    m_bExpanded = bExpand;
    AdjustLayout();
}

void CMFCPropertyGridProperty::Show(BOOL bShow, BOOL bAdjustLayout)
{
    bShow = bShow ? TRUE : FALSE;
    if (m_bVisible == bShow)
        return;
    m_bVisible = bShow;
    if (m_pWndList == nullptr)
        return;
    if (!bShow && Contains(m_pWndList->m_pSel))
        m_pWndList->m_pSel->DestroyEditors();
    m_pWndList->m_bTerminalsDirty = TRUE;
    m_pWndList->RowsChanged(bAdjustLayout);
}

void CMFCPropertyGridProperty::Enable(BOOL bEnable)
{
    m_bEnabled = bEnable ? TRUE : FALSE;
    if (!m_bEnabled)
        DestroyEditors();
    Redraw();
}

void CMFCPropertyGridProperty::AllowEdit(BOOL bAllow)
{
    m_bAllowEdit = bAllow ? TRUE : FALSE;
    if (!m_bAllowEdit)
        DestroyEditors();
    Redraw();
}

void CMFCPropertyGridProperty::AdjustLayout()
{
    if (m_pWndList != nullptr)
        m_pWndList->RowsChanged(TRUE);
}

CRect CMFCPropertyGridProperty::GetRect() const
{
    const int row = m_pWndList == nullptr ? -1 : m_pWndList->RowOf(this);
    return row < 0 ? CRect() : m_pWndList->RowRect(row);
}

void CMFCPropertyGridProperty::Redraw()
{
    if (m_pWndList != nullptr && m_pWndList->GetSafeHwnd() != nullptr)
        m_pWndList->RedrawRow(m_pWndList->RowOf(this));
}

// Redraws also the value lists that show this value.
void CMFCPropertyGridProperty::RedrawWithParents()
{
    for (CMFCPropertyGridProperty* prop = this; prop != nullptr; prop = prop->m_pParent)
        if (prop == this || prop->m_bIsValueList)
            prop->Redraw();
}
