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
    ASSERT(pDoc->m_pDocTemplate == NULL);
    pDoc->m_pDocTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* pDoc)
{
    ASSERT(pDoc->m_pDocTemplate == this);
    pDoc->m_pDocTemplate = NULL;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch)
{
    rpDocMatch = NULL;
    const CString path = quorfx::FullPath(lpszPathName);
    for (POSITION position = GetFirstDocPosition(); position != NULL;)
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
    CObject* object = m_pDocClass != NULL ? m_pDocClass->CreateObject() : NULL;
    CDocument* document = DYNAMIC_DOWNCAST(CDocument, object);
    if (document == NULL)
    {
        TRACE(_T("Template: the document cannot be created.\n"));
        delete object;
        return NULL;
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
    CObject* object = m_pFrameClass != NULL ? m_pFrameClass->CreateObject() : NULL;
    CFrameWnd* frame = DYNAMIC_DOWNCAST(CFrameWnd, object);
    if (frame == NULL)
    {
        TRACE(_T("Template: the frame cannot be created.\n"));
        delete object;
        return NULL;
    }
    // A frame that cannot be created deletes itself.
    const bool loaded =
        frame->LoadFrame(m_nIDResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, NULL, &context) != FALSE;
    return loaded ? frame : NULL;
}

void CDocTemplate::InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible)
{
    pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

BOOL CDocTemplate::SaveAllModified()
{
    for (POSITION position = GetFirstDocPosition(); position != NULL;)
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
    for (POSITION position = GetFirstDocPosition(); position != NULL;)
        documents.push_back(GetNextDoc(position));
    for (CDocument* document : documents)
        document->OnCloseDocument();
}

CDocument* CDocTemplate::CreateDocumentAndFrame(CFrameWnd*& frame)
{
    CDocument* document = CreateNewDocument();
    if (document == NULL)
    {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        return NULL;
    }
    // A frame that fails takes its view along, and the view must not take the document.
    const BOOL autoDelete = document->m_bAutoDelete;
    document->m_bAutoDelete = FALSE;
    frame = CreateNewFrame(document, NULL);
    document->m_bAutoDelete = autoDelete;
    if (frame != NULL)
        return document;
    AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
    delete document;
    return NULL;
}

bool CDocTemplate::FillDocument(CDocument* document, LPCTSTR path, BOOL addToMRU)
{
    if (path == NULL)
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
