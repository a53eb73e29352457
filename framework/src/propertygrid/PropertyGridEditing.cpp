// CMFCPropertyGridCtrl: selection, opening and closing editors, the focus and the drop-down list.
#include "afxpropertygridctrl.h"
#include "propertygrid/PropertyGridMessages.h"
#include "propertygrid/PropertyGridWatch.h"
#include "propertygrid/PropertyInPlaceEdit.h"

// ---- Selection.

void CMFCPropertyGridCtrl::SetCurSel(CMFCPropertyGridProperty* pProp, BOOL bRedraw)
{
    if (pProp == nullptr || pProp->m_pWndList == this)
        Select(pProp, bRedraw);
}

// Returns whether the property is selected now. The host may have changed anything then.
BOOL CMFCPropertyGridCtrl::Select(CMFCPropertyGridProperty* pProp, BOOL bRedraw)
{
    if (pProp == m_pSel)
        return TRUE;
    PropertyGridWatch* nothing = nullptr;
    PropertyGridWatch self(m_pWatches);
    PropertyGridWatch wanted(pProp == nullptr ? nothing : pProp->m_pWatches);
    if (!EndEditItem() || self.IsGone() || wanted.IsGone())
        return FALSE;
    CMFCPropertyGridProperty* const old = m_pSel;
    m_pSel = pProp;
    if (old != nullptr)
        old->OnKillSelection(pProp);
    if (pProp != nullptr)
        pProp->OnSetSelection(old);
    OnChangeSelection(pProp, old);
    if (bRedraw && m_hWnd != nullptr)
    {
        RedrawRow(RowOf(old));
        RedrawRow(RowOf(pProp));
        CRect client;
        GetClientRect(client);
        client.top = client.bottom - GetDescriptionHeight();
        InvalidateRect(client, FALSE);
    }
    return TRUE;
}

// A property is about to be folded: what it hides is no longer selected.
void CMFCPropertyGridCtrl::KeepSelectionIn(CMFCPropertyGridProperty* pFolded)
{
    if (m_pSel != nullptr && m_pSel != pFolded && pFolded->Contains(m_pSel))
        Select(pFolded, TRUE);
}

// ---- Editing.

BOOL CMFCPropertyGridCtrl::EditItem(CMFCPropertyGridProperty* pProp, LPPOINT lptClick)
{
    if (m_hWnd == nullptr || pProp == nullptr || pProp->m_pWndList != this)
        return FALSE;
    PropertyGridWatch self(m_pWatches);
    PropertyGridWatch wanted(pProp->m_pWatches);
    if (pProp->IsInPlaceEditing())
        return TRUE;
    if (!EndEditItem() || self.IsGone() || wanted.IsGone() || !pProp->IsEditable())
        return FALSE;
    if (!Select(pProp, TRUE) || self.IsGone() || wanted.IsGone())
        return FALSE;
    EnsureVisible(pProp);
    return RowOf(pProp) >= 0 && pProp->OnEdit(lptClick);
}

BOOL CMFCPropertyGridCtrl::EndEditItem(BOOL bUpdateData)
{
    CMFCPropertyGridProperty* const edited = m_pSel;
    if (edited == nullptr || !edited->IsInPlaceEditing() || m_bEndingEdit)
        return TRUE;
    PropertyGridWatch self(m_pWatches);
    PropertyGridWatch property(edited->m_pWatches);
    m_bEndingEdit = TRUE;
    BOOL accepted = TRUE;
    if (bUpdateData)
        accepted = ValidateItemData(edited) && !property.IsGone() && edited->OnUpdateValue();
    if (self.IsGone())
        return TRUE;
    const BOOL closed = property.IsGone() || (accepted && edited->OnEndEdit());
    if (!self.IsGone())
        m_bEndingEdit = FALSE;
    return closed;
}

BOOL CMFCPropertyGridCtrl::HasFocusInside(HWND hWndFocus) const
{
    return hWndFocus != nullptr && m_hWnd != nullptr && (hWndFocus == m_hWnd || ::IsChild(m_hWnd, hWndFocus));
}

