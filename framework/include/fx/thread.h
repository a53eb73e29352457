// Threads with a message pump, the application object, and the functions that reach them.
#pragma once

#include "fx/config.h"
#include "fx/cmdtarget.h"
#include "fx/string.h"
#include "fx/position.h"
#include "atltypes.h"
#include <vector>

class CCommandLineInfo;
class CDocTemplate;
class CDocument;
class CRecentFileList;
class CWnd;
struct ThreadStart;

// How many recently used files a program shows unless it says otherwise, and at most.
#define _AFX_MRU_COUNT 4
#define _AFX_MRU_MAX_COUNT 16

// What a worker thread runs; its result is the exit code of the thread.
typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID);

// A thread with a message loop, or a worker thread. The main thread's object is the CWinApp. An object made
// with new and started with CreateThread is what AfxBeginThread makes in one step.
class QFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    // Starts the thread: InitInstance, Run and ExitInstance are called on it. With CREATE_SUSPENDED it waits
    // for ResumeThread, else messages may be posted to it when this returns. FALSE when it cannot be created.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);

    CWnd* m_pMainWnd;   // when this window is destroyed the message loop ends; not owned
    CWnd* m_pActiveWnd; // not owned
    // Whether the object is deleted at the end of its thread; FALSE at first, but TRUE from AfxBeginThread.
    BOOL m_bAutoDelete;
    HANDLE m_hThread; // closed by the destructor
    DWORD m_nThreadID;

    operator HANDLE() const { return this == NULL ? NULL : m_hThread; }
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
    }
    // The priority is THREAD_PRIORITY_...; the other two return the count of suspensions before, (DWORD)-1 on
    // failure.
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }

    // Returning FALSE ends the thread without a message loop.
    virtual BOOL InitInstance();
    // The message loop: OnIdle with a rising count while the queue is empty and OnIdle returns TRUE, else
    // PumpMessage, until WM_QUIT. Returns ExitInstance's value.
    virtual int Run();
    virtual int ExitInstance();
    // Offers a message to the windows before it is dispatched; TRUE when it was eaten.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Gets and dispatches one message; FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    // Background work; frees the temporary objects of the handle maps. TRUE asks to be called again.
    virtual BOOL OnIdle(LONG lCount);
    // Whether OnIdle starts over after this message; repeated mouse moves and the caret's blinking do not
    // count.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    // Gets an exception that a window's handler threw; the default reports it. The value is the message's
    // result. The exception is deleted by the caller.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd();

protected:
    DECLARE_MESSAGE_MAP()

    friend BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);

private:
    // Calls the ON_THREAD_MESSAGE handler of a message without a window.
    BOOL DispatchThreadMessageEx(MSG* pMsg);
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    UINT RunToEnd();
    static unsigned __stdcall ThreadMain(void* start);
    friend QFX_API CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC, LPVOID, int, UINT, DWORD,
                                                     LPSECURITY_ATTRIBUTES);

    AFX_THREADPROC m_pfnThreadProc; // NULL in a thread with a message loop
    LPVOID m_pThreadParam;
};

// How the framework shows help.
enum AFX_HELP_TYPE
{
    afxWinHelp = 0,
    afxHTMLHelp = 1
};

class CAtlTransactionManager;

