// CFrameWnd: closing, and the end of the session.
#include "bars/FrameMessages.h"

bool CFrameWnd::IsMainWindow() const
{
    CWinApp* const application = AfxGetApp();
    return application != nullptr && application->m_pMainWnd == this;
}

// Without an active document, as in a frame of many documents, all documents are asked about.
void CFrameWnd::OnClose()
{
    CDocument* const document = GetActiveDocument();
    CWinApp* const application = AfxGetApp();
    const bool isMain = IsMainWindow();
    if (document != nullptr && !document->CanCloseFrame(this))
        return;
    if (isMain && document == nullptr && !application->SaveAllModified())
        return;
    const HWND window = m_hWnd;
    if (isMain)
    {
        application->HideApplication();
        application->CloseAllDocuments(FALSE);
    }
    else if (document != nullptr)
    {
        document->PreCloseFrame(this);
    }
    // The last document may have taken the frame, and this object, with it.
    if (::IsWindow(window))
        DestroyWindow();
}

BOOL CFrameWnd::OnQueryEndSession()
{
    return !IsMainWindow() || AfxGetApp()->SaveAllModified();
}

void CFrameWnd::OnEndSession(BOOL bEnding)
{
    if (!bEnding || !IsMainWindow())
        return;
    CWinApp* const application = AfxGetApp();
    application->CloseAllDocuments(TRUE);
    application->ExitInstance();
}
