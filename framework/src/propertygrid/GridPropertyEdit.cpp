// CMFCPropertyGridProperty: the in-place editor, its spin button and its drop-down list.
#include "afxpropertygridctrl.h"
#include "propertyrules/PropertyGridGeometry.h"
#include "propertygrid/PropertyGridWatch.h"
#include "propertygrid/PropertyInPlaceEdit.h"
#include "propertygrid/PropertyValueText.h"

#include <cwctype>
#include <memory>

namespace
{

constexpr int MostListLines = 12;

void DestroyAndDelete(CWnd* window)
{
    if (window == nullptr)
        return;
    window->DestroyWindow();
    delete window;
}

bool HasFocus(const CWnd* window)
{
    const HWND focus = ::GetFocus();
    return window != nullptr && focus != nullptr &&
           (focus == window->m_hWnd || ::IsChild(window->m_hWnd, focus));
}

// The option after the current one, round the end; with a letter the next that begins with it. -1 for none.
INT_PTR NextOption(const CStringArray& options, const CString& current, TCHAR letter)
{
    const INT_PTR count = options.GetCount();
    INT_PTR at = count - 1;
    for (INT_PTR i = 0; i < count; ++i)
        if (options[i] == current)
            at = i;
    for (INT_PTR step = 1; step <= count; ++step)
    {
        const INT_PTR next = (at + step) % count;
        if (letter == 0 ||
            (!options[next].IsEmpty() && std::towupper(options[next][0]) == std::towupper(letter)))
            return next;
    }
    return -1;
}

} // namespace

BOOL CMFCPropertyGridProperty::OnEdit(LPPOINT lptClick)
{
    if (m_pWndList == nullptr || m_pWndInPlace != nullptr)
        return FALSE;
    AdjustButtonRect();
    CRect rectEdit = ValueRect();
    CRect rectSpin;
    AdjustInPlaceEditRect(rectEdit, rectSpin);
    BOOL defaultFormat = FALSE;
    m_pWndInPlace = CreateInPlaceEdit(rectEdit, defaultFormat);
    if (m_pWndInPlace == nullptr)
        return FALSE;
    m_pWndInPlace->SendMessage(WM_SETFONT, m_pWndList->SendMessage(WM_GETFONT), FALSE);
    if (defaultFormat)
        m_pWndInPlace->SetWindowText(FormatProperty());
    if (m_bHasSpin && IsTypingAllowed())
        m_pWndSpin = CreateSpinControl(rectSpin);
    PlaceEditors();
    auto* const own = dynamic_cast<PropertyInPlaceEdit*>(m_pWndInPlace);
    if (own != nullptr && lptClick != nullptr)
        own->OpenedByClick();
    m_pWndInPlace->SetFocus();
    // Focus messages run the host, which may have closed the editor again.
    if (m_pWndInPlace == nullptr)
        return FALSE;
    // The spin button draws itself when its buddy does, which has happened before it had its place.
    if (m_pWndSpin != nullptr)
        m_pWndSpin->Invalidate();
    m_pWndInPlace->SendMessage(EM_SETSEL, 0, -1);
    return TRUE;
}

CWnd* CMFCPropertyGridProperty::CreateInPlaceEdit(CRect rectEdit, BOOL& bDefaultFormat)
{
    if (!IsEditable())
        return nullptr;
    auto edit = std::make_unique<PropertyInPlaceEdit>(
        quorfx::EditMask(m_strEditMask.GetString(), m_strEditTempl.GetString(), m_strValidChars.GetString()));
    const DWORD readOnly = IsTypingAllowed() ? 0 : ES_READONLY;
    if (!edit->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | readOnly, rectEdit, m_pWndList,
                      AFX_PROPLIST_ID_INPLACE))
        return nullptr;
    bDefaultFormat = TRUE;
    return edit.release();
}

