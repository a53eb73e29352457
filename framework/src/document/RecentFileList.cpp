// CRecentFileList: the recently used files.
#include "afxadv.h"
#include "FrameworkAccess.h"
#include "document/DocumentSupport.h"

CRecentFileList::CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                                 int nMaxDispLen)
    : m_names(static_cast<size_t>(nSize)),
      m_nStart(nStart),
      m_section(lpszSection),
      m_entryFormat(lpszEntryFormat),
      m_maxDisplayLength(nMaxDispLen)
{
}

CRecentFileList::~CRecentFileList() {}

CString& CRecentFileList::operator[](int nindex)
{
    ASSERT(nindex >= 0 && nindex < GetSize());
    return m_names[static_cast<size_t>(nindex)];
}

void CRecentFileList::Remove(int nIndex)
{
    ASSERT(nIndex >= 0 && nIndex < GetSize());
    m_names.erase(m_names.begin() + nIndex);
    m_names.emplace_back();
}

void CRecentFileList::Add(LPCTSTR lpszPathName)
{
    if (m_names.empty())
        return;
    const CString path = quorfx::FullPath(lpszPathName);
    const auto isSame = [&path](const CString& name) { return name.CompareNoCase(path) == 0; };
    const auto same = std::find_if(m_names.begin(), m_names.end(), isSame);
    m_names.erase(same == m_names.end() ? m_names.end() - 1 : same);
    m_names.insert(m_names.begin(), path);
}

BOOL CRecentFileList::GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                     BOOL bAtLeastName) const
{
    const CString& path = m_names[static_cast<size_t>(nIndex)];
    if (path.IsEmpty())
        return FALSE;
    const CString name = quorfx::FileName(path);
    const bool isInCurrentFolder = path.GetLength() - name.GetLength() == nCurDir &&
                                   path.Left(nCurDir).CompareNoCase(CString(lpszCurDir, nCurDir)) == 0;
    strName =
        isInCurrentFolder ? name : quorfx::AbbreviatedPath(path, m_maxDisplayLength, bAtLeastName != FALSE);
    return TRUE;
}

namespace
{

// The current folder with a backslash at its end.
CString CurrentFolder()
{
    TCHAR folder[MAX_PATH] = {};
    ::GetCurrentDirectory(MAX_PATH, folder);
    const CString text(folder);
    return text.Right(1) == _T("\\") ? text : text + _T('\\');
}

// "&1 name" to "&9 name", "1&0 name", "11 name": the key for a file is its number's last digit.
CString MenuText(UINT number, CString name)
{
    name.Replace(_T("&"), _T("&&"));
    CString text;
    if (number == 10)
        text = _T("1&0");
    else
        text.Format(number < 10 ? _T("&%u") : _T("%u"), number);
    return text + _T(' ') + name;
}

} // namespace

void CRecentFileList::UpdateMenu(CCmdUI* pCmdUI)
{
    CMenu* const menu = pCmdUI->m_pMenu;
    if (m_emptyText.IsEmpty() && menu != nullptr)
        menu->GetMenuString(pCmdUI->m_nID, m_emptyText, MF_BYCOMMAND);
    if (m_names.empty() || m_names.front().IsEmpty())
    {
        if (!m_emptyText.IsEmpty())
            pCmdUI->SetText(m_emptyText);
        pCmdUI->Enable(FALSE);
        return;
    }
    if (menu == nullptr)
        return;
    for (UINT i = 0; i < m_names.size(); ++i)
        menu->DeleteMenu(pCmdUI->m_nID + i, MF_BYCOMMAND);
    const CString folder = CurrentFolder();
    CString name;
    for (int i = 0; i < GetSize() && GetDisplayName(name, i, folder, folder.GetLength()); ++i)
    {
        const UINT offset = static_cast<UINT>(i);
        menu->InsertMenu(pCmdUI->m_nIndex++, MF_STRING | MF_BYPOSITION, pCmdUI->m_nID + offset,
                         MenuText(offset + 1 + m_nStart, name));
    }
    // The caller goes on behind the last one.
    --pCmdUI->m_nIndex;
    pCmdUI->m_nIndexMax = static_cast<UINT>(menu->GetMenuItemCount());
    FrameworkAccess::EnableChanged(*pCmdUI) = TRUE;
}

CString CRecentFileList::EntryName(int index) const
{
    CString name;
    name.Format(m_entryFormat, static_cast<int>(m_nStart) + index + 1);
    return name;
}

void CRecentFileList::ReadList()
{
    CWinApp* const application = AfxGetApp();
    for (int i = 0; i < GetSize(); ++i)
        (*this)[i] = application->GetProfileString(m_section, EntryName(i));
}

void CRecentFileList::WriteList()
{
    CWinApp* const application = AfxGetApp();
    application->WriteProfileString(m_section, nullptr, nullptr);
    for (int i = 0; i < GetSize() && !(*this)[i].IsEmpty(); ++i)
        application->WriteProfileString(m_section, EntryName(i), (*this)[i]);
}