void CMFCPropertyGridCtrl::EditorLostFocus(HWND hWndNewFocus)
{
    if (HasFocusInside(hWndNewFocus))
        return;
    PropertyGridWatch self(m_pWatches);
    CMFCPropertyGridProperty* const edited = m_pSel;
    const BOOL isEditing = edited != nullptr && edited->IsInPlaceEditing();
    if (!isEditing || (edited->OnKillFocus(CWnd::FromHandle(hWndNewFocus)) && !self.IsGone()))
        EndEditItem(TRUE);
}

LRESULT CMFCPropertyGridCtrl::OnFinishEdit(WPARAM, LPARAM)
{
    EditorLostFocus(::GetFocus());
    return 0;
}

void CMFCPropertyGridCtrl::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    RedrawRow(RowOf(m_pSel));
}

void CMFCPropertyGridCtrl::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    RedrawRow(RowOf(m_pSel));
}

// ---- The drop-down list. A combo box does not survive being deleted inside its own notification, so what
// the user did with it is taken up when the notification is over.

void CMFCPropertyGridCtrl::OnClickButton(CPoint point)
{
    if (m_pSel != nullptr)
        m_pSel->OnClickButton(point);
}

void CMFCPropertyGridCtrl::OnSelectCombo()
{
    if (m_pSel != nullptr)
        m_pSel->OnSelectCombo();
}

void CMFCPropertyGridCtrl::OnCloseCombo()
{
    if (m_pSel != nullptr)
        m_pSel->OnCloseCombo();
}

BOOL CMFCPropertyGridCtrl::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND sender = reinterpret_cast<HWND>(lParam);
    if (m_pSel == nullptr || sender == nullptr)
        return CWnd::OnCommand(wParam, lParam);
    const UINT code = HIWORD(wParam);
    if (sender == m_pSel->m_pWndCombo->GetSafeHwnd())
    {
        if (code == CBN_SELENDOK)
            m_bComboAccepted = TRUE;
        else if (code == CBN_CLOSEUP)
            PostMessage(FinishComboMessage);
        return TRUE;
    }
    const bool isEditor = sender == m_pSel->m_pWndInPlace->GetSafeHwnd();
    if (!isEditor)
        return CWnd::OnCommand(wParam, lParam);
    if (code == EN_KILLFOCUS && dynamic_cast<PropertyInPlaceEdit*>(m_pSel->m_pWndInPlace) == nullptr)
        PostMessage(FinishEditMessage);
    return TRUE;
}

LRESULT CMFCPropertyGridCtrl::OnFinishCombo(WPARAM, LPARAM)
{
    CMFCPropertyGridProperty* const prop = m_pSel;
    if (prop == nullptr || prop->m_pWndCombo == nullptr || prop->m_pWndCombo->GetDroppedState())
        return 0;
    PropertyGridWatch self(m_pWatches);
    const BOOL isAccepted = m_bComboAccepted;
    m_bComboAccepted = FALSE;
    if (isAccepted)
        OnSelectCombo();
    if (!self.IsGone())
        OnCloseCombo();
    if (!self.IsGone())
        EditorLostFocus(::GetFocus());
    return 0;
}

BOOL CMFCPropertyGridCtrl::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const NMHEADER& change = *reinterpret_cast<const NMHEADER*>(lParam);
    const bool isHeader = change.hdr.hwndFrom == m_wndHeader.GetSafeHwnd();
    if (!isHeader || change.hdr.code != HDN_ITEMCHANGEDW)
        return CWnd::OnNotify(wParam, lParam, pResult);
    const bool isWidth = change.pitem != nullptr && (change.pitem->mask & HDI_WIDTH) != 0;
    if (!m_bInLayout && isWidth && change.iItem == 0)
        SetColumnWidth(change.pitem->cxy);
    return TRUE;
}
