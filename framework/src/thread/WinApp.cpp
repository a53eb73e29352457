// CWinApp: the application object.
#include "afxadv.h"
#include "threadstate/ThreadState.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
    ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
    ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, &CWinApp::OnOpenRecentFile)
END_MESSAGE_MAP()

namespace
{

// The file name of the program without folder and extension.
CString ProgramName()
{
    TCHAR path[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, path, MAX_PATH - 1);
    const TCHAR* const slash = _tcsrchr(path, _T('\\'));
    CString name(slash != nullptr ? slash + 1 : path);
    const int dot = name.ReverseFind(_T('.'));
    return dot > 0 ? name.Left(dot) : name;
}

CString TitleOf(LPCTSTR given, const CString& programName)
{
    if (given != nullptr)
        return CString(given);
    TCHAR title[256] = {};
    return AfxLoadString(AFX_IDS_APP_TITLE, title) > 0 ? CString(title) : programName;
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(::GetModuleHandle(nullptr)),
      m_lpCmdLine(nullptr),
      m_nCmdShow(SW_SHOWDEFAULT),
      m_pszAppName(nullptr),
      m_pszExeName(nullptr),
      m_pszRegistryKey(nullptr),
      m_pszProfileName(nullptr),
      m_pszHelpFilePath(nullptr),
      m_eHelpType(afxWinHelp),
      m_bHelpMode(FALSE),
      m_pRecentFileList(nullptr),
      m_waitCursorCount(0),
      m_waitCursorRestore(nullptr)
{
    const CString programName = ProgramName();
    m_pszAppName = _tcsdup(TitleOf(lpszAppName, programName));
    m_pszExeName = _tcsdup(programName);
    m_pszProfileName = _tcsdup(programName + _T(".INI"));
    SetHelpMode(afxWinHelp);
    m_hThread = ::GetCurrentThread();
    m_nThreadID = ::GetCurrentThreadId();
    CurrentThreadState().thread = this;
    AFX_MODULE_STATE& state = *AfxGetStaticModuleState();
    state.m_pCurrentWinApp = this;
    state.m_lpszCurrentAppName = m_pszAppName;
}

CWinApp::~CWinApp()
{
    m_hThread = nullptr; // not a handle that is to be closed
    DeleteDocTemplates();
    delete m_pRecentFileList;
    AFX_MODULE_STATE& state = *AfxGetStaticModuleState();
    if (state.m_pCurrentWinApp == this)
    {
        state.m_pCurrentWinApp = nullptr;
        state.m_lpszCurrentAppName = nullptr;
    }
    for (const LPCTSTR text :
         {m_pszAppName, m_pszExeName, m_pszRegistryKey, m_pszProfileName, m_pszHelpFilePath})
        std::free(const_cast<LPTSTR>(text));
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    // Without a main window nothing would ever end the loop.
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::ExitInstance()
{
    SaveRecentFiles();
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG lCount)
{
    CWinThread::OnIdle(lCount);
    return lCount < 1;
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    const LRESULT result = CWinThread::ProcessWndProcException(e, pMsg);
    // A CUserException says that the user knows already.
    const bool isReported = e->IsKindOf(RUNTIME_CLASS(CUserException)) || pMsg->message == WM_PAINT;
    if (!isReported)
        e->ReportError(MB_ICONEXCLAMATION);
    return result;
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const
{
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const
{
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

void CWinApp::DoWaitCursor(int nCode)
{
    const HCURSOR hourglass = ::LoadCursor(nullptr, IDC_WAIT);
    m_waitCursorCount += nCode;
    if (m_waitCursorCount > 0)
    {
        const HCURSOR previous = ::SetCursor(hourglass);
        if (nCode > 0 && m_waitCursorCount == 1)
            m_waitCursorRestore = previous;
    }
    else
    {
        m_waitCursorCount = 0;
        ::SetCursor(m_waitCursorRestore);
    }
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}
