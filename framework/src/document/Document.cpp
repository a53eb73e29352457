// CDocument: title and path, the list of views, and what happens to it.
#include "document/DocumentSupport.h"

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

BEGIN_MESSAGE_MAP(CDocument, CCmdTarget)
    ON_COMMAND(ID_FILE_CLOSE, &CDocument::OnFileClose)
    ON_COMMAND(ID_FILE_SAVE, &CDocument::OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &CDocument::OnFileSaveAs)
END_MESSAGE_MAP()

CDocument::CDocument() : m_bAutoDelete(TRUE), m_bModified(FALSE), m_pDocTemplate(nullptr) {}

CDocument::~CDocument()
{
    for (CView* view : m_views)
        view->m_pDocument = nullptr;
    if (m_pDocTemplate != nullptr)
        m_pDocTemplate->RemoveDocument(this);
}

void CDocument::SetTitle(LPCTSTR lpszTitle)
{
    m_strTitle = lpszTitle;
    // With the titles of two frames of the document, their numbers may change.
    NumberFrames();
    for (CView* view : m_views)
    {
        CFrameWnd* frame = view->GetParentFrame();
        if (frame != nullptr)
            frame->OnUpdateFrameTitle(TRUE);
    }
}

void CDocument::SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU)
{
    m_strPathName = quorfx::FullPath(lpszPathName);
    SetTitle(quorfx::FileTitle(m_strPathName));
    CWinApp* application = AfxGetApp();
    if (bAddToMRU && application != nullptr)
        application->AddToRecentFileList(m_strPathName);
}

void CDocument::ClearPathName()
{
    m_strPathName.Empty();
}

void CDocument::AddView(CView* pView)
{
    ASSERT(pView->m_pDocument == nullptr);
    m_views.push_back(pView);
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* pView)
{
    ASSERT(pView->m_pDocument == this);
    m_views.erase(std::remove(m_views.begin(), m_views.end(), pView), m_views.end());
    pView->m_pDocument = nullptr;
    OnChangedViewList();
}

POSITION CDocument::GetFirstViewPosition() const
{
    return quorfx::FirstPosition(m_views);
}

CView* CDocument::GetNextView(POSITION& rPosition) const
{
    return quorfx::NextAt(m_views, rPosition);
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

void CDocument::DeleteContents() {}

void CDocument::OnChangedViewList()
{
    if (m_views.empty() && m_bAutoDelete)
        OnCloseDocument();
    else
        NumberFrames();
}

// The frames of one document are told apart by numbers, from 1 in the order of its views; a single one needs
// none. Frames that are still hidden do not count.
void CDocument::NumberFrames()
{
    std::vector<CFrameWnd*> frames;
    for (CView* view : m_views)
    {
        CFrameWnd* frame = view->GetParentFrame();
        if (frame != nullptr && (frame->GetStyle() & WS_VISIBLE) != 0 &&
            std::find(frames.begin(), frames.end(), frame) == frames.end())
            frames.push_back(frame);
    }
    for (size_t i = 0; i < frames.size(); ++i)
    {
        const int number = frames.size() == 1 ? 0 : static_cast<int>(i) + 1;
        if (frames[i]->m_nWindow == number)
            continue;
        frames[i]->m_nWindow = number;
        frames[i]->OnUpdateFrameTitle(TRUE);
    }
}

BOOL CDocument::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return m_pDocTemplate != nullptr && m_pDocTemplate->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
