// CMultiDocTemplate: a kind of document of which there are many.
#include "document/DocumentSupport.h"

IMPLEMENT_DYNAMIC(CMultiDocTemplate, CDocTemplate)

CMultiDocTemplate::CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                     CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass),
      m_nUntitledCount(0),
      m_hMenuShared(nullptr),
      m_hAccelTable(nullptr)
{
}

CMultiDocTemplate::~CMultiDocTemplate()
{
    ASSERT(m_documents.empty());
    if (m_hMenuShared != nullptr)
        ::DestroyMenu(m_hMenuShared);
    if (m_hAccelTable != nullptr)
        ::DestroyAcceleratorTable(m_hAccelTable);
}

void CMultiDocTemplate::LoadTemplate()
{
    CDocTemplate::LoadTemplate();
    const LPCTSTR resource = MAKEINTRESOURCE(m_nIDResource);
    if (m_hMenuShared == nullptr)
        m_hMenuShared = ::LoadMenu(AfxFindResourceHandle(resource, RT_MENU), resource);
    if (m_hAccelTable == nullptr)
        m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(resource, RT_ACCELERATOR), resource);
}

void CMultiDocTemplate::AddDocument(CDocument* pDoc)
{
    CDocTemplate::AddDocument(pDoc);
    m_documents.push_back(pDoc);
}

void CMultiDocTemplate::RemoveDocument(CDocument* pDoc)
{
    CDocTemplate::RemoveDocument(pDoc);
    m_documents.erase(std::remove(m_documents.begin(), m_documents.end(), pDoc), m_documents.end());
}

POSITION CMultiDocTemplate::GetFirstDocPosition() const
{
    return quorfx::FirstPosition(m_documents);
}

CDocument* CMultiDocTemplate::GetNextDoc(POSITION& rPos) const
{
    return quorfx::NextAt(m_documents, rPos);
}

// The name of the kind and a number that no document of the kind has had.
void CMultiDocTemplate::SetDefaultTitle(CDocument* pDocument)
{
    CString title;
    if (GetDocString(title, docName) && !title.IsEmpty())
    {
        CString number;
        number.Format(_T("%u"), m_nUntitledCount + 1);
        title += number;
    }
    else
    {
        title.LoadString(AFX_IDS_UNTITLED);
    }
    pDocument->SetTitle(title);
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName)
{
    return OpenDocumentFile(lpszPathName, TRUE);
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU)
{
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
    if (lpszPathName == nullptr)
        ++m_nUntitledCount;
    InitialUpdateFrame(frame, document);
    return document;
}
