// The application object: the start and the end of a program, message boxes, settings, the hourglass.
#include "tests/framework/WindowLog.h"
#include "tests/support/MessageBoxProbe.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

// An application in place of the test program's own, for as long as it lives.
class ScriptedApp : public CWinApp
{
public:
    // The state is copied as an argument: the constructor of the base changes it.
    explicit ScriptedApp(Log& log) : ScriptedApp(log, AFX_MODULE_STATE(*AfxGetStaticModuleState())) {}
    ~ScriptedApp() override { *AfxGetStaticModuleState() = m_before; }
    ScriptedApp(const ScriptedApp&) = delete;
    ScriptedApp& operator=(const ScriptedApp&) = delete;

    BOOL m_starts = TRUE;
    bool m_hasWindow = true;
    CWnd m_window;

    using CWinApp::SetRegistryKey;

    BOOL InitInstance() override
    {
        m_log.push_back("InitInstance");
        if (m_hasWindow)
        {
            m_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, NULL, NULL);
            m_pMainWnd = &m_window;
            m_window.PostMessage(WM_COMMAND, ID_APP_EXIT);
        }
        return m_starts;
    }
    int Run() override
    {
        m_log.push_back("Run");
        return CWinApp::Run();
    }
    int ExitInstance() override
    {
        m_log.push_back(m_window.m_hWnd == NULL ? "ExitInstance, window gone" : "ExitInstance");
        CWinApp::ExitInstance();
        return 12;
    }
    BOOL PreTranslateMessage(MSG* message) override
    {
        // The command goes to the application as a frame would pass it on.
        if (message->message == WM_COMMAND)
            return OnCmdMsg(LOWORD(message->wParam), CN_COMMAND, NULL, NULL);
        return CWinApp::PreTranslateMessage(message);
    }
    int DoMessageBox(LPCTSTR text, UINT type, UINT help) override
    {
        m_log.push_back("DoMessageBox " + std::to_string(type) + " " + std::to_string(help));
        return CWinApp::DoMessageBox(text, type, help);
    }

private:
    ScriptedApp(Log& log, const AFX_MODULE_STATE& before)
        : CWinApp(L"ScriptedApp"), m_log(log), m_before(before)
    {
    }

    Log& m_log;
    AFX_MODULE_STATE m_before;
};

int RunProgram()
{
    TCHAR commandLine[] = L"";
    return AfxWinMain(::GetModuleHandle(NULL), NULL, commandLine, SW_SHOW);
}

TEST(Application, StartsRunsUntilTheMainWindowClosesAndEnds)
{
    Log log;
    ScriptedApp app(log);
    EXPECT_EQ(AfxGetApp(), &app);
    EXPECT_EQ(AfxGetThread(), &app);
    EXPECT_EQ(RunProgram(), 12);
    EXPECT_EQ(log, (Log{"InitInstance", "Run", "ExitInstance, window gone"}));
    EXPECT_EQ(app.m_pMainWnd, nullptr);
    EXPECT_EQ(app.m_nCmdShow, SW_SHOW);
}

TEST(Application, DoesNotRunWhenItDidNotStart)
{
    Log log;
    ScriptedApp app(log);
    app.m_starts = FALSE;
    EXPECT_EQ(RunProgram(), 12);
    EXPECT_EQ(log, (Log{"InitInstance", "ExitInstance, window gone"}));
    // The window's end has asked the loop to end that never ran.
    MSG message;
    while (::PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
        ;
}

TEST(Application, EndsAtOnceWithoutAMainWindow)
{
    Log log;
    ScriptedApp app(log);
    app.m_hasWindow = false;
    EXPECT_EQ(RunProgram(), 12);
    EXPECT_EQ(log, (Log{"InitInstance", "Run", "ExitInstance, window gone"}));
}

TEST(Application, KnowsItsNames)
{
    Log log;
    const ScriptedApp app(log);
    EXPECT_STREQ(AfxGetAppName(), L"ScriptedApp");
    EXPECT_STREQ(app.m_pszAppName, L"ScriptedApp");
    EXPECT_STREQ(app.m_pszExeName, L"framework_test");
}

TEST(Application, MessageBoxesGoThroughTheApplication)
{
    Log log;
    ScriptedApp app(log);
    const MessageBoxProbe probe(IDNO);
    EXPECT_EQ(AfxMessageBox(L"Really?", MB_YESNO, 7), IDNO);
    EXPECT_EQ(log, Log{"DoMessageBox " + std::to_string(MB_YESNO) + " 7"});
    ASSERT_EQ(probe.Shown().size(), 1u);
    EXPECT_EQ(probe.Shown()[0].text, L"Really?");
    EXPECT_EQ(probe.Shown()[0].caption, L"ScriptedApp");
}

TEST(Application, AMessageBoxLeavesTheMainWindowEnabled)
{
    Log log;
    ScriptedApp app(log);
    ParentWindow main;
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                               main.m_hWnd, NULL));
    app.m_pMainWnd = &main;
    popup.SetActiveWindow();
    const MessageBoxProbe probe;
    EXPECT_EQ(AfxMessageBox(L"Text"), IDOK);
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_TRUE(popup.IsWindowEnabled());
    app.m_pMainWnd = nullptr;
    popup.DestroyWindow();
}

TEST(Application, KeepsSettings)
{
    Log log;
    ScriptedApp app(log);
    app.SetRegistryKey(L"QuorTests");
    EXPECT_EQ(app.GetProfileInt(L"Section", L"Number", 5), 5u);
    EXPECT_STREQ(app.GetProfileString(L"Section", L"Text", L"default"), L"default");
    EXPECT_TRUE(app.WriteProfileInt(L"Section", L"Number", 77));
    EXPECT_TRUE(app.WriteProfileString(L"Section", L"Text", L"kept"));
    EXPECT_EQ(app.GetProfileInt(L"Section", L"Number", 5), 77u);
    EXPECT_STREQ(app.GetProfileString(L"Section", L"Text"), L"kept");
    EXPECT_STREQ(app.GetProfileString(L"Section", L"Number", L"no text"), L"no text");

    EXPECT_TRUE(app.WriteProfileString(L"Section", L"Text", nullptr));
    EXPECT_STREQ(app.GetProfileString(L"Section", L"Text", L"gone"), L"gone");
    EXPECT_TRUE(app.WriteProfileString(L"Section", nullptr, nullptr));
    EXPECT_EQ(app.GetProfileInt(L"Section", L"Number", 5), 5u);
    ::RegDeleteKey(HKEY_CURRENT_USER, L"Software\\QuorTests\\ScriptedApp");
    ::RegDeleteKey(HKEY_CURRENT_USER, L"Software\\QuorTests");
}

TEST(Application, TheHourglassNestsAndGoesBack)
{
    Log log;
    ScriptedApp app(log);
    const HCURSOR arrow = ::LoadCursor(NULL, IDC_ARROW);
    const HCURSOR hourglass = ::LoadCursor(NULL, IDC_WAIT);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        EXPECT_EQ(::GetCursor(), hourglass);
        {
            const CWaitCursor inner;
        }
        EXPECT_EQ(::GetCursor(), hourglass);
        ::SetCursor(arrow);
        outer.Restore();
        EXPECT_EQ(::GetCursor(), hourglass);
    }
    EXPECT_EQ(::GetCursor(), arrow);
}

} // namespace
} // namespace quor::test
