// CCtrlView: a view whose window is a control; CListView and CTreeView.
#include "afxcview.h"
#include "controls/CommonControls.h"
#include "bars/FrameMessages.h"

IMPLEMENT_DYNAMIC(CCtrlView, CView)
IMPLEMENT_DYNCREATE(CListView, CCtrlView)
IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)

BEGIN_MESSAGE_MAP(CCtrlView, CView)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CCtrlView::CCtrlView(LPCTSTR lpszClass, DWORD dwStyle) : m_strClass(lpszClass), m_dwDefaultStyle(dwStyle) {}

CCtrlView::~CCtrlView() {}

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT& cs)
{
    ASSERT(!m_strClass.IsEmpty());
    quorfx::EnsureCommonControls();
    if (cs.lpszClass == nullptr)
        cs.lpszClass = m_strClass;
    // The default is meant for a view that its frame creates, which asks for no more than a border.
    if ((cs.style | WS_BORDER) == static_cast<LONG>(quorfx::defaultViewStyle))
        cs.style = static_cast<LONG>(m_dwDefaultStyle) & (cs.style | ~WS_BORDER);
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnDraw(CDC*) {}

void CCtrlView::OnPaint()
{
    Default();
}

CListView::CListView() : CCtrlView(WC_LISTVIEW, quorfx::defaultViewStyle) {}

CListView::~CListView() {}

BEGIN_MESSAGE_MAP(CListView, CCtrlView)
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

// The control's object has no state of its own, so that the view's can stand for it.
CListCtrl& CListView::GetListCtrl() const
{
    return *reinterpret_cast<CListCtrl*>(const_cast<CListView*>(this));
}

void CListView::RemoveImageList(int nImageList)
{
    quorfx::KeepOwnedImageList(m_hWnd, nImageList);
}

void CListView::OnNcDestroy()
{
    for (const int kind : {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE})
        RemoveImageList(kind);
    CCtrlView::OnNcDestroy();
}

void CListView::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListView::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (CCtrlView::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

CTreeView::CTreeView() : CCtrlView(WC_TREEVIEW, quorfx::defaultViewStyle) {}

CTreeView::~CTreeView() {}

CTreeCtrl& CTreeView::GetTreeCtrl() const
{
    return *reinterpret_cast<CTreeCtrl*>(const_cast<CTreeView*>(this));
}
