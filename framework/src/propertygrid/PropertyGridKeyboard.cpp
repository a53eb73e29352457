// CMFCPropertyGridCtrl: the keyboard, in the list and in the editors.
#include "afxpropertygridctrl.h"
#include "propertyrules/PropertyGridGeometry.h"
#include "propertygrid/PropertyGridWatch.h"

#include <cwctype>

using quorfx::NavigationKey;

namespace
{

constexpr bool IsNumbered(NavigationKey key, int number)
{
    return static_cast<int>(key) == number;
}

static_assert(IsNumbered(NavigationKey::PageUp, VK_PRIOR) && IsNumbered(NavigationKey::PageDown, VK_NEXT));
static_assert(IsNumbered(NavigationKey::Home, VK_HOME) && IsNumbered(NavigationKey::End, VK_END));
static_assert(IsNumbered(NavigationKey::Up, VK_UP) && IsNumbered(NavigationKey::Down, VK_DOWN));

} // namespace

UINT CMFCPropertyGridCtrl::OnGetDlgCode()
{
    UINT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
    // Enter is wanted only where it does something; else it is the dialog's.
    const MSG* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool isEnter = asked != nullptr && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
    const bool isUsed = m_pSel != nullptr && (m_pSel->IsEditable() || !m_pSel->m_lstSubItems.IsEmpty());
    if (isEnter && isUsed)
        code |= DLGC_WANTMESSAGE;
    return code;
}

// ---- In the list.

void CMFCPropertyGridCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (m_drag != DragNone && nChar == VK_ESCAPE)
    {
        EndDrag(FALSE);
        return;
    }
    if (OnNavigationKey(nChar) || OnFoldKey(nChar))
        return;
    if (nChar == VK_F4)
        OpenDropDown();
    else if (m_pSel != nullptr && (nChar == VK_RETURN || nChar == VK_F2))
    {
        if (!EditItem(m_pSel) && nChar == VK_RETURN && m_pSel != nullptr && !m_pSel->HasValueField())
            FoldSelected(!m_pSel->IsExpanded());
    }
    else
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CMFCPropertyGridCtrl::OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_DOWN)
        OpenDropDown();
    else
        CWnd::OnSysKeyDown(nChar, nRepCnt, nFlags);
}

BOOL CMFCPropertyGridCtrl::OnNavigationKey(UINT nChar)
{
    const int row =
        quorfx::RowAfterKey(static_cast<NavigationKey>(nChar), RowOf(m_pSel), RowCount(), VisibleRows());
    if (row < 0)
        return FALSE;
    SelectRow(row);
    return TRUE;
}

void CMFCPropertyGridCtrl::SelectRow(int row)
{
    CMFCPropertyGridProperty* const prop = PropertyOfRow(row);
    if (prop == nullptr)
        return;
    PropertyGridWatch wanted(prop->m_pWatches);
    if (Select(prop, TRUE) && !wanted.IsGone())
        EnsureVisible(prop);
}

BOOL CMFCPropertyGridCtrl::OnFoldKey(UINT nChar)
{
    if (m_pSel == nullptr)
        return FALSE;
    if (nChar == VK_RIGHT)
        return FoldSelected(TRUE);
    if (nChar != VK_LEFT)
        return FALSE;
    if (!m_pSel->m_lstSubItems.IsEmpty() && m_pSel->IsExpanded())
        return FoldSelected(FALSE);
    SelectRow(RowOf(m_pSel->GetParent()));
    return TRUE;
}

// Returns whether the selected property has anything to fold.
BOOL CMFCPropertyGridCtrl::FoldSelected(BOOL bExpand)
{
    if (m_pSel == nullptr || m_pSel->m_lstSubItems.IsEmpty())
        return FALSE;
    m_pSel->Expand(bExpand);
    return TRUE;
}

void CMFCPropertyGridCtrl::OpenDropDown()
{
    if (m_pSel == nullptr)
        return;
    EnsureVisible(m_pSel);
    m_pSel->AdjustButtonRect();
    OnClickButton(m_pSel->m_rectButton.CenterPoint());
}

