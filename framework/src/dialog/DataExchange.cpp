// CDataExchange, and the exchange functions for controls other than text fields.
#include "afxwin.h"

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd), m_idLastControl(0), m_bEditLastControl(FALSE)
{
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (control == nullptr)
    {
        TRACE(_T("Data exchange: no control %d.\n"), nIDC);
        AfxThrowNotSupportedException();
    }
    m_idLastControl = static_cast<UINT>(nIDC);
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_idLastControl != 0)
    {
        const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, static_cast<int>(m_idLastControl));
        ::SetFocus(control);
        if (m_bEditLastControl)
            ::SendMessage(control, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd != nullptr)
        return;
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(control))
        AfxThrowNotSupportedException();
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
        value = BST_UNCHECKED;
    ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

namespace
{

bool IsRadioButton(HWND control)
{
    return (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

// The control after this one, NULL where the next group begins.
HWND NextInGroup(HWND control)
{
    const HWND next = ::GetWindow(control, GW_HWNDNEXT);
    return next != nullptr && (::GetWindowLong(next, GWL_STYLE) & WS_GROUP) == 0 ? next : nullptr;
}

int ListSelection(HWND control, UINT getSelection)
{
    return static_cast<int>(::SendMessage(control, getSelection, 0, 0));
}

// Selects the first item that begins with the text, or equals it.
int SelectText(HWND control, UINT find, UINT select, const CString& text)
{
    const LRESULT item =
        ::SendMessage(control, find, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.GetString()));
    ::SendMessage(control, select, static_cast<WPARAM>(item), 0);
    return static_cast<int>(item);
}

void ExchangeListText(CDataExchange* exchange, int id, CString& value, UINT find)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        SelectText(control, find, LB_SETCURSEL, value);
        return;
    }
    const int selected = ListSelection(control, LB_GETCURSEL);
    if (selected == LB_ERR)
    {
        value.Empty();
        return;
    }
    const LRESULT length = ::SendMessage(control, LB_GETTEXTLEN, static_cast<WPARAM>(selected), 0);
    ::SendMessage(control, LB_GETTEXT, static_cast<WPARAM>(selected),
                  reinterpret_cast<LPARAM>(value.GetBuffer(static_cast<int>(length))));
    value.ReleaseBuffer();
}

void ExchangeComboText(CDataExchange* exchange, int id, CString& value, UINT find)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        exchange->m_pDlgWnd->GetDlgItemText(id, value);
    else if (SelectText(control, find, CB_SETCURSEL, value) == CB_ERR)
        ::SetWindowText(control, value);
}

} // namespace

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND first = pDX->PrepareCtrl(nIDC);
    ASSERT(::GetWindowLong(first, GWL_STYLE) & WS_GROUP);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    for (HWND control = first; control != nullptr; control = NextInGroup(control))
    {
        if (!IsRadioButton(control))
            continue;
        if (!pDX->m_bSaveAndValidate)
            ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(index == value), 0);
        else if (::SendMessage(control, BM_GETCHECK, 0, 0) != BST_UNCHECKED)
            value = index;
        ++index;
    }
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = ListSelection(control, LB_GETCURSEL);
    else
        ::SendMessage(control, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = ListSelection(control, CB_GETCURSEL);
    else
        ::SendMessage(control, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListText(pDX, nIDC, value, LB_FINDSTRING);
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListText(pDX, nIDC, value, LB_FINDSTRINGEXACT);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboText(pDX, nIDC, value, CB_FINDSTRING);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboText(pDX, nIDC, value, CB_FINDSTRINGEXACT);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}