CSpinButtonCtrl* CMFCPropertyGridProperty::CreateSpinControl(CRect rectSpin)
{
    auto spin = std::make_unique<CSpinButtonCtrl>();
    constexpr DWORD Style = WS_CHILD | WS_VISIBLE | UDS_ARROWKEYS | UDS_SETBUDDYINT | UDS_NOTHOUSANDS;
    if (!spin->Create(Style, rectSpin, m_pWndList, AFX_PROPLIST_ID_INPLACE))
        return nullptr;
    spin->SetBuddy(m_pWndInPlace);
    const bool hasRange = m_nMinValue < m_nMaxValue;
    const bool isUnsigned = m_varValue.vt == VT_UINT || m_varValue.vt == VT_UI4;
    const bool isShort = m_varValue.vt == VT_I2 || m_varValue.vt == VT_UI2;
    if (hasRange)
        spin->SetRange32(m_nMinValue, m_nMaxValue);
    else if (isShort)
        spin->SetRange32(m_varValue.vt == VT_I2 ? SHRT_MIN : 0,
                         m_varValue.vt == VT_I2 ? SHRT_MAX : USHRT_MAX);
    else
        spin->SetRange32(isUnsigned ? 0 : INT_MIN, INT_MAX);
    return spin.release();
}

CComboBox* CMFCPropertyGridProperty::CreateCombo(CWnd* pWndParent, CRect rect)
{
    auto combo = std::make_unique<CComboBox>();
    constexpr DWORD Style = WS_CHILD | WS_VSCROLL | CBS_NOINTEGRALHEIGHT | CBS_DROPDOWNLIST;
    if (!combo->Create(Style, rect, pWndParent, AFX_PROPLIST_ID_INPLACE))
        return nullptr;
    return combo.release();
}

void CMFCPropertyGridProperty::AdjustInPlaceEditRect(CRect& rectEdit, CRect& rectSpin)
{
    rectSpin.SetRectEmpty();
    // A derived property may have made its button wider.
    if (HasButton())
        rectEdit.right = m_rectButton.left;
    if (m_bHasSpin && IsTypingAllowed())
    {
        rectSpin = quorfx::ButtonRectangle(rectEdit).As<CRect>();
        rectEdit.right = rectSpin.left;
    }
    rectEdit = quorfx::EditorRectangle(rectEdit, m_pWndList->GetRowHeight() - 4).As<CRect>();
}

void CMFCPropertyGridProperty::PlaceEditors()
{
    AdjustButtonRect();
    CRect rectEdit = ValueRect();
    CRect rectSpin;
    AdjustInPlaceEditRect(rectEdit, rectSpin);
    // A row that was moved out of the list takes its editor out of sight.
    const CRect list = m_pWndList->GetListRect();
    rectEdit.IntersectRect(CRect(rectEdit), list);
    rectSpin.IntersectRect(CRect(rectSpin), list);
    m_pWndInPlace->MoveWindow(rectEdit);
    if (m_pWndSpin != nullptr)
        m_pWndSpin->MoveWindow(rectSpin);
}

void CMFCPropertyGridProperty::OnPosSizeChanged(CRect)
{
    if (m_pWndInPlace != nullptr)
        PlaceEditors();
}

void CMFCPropertyGridProperty::ShowText()
{
    m_pWndInPlace->SetWindowText(FormatProperty());
    m_pWndInPlace->SendMessage(EM_SETSEL, 0, -1);
}

BOOL CMFCPropertyGridProperty::OnUpdateValue()
{
    if (m_pWndInPlace == nullptr)
        return TRUE;
    CString text;
    m_pWndInPlace->GetWindowText(text);
    return ApplyText(text);
}

BOOL CMFCPropertyGridProperty::OnEndEdit()
{
    DestroyEditors();
    Redraw();
    return TRUE;
}

void CMFCPropertyGridProperty::OnDestroyWindow()
{
    DestroyEditors();
}

void CMFCPropertyGridProperty::DestroyEditors()
{
    CWnd* const windows[] = {m_pWndCombo, m_pWndSpin, m_pWndInPlace};
    if (m_pWndInPlace == nullptr && m_pWndCombo == nullptr)
        return;
    const bool hadFocus = m_pWndList != nullptr && (HasFocus(m_pWndCombo) || HasFocus(m_pWndInPlace));
    m_pWndCombo = nullptr;
    m_pWndSpin = nullptr;
    m_pWndInPlace = nullptr;
    if (hadFocus)
        m_pWndList->SetFocus();
    for (CWnd* window : windows)
        DestroyAndDelete(window);
}

// ---- The drop-down list.

