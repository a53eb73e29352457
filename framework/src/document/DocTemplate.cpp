// CDocTemplate: what kinds of documents have in common.
#include "document/DocumentSupport.h"

IMPLEMENT_DYNAMIC(CDocTemplate, CCmdTarget)

CDocTemplate::CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                           CRuntimeClass* pViewClass)
    : m_nIDResource(nIDResource), m_pDocClass(pDocClass), m_pFrameClass(pFrameClass), m_pViewClass(pViewClass)
{
}

CDocTemplate::~CDocTemplate() {}

void CDocTemplate::LoadTemplate()
{
    if (!m_docStrings.LoadString(m_nIDResource))
        TRACE(_T("Template: there is no string %u.\n"), m_nIDResource);
}

BOOL CDocTemplate::GetDocString(CString& rString, enum DocStringIndex index) const
{
    return AfxExtractSubString(rString, m_docStrings, static_cast<int>(index));
}

void CDocTemplate::AddDocument(CDocument* pDoc)
{
    ASSERT(pDoc->m_pDocTemplate == nullptr);
    pDoc->m_pDocTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* pDoc)
{
    ASSERT(pDoc->m_pDocTemplate == this);
    pDoc->m_pDocTemplate = nullptr;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch)
{
    rpDocMatch = nullptr;
    const CString path = quorfx::FullPath(lpszPathName);
    for (POSITION position = GetFirstDocPosition(); position != nullptr;)
    {
        CDocument* document = GetNextDoc(position);
        if (document->GetPathName().CompareNoCase(path) == 0)
        {
            rpDocMatch = document;
            return yesAlreadyOpen;
        }
    }
    CString extension;
    const bool hasExtension = GetDocString(extension, filterExt) && !extension.IsEmpty();
    const bool isNative = hasExtension && path.Right(extension.GetLength()).CompareNoCase(extension) == 0;
    return isNative ? yesAttemptNative : yesAttemptForeign;
}

CDocument* CDocTemplate::CreateNewDocument()
{
    CObject* object = m_pDocClass != nullptr ? m_pDocClass->CreateObject() : nullptr;
    CDocument* document = DYNAMIC_DOWNCAST(CDocument, object);
    if (document == nullptr)
    {
        TRACE(_T("Template: the document cannot be created.\n"));
        delete object;
        return nullptr;
    }
    AddDocument(document);
    return document;
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther)
{
    CCreateContext context;
    context.m_pCurrentFrame = pOther;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewViewClass = m_pViewClass;
    context.m_pNewDocTemplate = this;
    CObject* object = m_pFrameClass != nullptr ? m_pFrameClass->CreateObject() : nullptr;
    CFrameWnd* frame = DYNAMIC_DOWNCAST(CFrameWnd, object);
    if (frame == nullptr)
    {
        TRACE(_T("Template: the frame cannot be created.\n"));
        delete object;
        return nullptr;
    }
    // A frame that cannot be created deletes itself.
    const bool loaded =
        frame->LoadFrame(m_nIDResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context) != FALSE;
    return loaded ? frame : nullptr;
}

void CDocTemplate::InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible)
{
    pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

BOOL CDocTemplate::SaveAllModified()
{
    for (POSITION position = GetFirstDocPosition(); position != nullptr;)
    {
        if (!GetNextDoc(position)->SaveModified())
            return FALSE;
    }
    return TRUE;
}

void CDocTemplate::CloseAllDocuments(BOOL)
{
    // A document takes itself off the list when it is deleted; one that stays is met once.
    std::vector<CDocument*> documents;
    for (POSITION position = GetFirstDocPosition(); position != nullptr;)
        documents.push_back(GetNextDoc(position));
    for (CDocument* document : documents)
        document->OnCloseDocument();
}

CDocument* CDocTemplate::CreateDocumentAndFrame(CFrameWnd*& frame)
{
    CDocument* document = CreateNewDocument();
    if (document == nullptr)
    {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        return nullptr;
    }
    // A frame that fails takes its view along, and the view must not take the document.
    const BOOL autoDelete = document->m_bAutoDelete;
    document->m_bAutoDelete = FALSE;
    frame = CreateNewFrame(document, nullptr);
    document->m_bAutoDelete = autoDelete;
    if (frame != nullptr)
        return document;
    AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
    delete document;
    return nullptr;
}

bool CDocTemplate::FillDocument(CDocument* document, LPCTSTR path, BOOL addToMRU)
{
    if (path == nullptr)
    {
        SetDefaultTitle(document);
        return document->OnNewDocument() != FALSE;
    }
    const CWaitCursor wait;
    if (!document->OnOpenDocument(path))
        return false;
    document->SetPathName(path, addToMRU);
    return true;
}
