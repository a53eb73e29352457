// Help: the commands for it, and the programs that show it.
#include "afxpriv.h"
#include "thread/HelpContext.h"

namespace
{

// C:\...\Program.exe with another extension.
CString BesideProgram(LPCTSTR extension)
{
    TCHAR path[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, path, MAX_PATH - 1);
    CString name(path);
    const int dot = name.ReverseFind(_T('.'));
    return (dot > name.ReverseFind(_T('\\')) ? name.Left(dot) : name) + extension;
}

HWND HelpOwner()
{
    CWnd* const main = AfxGetMainWnd();
    return main->GetSafeHwnd() != nullptr ? main->GetTopLevelParent()->GetSafeHwnd() : nullptr;
}

// The control that shows HTML help need not be installed.
HWND ShowHtmlHelp(HWND owner, LPCTSTR file, UINT command, DWORD_PTR data)
{
    using Function = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
    static const HMODULE library = ::LoadLibrary(_T("hhctrl.ocx"));
    const FARPROC function = library != nullptr ? ::GetProcAddress(library, "HtmlHelpW") : nullptr;
    if (function == nullptr)
        return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function))(owner, file, command, data);
}

// The pieces of help that both kinds have, under the number of each.
void ShowHelp(CWinApp& app, UINT winHelpCommand, UINT htmlHelpCommand)
{
    if (app.GetHelpMode() == afxHTMLHelp)
        app.HtmlHelp(0, htmlHelpCommand);
    else
        app.WinHelp(0, winHelpCommand);
}

// Asks the window and those around it until one answers.
LRESULT AskUpwards(HWND window, UINT message, LPARAM lParam)
{
    LRESULT answer = 0;
    while (window != nullptr && (answer = ::SendMessage(window, message, 0, lParam)) == 0)
        window = ::GetParent(window);
    return answer;
}

} // namespace

void CWinApp::SetHelpMode(AFX_HELP_TYPE eHelpType)
{
    m_eHelpType = eHelpType;
    std::free(const_cast<LPTSTR>(m_pszHelpFilePath));
    m_pszHelpFilePath = _tcsdup(BesideProgram(eHelpType == afxHTMLHelp ? _T(".CHM") : _T(".HLP")));
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    const CWaitCursor wait;
    if (!::WinHelp(HelpOwner(), m_pszHelpFilePath, nCmd, dwData))
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    const CWaitCursor wait;
    if (ShowHtmlHelp(HelpOwner(), m_pszHelpFilePath, nCmd, dwData) == nullptr)
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::OnHelp()
{
    if (CWnd* const main = AfxGetMainWnd())
        main->OnHelp();
}

void CWinApp::OnHelpIndex()
{
    ShowHelp(*this, HELP_INDEX, HH_DISPLAY_INDEX);
}

void CWinApp::OnHelpFinder()
{
    ShowHelp(*this, HELP_FINDER, HH_DISPLAY_TOPIC);
}

void CWinApp::OnHelpUsing()
{
    ShowHelp(*this, HELP_HELPONHELP, HH_DISPLAY_TOPIC);
}

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWinApp* const app = AfxGetApp())
        app->WinHelp(dwData, nCmd);
}

void CWnd::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWinApp* const app = AfxGetApp())
        app->HtmlHelp(dwData, nCmd);
}

// Asks the active window first, as it knows best what is going on.
void CWnd::OnHelp()
{
    if (AskUpwards(GetLastActivePopup()->GetSafeHwnd(), WM_COMMANDHELP, 0) == 0)
        SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
}

void CWnd::OnHelpIndex()
{
    if (CWinApp* const app = AfxGetApp())
        ShowHelp(*app, HELP_INDEX, HH_DISPLAY_INDEX);
}

void CWnd::OnHelpFinder()
{
    if (CWinApp* const app = AfxGetApp())
        ShowHelp(*app, HELP_FINDER, HH_DISPLAY_TOPIC);
}

void CWnd::OnHelpUsing()
{
    if (CWinApp* const app = AfxGetApp())
        ShowHelp(*app, HELP_HELPONHELP, HH_DISPLAY_TOPIC);
}

LRESULT ShowHelpContext(DWORD_PTR context)
{
    CWinApp* const app = AfxGetApp();
    if (app == nullptr || context == 0)
        return FALSE;
    if (app->GetHelpMode() == afxHTMLHelp)
        app->HtmlHelp(context);
    else
        app->WinHelp(context);
    return TRUE;
}

namespace
{

// Takes the mouse for the window until the end of the scope.
class HelpCapture
{
public:
    explicit HelpCapture(HWND window) { ::SetCapture(window); }
    ~HelpCapture() { ::ReleaseCapture(); }
    HelpCapture(const HelpCapture&) = delete;
    HelpCapture& operator=(const HelpCapture&) = delete;
};

void HelpOnPoint(POINT screenPoint)
{
    const HWND window = ::WindowFromPoint(screenPoint);
    POINT point = screenPoint;
    ::ScreenToClient(window, &point);
    const LRESULT context = AskUpwards(window, WM_HELPHITTEST, MAKELPARAM(point.x, point.y));
    AskUpwards(window, WM_COMMANDHELP, context);
}

// Runs until a click or Escape, or until something else takes the mouse; whether it was a click.
bool WaitForClick(HWND window, POINT& clicked)
{
    const HelpCapture capture(window);
    ::SetCursor(::LoadCursor(nullptr, IDC_HELP));
    MSG message;
    while (::GetCapture() == window && ::GetMessage(&message, nullptr, 0, 0) > 0)
    {
        if (message.message == WM_LBUTTONDOWN)
        {
            clicked = message.pt;
            return true;
        }
        if (message.message == WM_EXITHELPMODE ||
            (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE))
            return false;
        if (message.message == WM_MOUSEMOVE)
            ::SetCursor(::LoadCursor(nullptr, IDC_HELP));
        else
            ::DispatchMessage(&message);
    }
    return false;
}

} // namespace

void CWinApp::OnContextHelp()
{
    const HWND main = m_pMainWnd->GetSafeHwnd();
    if (m_bHelpMode || main == nullptr)
        return;
    m_bHelpMode = TRUE;
    POINT clicked = {};
    const bool hasClicked = WaitForClick(main, clicked);
    m_bHelpMode = FALSE;
    if (hasClicked)
        HelpOnPoint(clicked);
}
