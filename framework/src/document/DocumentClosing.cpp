// CDocument: what is asked and done before frames and documents go.
#include "document/DocumentSupport.h"

BOOL CDocument::SaveModified()
{
    if (!IsModified())
        return TRUE;
    CString name = m_strPathName.IsEmpty() ? m_strTitle : quorfx::FileTitle(m_strPathName);
    if (name.IsEmpty())
        name.LoadString(AFX_IDS_UNTITLED);
    CString prompt;
    AfxFormatString1(prompt, AFX_IDP_ASK_TO_SAVE, name);
    switch (AfxMessageBox(prompt, MB_YESNOCANCEL, AFX_IDP_ASK_TO_SAVE))
    {
    case IDYES:
        return SaveInPlace();
    case IDNO:
        return TRUE;
    default:
        return FALSE;
    }
}

// A frame of the document that is not this one, or NULL.
CFrameWnd* CDocument::OtherFrame(const CFrameWnd* frame) const
{
    for (CView* view : m_views)
    {
        CFrameWnd* const other = view->GetParentFrame();
        if (other != nullptr && other != frame)
            return other;
    }
    return nullptr;
}

BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame)
{
    return OtherFrame(pFrame) != nullptr || SaveModified();
}

void CDocument::PreCloseFrame(CFrameWnd*) {}

void CDocument::OnCloseDocument()
{
    // The views take themselves off the list with their frames; the document must not go with the last one.
    const BOOL deleteSelf = m_bAutoDelete;
    m_bAutoDelete = FALSE;
    while (!m_views.empty())
    {
        CView* view = m_views.front();
        CFrameWnd* frame = view->GetParentFrame();
        if (frame != nullptr)
        {
            PreCloseFrame(frame);
            frame->DestroyWindow();
        }
        else
        {
            RemoveView(view);
        }
    }
    m_bAutoDelete = deleteSelf;
    DeleteContents();
    if (deleteSelf)
        delete this;
}

void CDocument::OnFileClose()
{
    if (SaveModified())
        OnCloseDocument();
}
