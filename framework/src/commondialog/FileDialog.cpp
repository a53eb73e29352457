// CFileDialog: the system's dialogs for file names.
#include "commondialog/HookScope.h"

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace
{

// Pairs that are separated by '|', as the system wants them: each text ends with a zero, the list with two.
CString SystemFilter(LPCTSTR filter)
{
    CString result(filter);
    if (result.IsEmpty() || result[result.GetLength() - 1] != '|')
        result += '|';
    result.Replace('|', '\0');
    return result;
}

bool IsFolder(LPCTSTR path)
{
    const DWORD attributes = ::GetFileAttributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

BOOL WINAPI RunOpen(void* data)
{
    return ::GetOpenFileName(static_cast<OPENFILENAME*>(data));
}

BOOL WINAPI RunSave(void* data)
{
    return ::GetSaveFileName(static_cast<OPENFILENAME*>(data));
}

} // namespace

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize, BOOL)
    : CCommonDialog(pParentWnd), m_ofn(), m_bOpenFileDialog(bOpenFileDialog)
{
    m_szFileTitle[0] = m_szFileName[0] = 0;
    m_ofn.lStructSize = dwSize != 0 ? dwSize : static_cast<DWORD>(sizeof(m_ofn));
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = _countof(m_szFileName);
    m_ofn.lpstrDefExt = lpszDefExt;
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = _countof(m_szFileTitle);
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.hInstance = AfxGetResourceHandle();
    m_ofn.lpfnHook = &CCommonDialog::HookProcedure;
    if (lpszFileName != nullptr)
        lstrcpyn(m_szFileName, lpszFileName, _countof(m_szFileName));
    if (lpszFilter != nullptr && lpszFilter[0] != 0)
    {
        m_strFilter = SystemFilter(lpszFilter);
        m_ofn.lpstrFilter = m_strFilter;
    }
}

CFileDialog::~CFileDialog() {}

INT_PTR CFileDialog::DoModal()
{
    m_ofn.hwndOwner = FindOwner();
    return RunHooked(m_bOpenFileDialog ? RunOpen : RunSave, &m_ofn);
}

// The answer of the open dialog to a CDM_ message that asks for a text.
CString CFileDialog::AskDialog(UINT message) const
{
    const HWND dialog = ::GetParent(m_hWnd);
    const LRESULT size = ::SendMessage(dialog, message, 0, 0);
    CString text;
    if (size > 0)
    {
        ::SendMessage(dialog, message, static_cast<WPARAM>(size),
                      reinterpret_cast<LPARAM>(text.GetBuffer(static_cast<int>(size))));
        text.ReleaseBuffer();
    }
    return text;
}

CString CFileDialog::GetPathName() const
{
    if (m_hWnd != nullptr && (m_ofn.Flags & OFN_EXPLORER) != 0)
        return AskDialog(CDM_GETFILEPATH);
    return m_ofn.lpstrFile;
}

CString CFileDialog::GetFileName() const
{
    if (m_hWnd != nullptr && (m_ofn.Flags & OFN_EXPLORER) != 0)
        return AskDialog(CDM_GETSPEC);
    const CString path = GetPathName();
    return path.Mid((std::max)(path.ReverseFind('\\'), path.ReverseFind('/')) + 1);
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const
{
    ASSERT(m_hWnd != nullptr && (m_ofn.Flags & OFN_EXPLORER) != 0);
    return AskDialog(CDM_GETFOLDERPATH);
}

// The buffer holds one path, or a folder and names, each ended by a zero. A position points to the next name
// in it.
POSITION CFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(m_ofn.lpstrFile);
}

CString CFileDialog::GetNextPathName(POSITION& pos) const
{
    ENSURE_ARG(pos != nullptr);
    LPCTSTR name = reinterpret_cast<LPCTSTR>(pos);
    const CString first = m_ofn.lpstrFile;
    LPCTSTR firstName = m_ofn.lpstrFile + first.GetLength() + 1;
    const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0 && *firstName != 0 && IsFolder(first);
    if (!several)
    {
        pos = nullptr;
        return first;
    }
    if (name == m_ofn.lpstrFile)
        name = firstName;
    LPCTSTR next = name + std::wcslen(name) + 1;
    pos = *next == 0 ? nullptr : reinterpret_cast<POSITION>(const_cast<LPTSTR>(next));
    return first[first.GetLength() - 1] == '\\' ? first + name : first + _T("\\") + name;
}

void CFileDialog::SetTemplate(UINT nWin3ID, UINT nWin4ID)
{
    SetTemplate(MAKEINTRESOURCE(nWin3ID), MAKEINTRESOURCE(nWin4ID));
}

void CFileDialog::SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID)
{
    m_ofn.lpTemplateName = (m_ofn.Flags & OFN_EXPLORER) != 0 ? lpWin4ID : lpWin3ID;
    m_ofn.hInstance = AfxFindResourceHandle(m_ofn.lpTemplateName, RT_DIALOG);
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz)
{
    SetControlText(nID, CString(lpsz).GetString());
}

void CFileDialog::SetControlText(int nID, const wchar_t* lpsz)
{
    ASSERT(m_hWnd != nullptr);
    ::SendMessage(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID),
                  reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID)
{
    ASSERT(m_hWnd != nullptr);
    ::SendMessage(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCSTR lpsz)
{
    ASSERT(m_hWnd != nullptr);
    const CString extension(lpsz);
    ::SendMessage(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(extension.GetString()));
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const OFNOTIFY* const notification = reinterpret_cast<const OFNOTIFY*>(lParam);
    LRESULT result = 0;
    switch (notification->hdr.code)
    {
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    case CDN_FILEOK:
        result = OnFileNameOK();
        break;
    case CDN_SHAREVIOLATION:
        result = OnShareViolation(notification->pszFile);
        break;
    default:
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
    // The system reads the answer of a dialog there.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, result);
    if (pResult != nullptr)
        *pResult = result;
    return TRUE;
}

BOOL CFileDialog::HandleDialogMessage(UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR& result)
{
    static const UINT fileOk = ::RegisterWindowMessage(FILEOKSTRING);
    static const UINT shareViolation = ::RegisterWindowMessage(SHAREVISTRING);
    static const UINT listSelection = ::RegisterWindowMessage(LBSELCHSTRING);
    // Dialogs of the Explorer style have sent notifications before.
    if ((m_ofn.Flags & OFN_EXPLORER) != 0)
        return FALSE;
    if (message == fileOk)
        result = static_cast<UINT_PTR>(OnFileNameOK());
    else if (message == shareViolation)
        result = OnShareViolation(reinterpret_cast<LPCTSTR>(lParam));
    else if (message == listSelection)
        OnLBSelChangedNotify(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
    else
        return FALSE;
    return TRUE;
}

BOOL CFileDialog::OnFileNameOK()
{
    return FALSE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR)
{
    return OFN_SHAREWARN;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {}

void CFileDialog::OnInitDone()
{
    GetParent()->CenterWindow();
}

void CFileDialog::OnFileNameChange() {}

void CFileDialog::OnFolderChange() {}

void CFileDialog::OnTypeChange() {}
