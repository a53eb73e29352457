// CSingleDocTemplate: a kind of document of which there is one at a time.
#include "document/DocumentSupport.h"

IMPLEMENT_DYNAMIC(CSingleDocTemplate, CDocTemplate)

CSingleDocTemplate::CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                       CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass), m_pOnlyDoc(nullptr)
{
}

CSingleDocTemplate::~CSingleDocTemplate()
{
    ASSERT(m_pOnlyDoc == nullptr);
}

void CSingleDocTemplate::AddDocument(CDocument* pDoc)
{
    ASSERT(m_pOnlyDoc == nullptr);
    CDocTemplate::AddDocument(pDoc);
    m_pOnlyDoc = pDoc;
}

void CSingleDocTemplate::RemoveDocument(CDocument* pDoc)
{
    CDocTemplate::RemoveDocument(pDoc);
    m_pOnlyDoc = nullptr;
}

POSITION CSingleDocTemplate::GetFirstDocPosition() const
{
    return m_pOnlyDoc == nullptr ? nullptr : reinterpret_cast<POSITION>(static_cast<UINT_PTR>(1));
}

CDocument* CSingleDocTemplate::GetNextDoc(POSITION& rPos) const
{
    rPos = nullptr;
    return m_pOnlyDoc;
}

void CSingleDocTemplate::SetDefaultTitle(CDocument* pDocument)
{
    CString title;
    if (!GetDocString(title, docName) || title.IsEmpty())
        title.LoadString(AFX_IDS_UNTITLED);
    pDocument->SetTitle(title);
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName)
{
    return OpenDocumentFile(lpszPathName, TRUE);
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU)
{
    if (m_pOnlyDoc != nullptr)
        return Reopen(lpszPathName, bAddToMRU);
    CFrameWnd* frame = nullptr;
    CDocument* document = CreateDocumentAndFrame(frame);
    if (document == nullptr)
        return nullptr;
    if (!FillDocument(document, lpszPathName, bAddToMRU))
    {
        // The document goes with its view.
        frame->DestroyWindow();
        return nullptr;
    }
    CWinThread* thread = AfxGetThread();
    if (thread != nullptr && thread->m_pMainWnd == nullptr)
        thread->m_pMainWnd = frame;
    InitialUpdateFrame(frame, document);
    return document;
}

// Fills the document that is open already; its frame stays.
CDocument* CSingleDocTemplate::Reopen(LPCTSTR path, BOOL addToMRU)
{
    CDocument* document = m_pOnlyDoc;
    if (!document->SaveModified())
        return nullptr;
    CFrameWnd* frame = nullptr;
    POSITION position = document->GetFirstViewPosition();
    if (position != nullptr)
        frame = document->GetNextView(position)->GetParentFrame();
    if (frame == nullptr)
        return nullptr;
    const BOOL wasModified = document->IsModified();
    // Reading marks the document as modified as soon as it has emptied it.
    document->SetModifiedFlag(FALSE);
    if (FillDocument(document, path, addToMRU))
    {
        InitialUpdateFrame(frame, document);
        return document;
    }
    if (path != nullptr && !document->IsModified())
    {
        document->SetModifiedFlag(wasModified);
    }
    else if (path != nullptr)
    {
        SetDefaultTitle(document);
        document->OnNewDocument();
    }
    return nullptr;
}