// The application. A program has one global object of a derived class.
class QFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    // A NULL name is replaced by the string resource AFX_IDS_APP_TITLE or the file name of the program.
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine;
    int m_nCmdShow;
    // The texts are blocks of malloc: who replaces one frees the old block and makes the new one with
    // _tcsdup.
    LPCTSTR m_pszAppName;
    LPCTSTR m_pszExeName;      // without folder and extension
    LPCTSTR m_pszRegistryKey;  // NULL until SetRegistryKey
    LPCTSTR m_pszProfileName;  // the .INI file, or the name in the registry after SetRegistryKey
    LPCTSTR m_pszHelpFilePath; // beside the program, of its name, with the extension of the type of help
    AFX_HELP_TYPE m_eHelpType;
    BOOL m_bHelpMode; // whether the next click asks for help

    // Resources are looked up through the module chain; NULL when there is none of that name.
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(NULL, lpszCursorName); }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(NULL, lpszIconName); }
    // The system's own, by OCR_ and OIC_ number.
    HCURSOR LoadOEMCursor(UINT nIDCursor) const { return ::LoadCursor(NULL, MAKEINTRESOURCE(nIDCursor)); }
    HICON LoadOEMIcon(UINT nIDIcon) const { return ::LoadIcon(NULL, MAKEINTRESOURCE(nIDIcon)); }

    // The kinds of documents. They belong to the application from then on.
    void AddDocTemplate(CDocTemplate* pTemplate);
    POSITION GetFirstDocTemplatePosition() const;
    CDocTemplate* GetNextDocTemplate(POSITION& pos) const;
    // Opens the file with the template that it fits best, or shows the document that has it open already.
    // NULL on failure, of which the user has been told.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU = TRUE);
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);
    // Asks about every modified document; FALSE when what is going on must stop.
    virtual BOOL SaveAllModified();
    // Asks nobody. Call HideApplication before it when the program ends.
    void CloseAllDocuments(BOOL bEndSession);
    void HideApplication();

    // The command line of the process, parameter by parameter.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    // Does what the command line says. FALSE when the program is to end: InitInstance then returns FALSE.
    BOOL ProcessShellCommand(CCommandLineInfo& rCmdInfo);
    // Called for the command line /Register and /Unregister; the bases do nothing more than return TRUE.
    virtual BOOL Register();
    virtual BOOL Unregister();

    // The commands ID_FILE_NEW and ID_FILE_OPEN, for the message maps of programs, which name them as
    // &CWinApp::OnFileNew: that is why they are public. With several templates that have a name for it the
    // user is asked for the kind of the new document.
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    // The command ID_FILE_PRINT_SETUP. The framework has no printing, and this tells the user so.
    afx_msg void OnFilePrintSetup();

    // All AfxMessageBox calls come here.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    // nCode 1 shows the hourglass, -1 takes it back, 0 restores it.
    virtual void DoWaitCursor(int nCode);
    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    // Settings: under HKEY_CURRENT_USER\Software\<key>\<application>\<section> once SetRegistryKey was
    // called, in the program's .INI file otherwise.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = NULL);
    // A NULL entry deletes the section, a NULL value deletes the entry.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    // The caller deletes the bytes with delete [].
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    // The keys that hold the settings, created where they are missing; the caller closes them. NULL before
    // SetRegistryKey and on failure. There are no transactions here.
    HKEY GetAppRegistryKey(CAtlTransactionManager* pTM = NULL);
    HKEY GetSectionKey(LPCTSTR lpszSection, CAtlTransactionManager* pTM = NULL);
    // Deletes a key with all below it; an error code of the system.
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName, CAtlTransactionManager* pTM = NULL);

    // Help. The file is m_pszHelpFilePath; HELP_... and HH_... say what to show of it. A file that cannot be
    // shown is reported to the user.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    AFX_HELP_TYPE GetHelpMode() { return m_eHelpType; }
    void SetHelpMode(AFX_HELP_TYPE eHelpType);
    void EnableHtmlHelp() { SetHelpMode(afxHTMLHelp); }

    // Handlers for the commands ID_HELP (help on what is active), ID_CONTEXT_HELP (help on what is clicked
    // next), ID_HELP_INDEX, ID_HELP_FINDER and ID_HELP_USING; the message map of a program names those it
    // wants.
    // Documented as protected, but the maps of programs name them as &CWinApp::OnHelp, which not every
    // compiler allows for a protected member.
    afx_msg void OnHelp();
    afx_msg void OnContextHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

protected:
    DECLARE_MESSAGE_MAP()

    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    // Reads the recently used files, at most nMaxMRU, from the settings; call it in InitInstance, after
    // SetRegistryKey.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    // Enters the templates' kinds of files, with program, icon and name, into the registry, or takes them
    // out. Call EnableShellOpen before it.
    void EnableShellOpen();
    void RegisterShellFileTypes(BOOL bCompat = FALSE);
    void UnregisterShellFileTypes();

private:
    // The command ID_APP_EXIT: closes the main window.
    afx_msg void OnAppExit();

    afx_msg void OnUpdateRecentFileMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnOpenRecentFile(UINT nID);
    void SaveRecentFiles();
    void PrintAndClose(const CCommandLineInfo& commandLine);
    void DeleteDocTemplates();

    std::vector<CDocTemplate*> m_docTemplates;
    CRecentFileList* m_pRecentFileList;
    int m_waitCursorCount;
    HCURSOR m_waitCursorRestore;
};

// NULL when the program has no such object.
QFX_API CWinApp* AFXAPI AfxGetApp();
// NULL on a thread that the framework did not start.
QFX_API CWinThread* AFXAPI AfxGetThread();
QFX_API CWnd* AFXAPI AfxGetMainWnd();
QFX_API LPCTSTR AFXAPI AfxGetAppName();

// Shows a message box owned by the active window through CWinApp::DoMessageBox; returns the button's id, 0 on
// failure.
QFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
QFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);

// Start a worker thread, or a thread with a message loop whose class is given by its runtime class. The
// object deletes itself at the end of the thread unless m_bAutoDelete is cleared; who wants to wait for the
// thread clears it before (CREATE_SUSPENDED, then ResumeThread). A priority of THREAD_PRIORITY_NORMAL and a
// stack of 0 bytes stand for the usual ones. NULL when the thread cannot be created.
QFX_API CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                          int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                          DWORD dwCreateFlags = 0,
                                          LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
QFX_API CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                          UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                          LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
// Ends the calling thread, which AfxBeginThread or CreateThread started, from within; bDelete FALSE keeps its
// object.
QFX_API void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

// Ends the message loop of the calling thread.
QFX_API void AFXAPI AfxPostQuitMessage(int nExitCode);

// One turn of the calling thread's message loop, for loops of one's own.
QFX_API BOOL AFXAPI AfxPumpMessage();
QFX_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
QFX_API BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg);

// What a program's entry point calls: initialises the framework; runs the application from start to end.
QFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
QFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
