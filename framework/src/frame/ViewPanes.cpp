// CView: a view that is a pane of a splitter.
#include "afxext.h"
#include "bars/FrameMessages.h"

namespace
{

// The splitter around a view; NULL for none.
CSplitterWnd* SplitterOf(const CWnd* view)
{
    for (CWnd* parent = view->GetParent(); parent != nullptr && !parent->IsKindOf(RUNTIME_CLASS(CFrameWnd));
         parent = parent->GetParent())
        if (CSplitterWnd* const splitter = DYNAMIC_DOWNCAST(CSplitterWnd, parent))
            return splitter;
    return nullptr;
}

} // namespace

CScrollBar* CView::GetScrollBarCtrl(int nBar) const
{
    const DWORD ownBar = nBar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
    CSplitterWnd* const splitter = DYNAMIC_DOWNCAST(CSplitterWnd, GetParent());
    int row = 0, col = 0;
    if ((GetStyle() & ownBar) || splitter == nullptr ||
        !splitter->IsChildPane(const_cast<CView*>(this), &row, &col))
        return nullptr;
    const int id = nBar == SB_HORZ ? AFX_IDW_HSCROLL_FIRST + col : AFX_IDW_VSCROLL_FIRST + row;
    return reinterpret_cast<CScrollBar*>(splitter->GetDlgItem(id));
}

BOOL CView::OnNextPaneCmd(UINT nID)
{
    CSplitterWnd* const splitter = SplitterOf(this);
    const BOOL backwards = nID == ID_PREV_PANE;
    if (splitter == nullptr || !splitter->CanActivateNext(backwards))
        return FALSE;
    splitter->ActivateNext(backwards);
    return TRUE;
}

void CView::OnUpdateNextPaneMenu(CCmdUI* pCmdUI)
{
    CSplitterWnd* const splitter = SplitterOf(this);
    pCmdUI->Enable(splitter != nullptr && splitter->CanActivateNext(pCmdUI->m_nID == ID_PREV_PANE));
}

BOOL CView::OnSplitCmd(UINT)
{
    CSplitterWnd* const splitter = SplitterOf(this);
    return splitter != nullptr && splitter->DoKeyboardSplit();
}

void CView::OnUpdateSplitCmd(CCmdUI* pCmdUI)
{
    CSplitterWnd* const splitter = SplitterOf(this);
    pCmdUI->Enable(splitter != nullptr && !splitter->IsTracking());
}
