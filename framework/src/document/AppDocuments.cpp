// CWinApp: its kinds of documents, and the commands that make and open documents.
#include "document/DocumentSupport.h"
#include "document/FilePrompt.h"
#include "document/NewTypeDialog.h"

void CWinApp::AddDocTemplate(CDocTemplate* pTemplate)
{
    ASSERT(std::find(m_docTemplates.begin(), m_docTemplates.end(), pTemplate) == m_docTemplates.end());
    pTemplate->LoadTemplate();
    m_docTemplates.push_back(pTemplate);
}

POSITION CWinApp::GetFirstDocTemplatePosition() const
{
    return quorfx::FirstPosition(m_docTemplates);
}

CDocTemplate* CWinApp::GetNextDocTemplate(POSITION& pos) const
{
    return quorfx::NextAt(m_docTemplates, pos);
}

void CWinApp::DeleteDocTemplates()
{
    for (CDocTemplate* docTemplate : m_docTemplates)
        delete docTemplate;
    m_docTemplates.clear();
}

void CWinApp::OnFileNew()
{
    if (m_docTemplates.empty())
    {
        TRACE(_T("Application: there is no kind of document.\n"));
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        return;
    }
    CDocTemplate* chosen = m_docTemplates.front();
    if (m_docTemplates.size() > 1)
        chosen = quorfx::ChooseDocTemplate(m_docTemplates);
    if (chosen != nullptr)
        chosen->OpenDocumentFile(nullptr);
}

void CWinApp::OnFileOpen()
{
    CString fileName;
    if (quorfx::PromptForFile(fileName, AFX_IDS_OPENFILE, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, true,
                              nullptr))
        OpenDocumentFile(fileName);
}

void CWinApp::OnFilePrintSetup()
{
    AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT);
}

namespace
{

// Programs are given names in quotes, and with blanks around them.
CString PathFromUser(LPCTSTR text)
{
    CString path(text);
    path.Trim();
    path.Trim(_T('"'));
    return quorfx::FullPath(path);
}

void ShowDocument(CDocument* document)
{
    POSITION position = document->GetFirstViewPosition();
    if (position == nullptr)
        return;
    CFrameWnd* frame = document->GetNextView(position)->GetParentFrame();
    if (frame == nullptr)
        return;
    frame->ActivateFrame();
    CWnd* main = AfxGetMainWnd();
    if (frame->GetParent() != nullptr && main != frame && main != nullptr &&
        main->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
        static_cast<CFrameWnd*>(main)->ActivateFrame();
}

} // namespace

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU)
{
    const CString path = PathFromUser(lpszFileName);
    CDocTemplate::Confidence best = CDocTemplate::noAttempt;
    CDocTemplate* bestTemplate = nullptr;
    CDocument* open = nullptr;
    for (CDocTemplate* docTemplate : m_docTemplates)
    {
        CDocument* document = nullptr;
        const CDocTemplate::Confidence confidence = docTemplate->MatchDocType(path, document);
        if (confidence > best)
        {
            best = confidence;
            bestTemplate = docTemplate;
            open = document;
        }
    }
    if (best == CDocTemplate::yesAlreadyOpen && open != nullptr)
    {
        ShowDocument(open);
        return open;
    }
    if (bestTemplate == nullptr)
    {
        AfxMessageBox(AFX_IDP_FAILED_TO_OPEN_DOC);
        return nullptr;
    }
    return bestTemplate->OpenDocumentFile(path, bAddToMRU);
}

BOOL CWinApp::SaveAllModified()
{
    for (CDocTemplate* docTemplate : m_docTemplates)
    {
        if (!docTemplate->SaveAllModified())
            return FALSE;
    }
    return TRUE;
}

void CWinApp::CloseAllDocuments(BOOL bEndSession)
{
    for (CDocTemplate* docTemplate : m_docTemplates)
        docTemplate->CloseAllDocuments(bEndSession);
}

void CWinApp::HideApplication()
{
    if (m_pMainWnd == nullptr)
        return;
    // Its popups first, so that no other window of the program becomes active in between.
    m_pMainWnd->ShowOwnedPopups(FALSE);
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}
