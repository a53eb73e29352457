// CWinApp: the recently used files.
#include "afxadv.h"
#include "document/DocumentSupport.h"

namespace
{

// The names of the settings; programs find lists of earlier versions under them.
constexpr TCHAR recentFilesSection[] = _T("Recent File List");
constexpr TCHAR recentFileEntry[] = _T("File%d");

} // namespace

void CWinApp::LoadStdProfileSettings(UINT nMaxMRU)
{
    ASSERT(m_pRecentFileList == nullptr);
    if (nMaxMRU == 0)
        return;
    m_pRecentFileList =
        new CRecentFileList(0, recentFilesSection, recentFileEntry, static_cast<int>(nMaxMRU));
    m_pRecentFileList->ReadList();
}

void CWinApp::SaveRecentFiles()
{
    if (m_pRecentFileList != nullptr)
        m_pRecentFileList->WriteList();
}

void CWinApp::AddToRecentFileList(LPCTSTR lpszPathName)
{
    if (m_pRecentFileList != nullptr)
        m_pRecentFileList->Add(lpszPathName);
}

void CWinApp::OnUpdateRecentFileMenu(CCmdUI* pCmdUI)
{
    if (m_pRecentFileList == nullptr)
        pCmdUI->Enable(FALSE);
    else
        m_pRecentFileList->UpdateMenu(pCmdUI);
}

BOOL CWinApp::OnOpenRecentFile(UINT nID)
{
    const int index = static_cast<int>(nID - ID_FILE_MRU_FILE1);
    if (m_pRecentFileList == nullptr || index >= m_pRecentFileList->GetSize() ||
        (*m_pRecentFileList)[index].IsEmpty())
        return FALSE;
    const CString path = (*m_pRecentFileList)[index];
    if (OpenDocumentFile(path) != nullptr)
        return TRUE;
    // A file that cannot be opened is not offered again, unless the user only kept what is open.
    if (::GetFileAttributes(path) == INVALID_FILE_ATTRIBUTES)
        m_pRecentFileList->Remove(index);
    return TRUE;
}
