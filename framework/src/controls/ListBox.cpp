// CListBox and CComboBox: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

namespace
{

// The owner-draw messages that lists and combos share.
template <class List> BOOL AnswerOwnerDraw(List* list, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_DRAWITEM:
        return quorfx::DrawOwnItem(list, message, lParam);
    case WM_MEASUREITEM:
        list->MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        list->DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM: {
        const int order = list->CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        if (result != nullptr)
            *result = order;
        return TRUE;
    }
    default:
        return FALSE;
    }
}

} // namespace

CListBox::~CListBox()
{
    DestroyWindow();
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const DWORD packed = quorfx::Send<DWORD>(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(packed) != 0;
    return LOWORD(packed);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    // LB_SELITEMRANGEEX says by the order of its ends whether to select.
    const int lower = (std::min)(nFirstItem, nLastItem);
    const int upper = (std::max)(nFirstItem, nLastItem);
    if (lower == upper)
        return SetSel(lower, bSelect);
    return bSelect ? quorfx::Send<int>(m_hWnd, LB_SELITEMRANGEEX, lower, upper)
                   : quorfx::Send<int>(m_hWnd, LB_SELITEMRANGEEX, upper, lower);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    const int length = GetTextLen(nIndex);
    if (length == LB_ERR)
    {
        rString.Empty();
        return;
    }
    GetText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer();
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

int CListBox::VKeyToItem(UINT, UINT)
{
    return static_cast<int>(Default());
}

int CListBox::CharToItem(UINT, UINT)
{
    return static_cast<int>(Default());
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_VKEYTOITEM && message != WM_CHARTOITEM)
        return AnswerOwnerDraw(this, message, lParam, pResult);
    const UINT key = LOWORD(wParam);
    const UINT caretIndex = HIWORD(wParam);
    const int answer = message == WM_VKEYTOITEM ? VKeyToItem(key, caretIndex) : CharToItem(key, caretIndex);
    if (pResult != nullptr)
        *pResult = answer;
    return TRUE;
}

CComboBox::~CComboBox()
{
    DestroyWindow();
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    const int length = GetLBTextLen(nIndex);
    if (length == CB_ERR)
    {
        rString.Empty();
        return;
    }
    GetLBText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer();
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) ||
           AnswerOwnerDraw(this, message, lParam, pResult);
}

CString CComboBox::GetCueBanner() const
{
    return quorfx::ReadText(
        [this](LPTSTR buffer, int size) -> LPCTSTR { return GetCueBanner(buffer, size) ? buffer : nullptr; });
}
