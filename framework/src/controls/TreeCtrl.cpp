// CTreeCtrl: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace
{

TVITEM ItemFor(HTREEITEM item, UINT mask)
{
    TVITEM description = {};
    description.hItem = item;
    description.mask = TVIF_HANDLE | mask;
    return description;
}

} // namespace

CTreeCtrl::~CTreeCtrl()
{
    DestroyWindow();
}

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::Create(WC_TREEVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_TREEVIEW, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TVM_GETTOOLTIPS)));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    const HWND before = quorfx::Send<HWND>(m_hWnd, TVM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(before));
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const
{
    return CImageList::FromHandle(quorfx::Send<HIMAGELIST>(m_hWnd, TVM_GETIMAGELIST, nImageList));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageList)
{
    return CImageList::FromHandle(
        quorfx::Send<HIMAGELIST>(m_hWnd, TVM_SETIMAGELIST, nImageList, pImageList->GetSafeHandle()));
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEM item = ItemFor(hItem, TVIF_CHILDREN);
    return GetItem(&item) && item.cChildren != 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    return quorfx::ReadText([this, hItem](LPTSTR buffer, int size) -> LPCTSTR {
        TVITEM item = ItemFor(hItem, TVIF_TEXT);
        item.pszText = buffer;
        item.cchTextMax = size;
        return GetItem(&item) ? item.pszText : nullptr;
    });
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const
{
    TVITEM item = ItemFor(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    if (!GetItem(&item))
        return FALSE;
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const
{
    TVITEM item = ItemFor(hItem, TVIF_STATE);
    item.stateMask = nStateMask;
    return GetItem(&item) ? item.state & nStateMask : 0;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEM item = ItemFor(hItem, TVIF_PARAM);
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    return GetItemState(hItem, TVIS_STATEIMAGEMASK) == static_cast<UINT>(INDEXTOSTATEIMAGEMASK(2));
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    // The message takes the item from the memory where it puts the rectangle.
    std::memcpy(lpRect, &hItem, sizeof hItem);
    return quorfx::Send<BOOL>(m_hWnd, TVM_GETITEMRECT, bTextOnly, lpRect);
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                        UINT nState, UINT nStateMask, LPARAM lParam)
{
    TVITEM item = ItemFor(hItem, nMask);
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1)), TVIS_STATEIMAGEMASK);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insertion = {};
    insertion.hParent = hParent;
    insertion.hInsertAfter = hInsertAfter;
    insertion.item.mask = nMask;
    insertion.item.pszText = const_cast<LPTSTR>(lpszItem);
    insertion.item.iImage = nImage;
    insertion.item.iSelectedImage = nSelectedImage;
    insertion.item.state = nState;
    insertion.item.stateMask = nStateMask;
    insertion.item.lParam = lParam;
    return InsertItem(&insertion);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0, 0,
                      hParent, hInsertAfter);
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return static_cast<CEdit*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TVM_EDITLABEL, 0, hItem)));
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TVM_GETEDITCONTROL)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO info = {};
    info.pt = pt;
    const HTREEITEM item = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return item;
}

BOOL CTreeCtrl::GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const
{
    TVGETITEMPARTRECTINFO info = {};
    info.hti = hItem;
    info.prc = lpRect;
    info.partID = static_cast<TVITEMPART>(nPart);
    return quorfx::Send<BOOL>(m_hWnd, TVM_GETITEMPARTRECT, 0, &info);
}

UINT CTreeCtrl::GetItemStateEx(HTREEITEM hItem) const
{
    TVITEMEX item = {};
    item.mask = TVIF_HANDLE | TVIF_STATEEX;
    item.hItem = hItem;
    return quorfx::Send<BOOL>(m_hWnd, TVM_GETITEM, 0, &item) ? item.uStateEx : 0;
}

BOOL CTreeCtrl::SetItemStateEx(HTREEITEM hItem, UINT uStateEx)
{
    TVITEMEX item = {};
    item.mask = TVIF_HANDLE | TVIF_STATEEX;
    item.hItem = hItem;
    item.uStateEx = uStateEx;
    return quorfx::Send<BOOL>(m_hWnd, TVM_SETITEM, 0, &item);
}

int CTreeCtrl::GetItemExpandedImageIndex(HTREEITEM hItem) const
{
    TVITEMEX item = {};
    item.mask = TVIF_HANDLE | TVIF_EXPANDEDIMAGE;
    item.hItem = hItem;
    return quorfx::Send<BOOL>(m_hWnd, TVM_GETITEM, 0, &item) ? item.iExpandedImage : -1;
}

BOOL CTreeCtrl::SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage)
{
    TVITEMEX item = {};
    item.mask = TVIF_HANDLE | TVIF_EXPANDEDIMAGE;
    item.hItem = hItem;
    item.iExpandedImage = iExpandedImage;
    return quorfx::Send<BOOL>(m_hWnd, TVM_SETITEM, 0, &item);
}
