// CDocument: the list of views and what happens to it.
#include "frame/FrameMessages.h"

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

CDocument::CDocument() : m_bAutoDelete(TRUE), m_bModified(FALSE) {}

CDocument::~CDocument()
{
    for (CView* view : m_views)
        view->m_pDocument = NULL;
}

void CDocument::SetTitle(LPCTSTR lpszTitle)
{
    m_strTitle = lpszTitle;
    for (CView* view : m_views)
    {
        CFrameWnd* frame = view->GetParentFrame();
        if (frame != NULL)
            frame->OnUpdateFrameTitle(TRUE);
    }
}

void CDocument::AddView(CView* pView)
{
    ASSERT(pView->m_pDocument == NULL);
    m_views.push_back(pView);
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* pView)
{
    ASSERT(pView->m_pDocument == this);
    m_views.erase(std::remove(m_views.begin(), m_views.end(), pView), m_views.end());
    pView->m_pDocument = NULL;
    OnChangedViewList();
}

// A position is the number of views up to and including the one it stands for.
POSITION CDocument::GetFirstViewPosition() const
{
    return m_views.empty() ? NULL : reinterpret_cast<POSITION>(static_cast<UINT_PTR>(1));
}

CView* CDocument::GetNextView(POSITION& rPosition) const
{
    const UINT_PTR number = reinterpret_cast<UINT_PTR>(rPosition);
    rPosition = number < m_views.size() ? reinterpret_cast<POSITION>(number + 1) : NULL;
    return m_views[number - 1];
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint)
{
    // A view's update may open or close views.
    const std::vector<CView*> views = m_views;
    for (CView* view : views)
    {
        if (view != pSender && std::find(m_views.begin(), m_views.end(), view) != m_views.end())
            view->OnUpdate(pSender, lHint, pHint);
    }
}

BOOL CDocument::OnNewDocument()
{
    DeleteContents();
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::DeleteContents() {}

void CDocument::OnChangedViewList()
{
    if (m_views.empty() && m_bAutoDelete)
        OnCloseDocument();
}

void CDocument::OnCloseDocument()
{
    const BOOL deleteSelf = m_bAutoDelete;
    m_bAutoDelete = FALSE;
    while (!m_views.empty())
    {
        CView* view = m_views.front();
        CFrameWnd* frame = view->GetParentFrame();
        if (frame != NULL)
            frame->DestroyWindow();
        else
            RemoveView(view);
    }
    m_bAutoDelete = deleteSelf;
    DeleteContents();
    if (deleteSelf)
        delete this;
}
