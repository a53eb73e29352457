// CListCtrl: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

CListCtrl::~CListCtrl()
{
    DestroyWindow();
}

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::Create(WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_LISTVIEW, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

CImageList* CListCtrl::GetImageList(int nImageList) const
{
    return CImageList::FromHandle(quorfx::Send<HIMAGELIST>(m_hWnd, LVM_GETIMAGELIST, nImageList));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(
        quorfx::Send<HIMAGELIST>(m_hWnd, LVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle()));
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam)
{
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam, int nIndent)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

BOOL CListCtrl::SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const
{
    LVITEM item = {};
    item.state = dwState;
    item.stateMask = dwMask;
    // The answer is that of a COM function.
    return SUCCEEDED(quorfx::Send<HRESULT>(m_hWnd, LVM_SETITEMINDEXSTATE, pItemIndex, &item));
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CListCtrl::GetCheck(int nItem) const
{
    return GetItemState(nItem, LVIS_STATEIMAGEMASK) == static_cast<UINT>(INDEXTOSTATEIMAGEMASK(2));
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1)), LVIS_STATEIMAGEMASK);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    return quorfx::ReadText([this, nItem, nSubItem](LPTSTR buffer, int size) -> LPCTSTR {
        GetItemText(nItem, nSubItem, buffer, size);
        return buffer;
    });
}

CString CListCtrl::GetEmptyText() const
{
    return quorfx::ReadText([this](LPTSTR buffer, int size) -> LPCTSTR {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETEMPTYTEXT, size, buffer) ? buffer : nullptr;
    });
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return quorfx::Send<int>(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return quorfx::Send<BOOL>(m_hWnd, LVM_SETITEMTEXT, nItem, &item);
}

// A position is the index of the selected item plus one, so that NULL is free to mean the end.
POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(1 + GetNextItem(-1, LVNI_SELECTED)));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int item = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = reinterpret_cast<POSITION>(static_cast<INT_PTR>(1 + GetNextItem(item, LVNI_SELECTED)));
    return item;
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int item = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return item;
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    // The message takes the code from the memory where it puts the rectangle.
    lpRect->left = static_cast<LONG>(nCode);
    return quorfx::Send<BOOL>(m_hWnd, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref)
{
    RECT rect = {};
    rect.top = iSubItem;
    rect.left = nArea;
    const BOOL found = quorfx::Send<BOOL>(m_hWnd, LVM_GETSUBITEMRECT, iItem, &rect);
    if (found)
        ref = rect;
    return found;
}

BOOL CListCtrl::GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const
{
    pRect->top = iColumn;
    pRect->left = rectType;
    return quorfx::Send<BOOL>(m_hWnd, LVM_GETITEMINDEXRECT, pItemIndex, pRect);
}

BOOL CListCtrl::GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords) const
{
    lpRect->top = iCoords;
    return quorfx::Send<BOOL>(m_hWnd, LVM_GETGROUPRECT, iGroupId, lpRect);
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const
{
    const DWORD spacing = quorfx::Send<DWORD>(m_hWnd, LVM_GETITEMSPACING, fSmall);
    *pnHorzSpacing = LOWORD(spacing);
    *pnVertSpacing = HIWORD(spacing);
    return TRUE;
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    return CSize(quorfx::Send<DWORD>(m_hWnd, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy)));
}

CSize CListCtrl::SetIconSpacing(CSize size)
{
    return SetIconSpacing(size.cx, size.cy);
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const
{
    return CSize(quorfx::Send<DWORD>(m_hWnd, LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy)));
}

UINT CListCtrl::GetNumberOfWorkAreas() const
{
    UINT count = 0;
    quorfx::Send(m_hWnd, LVM_GETNUMBEROFWORKAREAS, 0, &count);
    return count;
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1)
    {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1)
    {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount)
{
    if (iCount == -1)
    {
        CHeaderCtrl* header = GetHeaderCtrl();
        if (header == nullptr)
            return FALSE;
        iCount = header->GetItemCount();
    }
    return quorfx::Send<BOOL>(m_hWnd, LVM_GETCOLUMNORDERARRAY, iCount, piArray);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, LVM_GETHEADER)));
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return static_cast<CEdit*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, LVM_EDITLABEL, nItem)));
}

CEdit* CListCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, LVM_GETEDITCONTROL)));
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    const HIMAGELIST handle = quorfx::Send<HIMAGELIST>(m_hWnd, LVM_CREATEDRAGIMAGE, nItem, lpPoint);
    if (handle == nullptr)
        return nullptr;
    CImageList* list = new CImageList;
    list->Attach(handle);
    return list;
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, LVM_GETTOOLTIPS)));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    const HWND before = quorfx::Send<HWND>(m_hWnd, LVM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(before));
}

namespace quorfx
{

void KeepOwnedImageList(HWND list, int kind)
{
    const HIMAGELIST images = Send<HIMAGELIST>(list, LVM_GETIMAGELIST, kind);
    if (images != nullptr && CImageList::FromHandlePermanent(images) != nullptr)
        Send(list, LVM_SETIMAGELIST, kind, static_cast<HIMAGELIST>(nullptr));
}

} // namespace quorfx

void CListCtrl::OnNcDestroy()
{
    for (const int kind : {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE})
        quorfx::KeepOwnedImageList(m_hWnd, kind);
    CWnd::OnNcDestroy();
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) ||
           quorfx::DrawOwnItem(this, message, lParam);
}
