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

// How many recently used files a program shows unless it says otherwise, and at most.
#define _AFX_MRU_COUNT 4
#define _AFX_MRU_MAX_COUNT 16

// A thread with a message loop. The main thread's object is the CWinApp.
class QFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd;   // when this window is destroyed the message loop ends; not owned
    CWnd* m_pActiveWnd; // not owned
    HANDLE m_hThread;
    DWORD m_nThreadID;

    operator HANDLE() const { return this == NULL ? NULL : m_hThread; }
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
    }

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

    // Calls the ON_THREAD_MESSAGE handler of a message without a window.
    BOOL DispatchThreadMessageEx(MSG* pMsg);
    friend BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
};

// The application. A program has one global object of a derived class.
class QFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    // A NULL name is replaced by the string resource AFX_IDS_APP_TITLE or the file name of the program.
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    HINSTANCE m_hPrevInstance; // always NULL
    LPTSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCTSTR m_pszAppName;
    LPCTSTR m_pszExeName;     // without folder and extension
    LPCTSTR m_pszRegistryKey; // NULL until SetRegistryKey
    LPCTSTR m_pszProfileName;

    // Resources are looked up through the module chain; NULL when there is none of that name.
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(NULL, lpszCursorName); }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(NULL, lpszIconName); }

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
    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    // Settings: under HKEY_CURRENT_USER\Software\<key>\<application>\<section> once SetRegistryKey was
    // called.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = NULL);
    // A NULL entry deletes the section, a NULL value deletes the entry.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);

protected:
    DECLARE_MESSAGE_MAP()

    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    // Reads the recently used files, at most nMaxMRU, from the settings; call it in InitInstance, after
    // SetRegistryKey.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    // Enters the templates' kinds of files, with program, icon and name, into the registry, or takes them
    // out. Call EnableShellOpen before it.
    void EnableShellOpen();
    void RegisterShellFileTypes(BOOL bCompat = FALSE);
    void UnregisterShellFileTypes();
    // The command ID_APP_EXIT: closes the main window.
    afx_msg void OnAppExit();

private:
    afx_msg void OnUpdateRecentFileMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnOpenRecentFile(UINT nID);
    void SaveRecentFiles();
    void PrintAndClose(const CCommandLineInfo& commandLine);
    void DeleteDocTemplates();

    std::vector<CDocTemplate*> m_docTemplates;
    CRecentFileList* m_pRecentFileList;
    CString m_appName;
    CString m_exeName;
    CString m_registryKey;
    int m_waitCursorCount;
    HCURSOR m_waitCursorRestore;
};

// NULL when the program has no such object.
QFX_API CWinApp* AFXAPI AfxGetApp();
QFX_API CWinThread* AFXAPI AfxGetThread();
QFX_API CWnd* AFXAPI AfxGetMainWnd();
QFX_API LPCTSTR AFXAPI AfxGetAppName();

// Shows a message box owned by the active window through CWinApp::DoMessageBox; returns the button's id, 0 on
// failure.
QFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
QFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);

// Ends the message loop of the calling thread.
QFX_API void AFXAPI AfxPostQuitMessage(int nExitCode);

// One turn of the calling thread's message loop, for loops of one's own.
QFX_API BOOL AFXAPI AfxPumpMessage();
QFX_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
QFX_API BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg);

// What a program's entry point calls: initialises the framework; runs the application from start to end.
QFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
QFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