void CMFCPropertyGridCtrl::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const bool isPrintable = nChar > VK_SPACE && nChar != 0x7F;
    const bool isFold = nChar == '+' || nChar == '-';
    if (!isPrintable)
    {
        CWnd::OnChar(nChar, nRepCnt, nFlags);
        return;
    }
    if (isFold && FoldSelected(nChar == '+'))
        return;
    PropertyGridWatch self(m_pWatches);
    if ((m_pSel == nullptr || !m_pSel->PushChar(nChar)) && !self.IsGone())
        SelectByLetter(static_cast<TCHAR>(nChar));
}

void CMFCPropertyGridCtrl::SelectByLetter(TCHAR letter)
{
    const int count = RowCount();
    const int start = RowOf(m_pSel);
    for (int step = 1; step <= count; ++step)
    {
        const int row = (start + step + count) % count;
        const CString name = PropertyOfRow(row)->GetName();
        if (!name.IsEmpty() && std::towupper(name[0]) == std::towupper(letter))
        {
            SelectRow(row);
            return;
        }
    }
}

// ---- In the editors.

BOOL CMFCPropertyGridCtrl::IsEditorMessage(const MSG& message) const
{
    if (m_pSel == nullptr || m_pSel->m_pWndInPlace == nullptr)
        return FALSE;
    const HWND editor = m_pSel->m_pWndInPlace->m_hWnd;
    return message.hwnd == editor || ::IsChild(editor, message.hwnd);
}

BOOL CMFCPropertyGridCtrl::PreTranslateMessage(MSG* pMsg)
{
    PropertyGridWatch self(m_pWatches);
    const bool isKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    if (isKey && IsEditorMessage(*pMsg) && OnEditorKey(*pMsg))
        return TRUE;
    if (self.IsGone())
        return TRUE;
    const CComboBox* const combo = m_pSel == nullptr ? nullptr : m_pSel->m_pWndCombo;
    if (isKey && combo != nullptr && pMsg->hwnd == combo->m_hWnd && OnComboKey(*pMsg))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

// Returns whether the key was for the grid, not for the editor.
BOOL CMFCPropertyGridCtrl::OnEditorKey(const MSG& message)
{
    const UINT key = static_cast<UINT>(message.wParam);
    if (message.message == WM_SYSKEYDOWN)
    {
        if (key != VK_DOWN && key != VK_UP)
            return FALSE;
        OpenDropDown();
        return TRUE;
    }
    switch (key)
    {
    case VK_RETURN:
        EndEditItem(TRUE);
        return TRUE;
    case VK_ESCAPE:
        EndEditItem(FALSE);
        return TRUE;
    case VK_F4:
        OpenDropDown();
        return TRUE;
    case VK_UP:
    case VK_DOWN:
        // The spin button has a use for them.
        return m_pSel->m_pWndSpin == nullptr && LeaveEditor(key);
    case VK_PRIOR:
    case VK_NEXT:
        return LeaveEditor(key);
    case VK_TAB:
        return LeaveEditor(::GetKeyState(VK_SHIFT) < 0 ? VK_UP : VK_DOWN);
    default:
        return FALSE;
    }
}

// Takes the value and goes where the key leads in the list.
BOOL CMFCPropertyGridCtrl::LeaveEditor(UINT nChar)
{
    PropertyGridWatch self(m_pWatches);
    if (EndEditItem(TRUE) && !self.IsGone())
        OnNavigationKey(nChar);
    return TRUE;
}

// An open list takes Enter and Esc itself, which a dialog would otherwise take for its buttons.
BOOL CMFCPropertyGridCtrl::OnComboKey(MSG& message)
{
    if (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE)
    {
        ::DispatchMessage(&message);
        return TRUE;
    }
    if (message.wParam != VK_TAB)
        return FALSE;
    m_pSel->m_pWndCombo->ShowDropDown(FALSE);
    return TRUE;
}