void CMFCPropertyGridProperty::OnClickButton(CPoint)
{
    if (m_pWndList == nullptr || !HasButton() || m_pWndCombo != nullptr)
        return;
    PropertyGridWatch self(m_pWatches);
    if (m_pWndInPlace == nullptr && !m_pWndList->EditItem(this))
        return;
    if (self.IsGone())
        return;
    m_pWndCombo = CreateCombo(m_pWndList, ValueRect());
    if (m_pWndCombo == nullptr)
        return;
    FillCombo();
    m_pWndCombo->ShowWindow(SW_SHOW);
    m_pWndCombo->SetFocus();
    if (!self.IsGone() && m_pWndCombo != nullptr)
        m_pWndCombo->ShowDropDown(TRUE);
}

void CMFCPropertyGridProperty::FillCombo()
{
    m_pWndCombo->SendMessage(WM_SETFONT, m_pWndList->SendMessage(WM_GETFONT), FALSE);
    CStringArray options;
    CollectOptions(options);
    for (INT_PTR i = 0; i < options.GetCount(); ++i)
        m_pWndCombo->AddString(options[i]);
    const CString current = FormatProperty();
    for (INT_PTR i = 0; i < options.GetCount(); ++i)
        if (options[i] == current)
            m_pWndCombo->SetCurSel(static_cast<int>(i));

    CRect rect = ValueRect();
    constexpr int FrameOfField = 6;
    m_pWndCombo->SetItemHeight(-1, static_cast<UINT>((std::max)(1, rect.Height() - FrameOfField)));
    const int lines = static_cast<int>(std::clamp<INT_PTR>(options.GetCount(), 1, MostListLines));
    // The window is as high as its field, which may be higher than the row; the height given is that with the
    // list.
    CRect field;
    m_pWndCombo->GetWindowRect(field);
    constexpr int FrameOfList = 8;
    rect.bottom = rect.top + field.Height() + m_pWndCombo->GetItemHeight(0) * lines + FrameOfList;
    m_pWndCombo->MoveWindow(rect);
}

void CMFCPropertyGridProperty::OnSelectCombo()
{
    const int chosen = m_pWndCombo == nullptr ? -1 : m_pWndCombo->GetCurSel();
    if (chosen < 0)
        return;
    CString text;
    m_pWndCombo->GetLBText(chosen, text);
    ChooseOption(text);
}

void CMFCPropertyGridProperty::OnCloseCombo()
{
    CComboBox* const combo = m_pWndCombo;
    m_pWndCombo = nullptr;
    if (combo == nullptr)
        return;
    if (combo->m_hWnd == ::GetFocus() && m_pWndInPlace != nullptr)
        m_pWndInPlace->SetFocus();
    DestroyAndDelete(combo);
    Redraw();
}

// The host may delete this property, so nothing may come after it.
void CMFCPropertyGridProperty::ChooseOption(const CString& strOption)
{
    if (m_pWndInPlace == nullptr)
    {
        ApplyText(strOption);
        return;
    }
    m_pWndInPlace->SetWindowText(strOption);
    m_pWndInPlace->SendMessage(EM_SETSEL, 0, -1);
    OnUpdateValue();
}

BOOL CMFCPropertyGridProperty::OnClickValue(UINT, CPoint)
{
    return FALSE;
}

BOOL CMFCPropertyGridProperty::OnDblClk(CPoint)
{
    CStringArray options;
    CollectOptions(options);
    if (!IsEditable() || options.IsEmpty())
        return FALSE;
    ChooseOption(options[NextOption(options, FormatProperty(), 0)]);
    return TRUE;
}

BOOL CMFCPropertyGridProperty::PushChar(UINT nChar)
{
    if (m_pWndList == nullptr || !IsEditable())
        return FALSE;
    if (IsTypingAllowed())
    {
        PropertyGridWatch self(m_pWatches);
        if (!m_pWndList->EditItem(this))
            return FALSE;
        if (!self.IsGone() && m_pWndInPlace != nullptr)
            m_pWndInPlace->SendMessage(WM_CHAR, nChar, 1);
        return TRUE;
    }
    CStringArray options;
    CollectOptions(options);
    const INT_PTR next = NextOption(options, FormatProperty(), static_cast<TCHAR>(nChar));
    if (next < 0)
        return FALSE;
    ChooseOption(options[next]);
    return TRUE;
}
