// CHeaderCtrl, CSpinButtonCtrl and CTabCtrl: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CHeaderCtrl::~CHeaderCtrl()
{
    DestroyWindow();
}

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::Create(WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_HEADER, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount)
{
    const int count = iCount == -1 ? GetItemCount() : iCount;
    return quorfx::Send<BOOL>(m_hWnd, HDM_GETORDERARRAY, count, piArray);
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return CImageList::FromHandle(quorfx::Send<HIMAGELIST>(m_hWnd, HDM_GETIMAGELIST));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(
        quorfx::Send<HIMAGELIST>(m_hWnd, HDM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex)
{
    const HIMAGELIST handle = quorfx::Send<HIMAGELIST>(m_hWnd, HDM_CREATEDRAGIMAGE, nIndex);
    if (handle == nullptr)
        return nullptr;
    CImageList* list = new CImageList;
    list->Attach(handle);
    return list;
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) ||
           quorfx::DrawOwnItem(this, message, lParam);
}

CSpinButtonCtrl::~CSpinButtonCtrl()
{
    DestroyWindow();
}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::Create(UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, UPDOWN_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, UDM_SETBUDDY, pWndBuddy->GetSafeHwnd()));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, UDM_GETBUDDY));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const DWORD range = GetRange();
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

CTabCtrl::~CTabCtrl()
{
    DestroyWindow();
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::Create(WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_TABCONTROL, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
{
    return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                          DWORD dwStateMask)
{
    TCITEM item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    return InsertItem(nItem, &item);
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState)
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return CSize(quorfx::Send<DWORD>(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(quorfx::Send<HIMAGELIST>(m_hWnd, TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(
        quorfx::Send<HIMAGELIST>(m_hWnd, TCM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TCM_GETTOOLTIPS)));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    quorfx::Send(m_hWnd, TCM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) ||
           quorfx::DrawOwnItem(this, message, lParam);
}
