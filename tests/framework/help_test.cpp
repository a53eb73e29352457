// Help: the commands, the window that is asked first, F1 in dialogs, and help on a click.
#include "tests/framework/ScriptedDialog.h"
#include "tests/framework/WindowLog.h"
#include "tests/support/MessageBoxProbe.h"
#include "tests/support/Pump.h"

#include <afxpriv.h>
#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

// An application in place of the test program's own that writes down what it is to show.
class HelpApp : public CWinApp
{
public:
    HelpApp() : HelpApp(AFX_MODULE_STATE(*AfxGetStaticModuleState())) {}
    ~HelpApp() override { *AfxGetStaticModuleState() = m_before; }

    Log m_log;

    void WinHelp(DWORD_PTR data, UINT command) override { Write("WinHelp", data, command); }
    void HtmlHelp(DWORD_PTR data, UINT command) override { Write("HtmlHelp", data, command); }
    Log Take() { return std::exchange(m_log, Log()); }

private:
    explicit HelpApp(const AFX_MODULE_STATE& before) : CWinApp(L"HelpApp"), m_before(before) {}
    void Write(const char* program, DWORD_PTR data, UINT command)
    {
        m_log.push_back(std::string(program) + " " + std::to_string(data) + " " + std::to_string(command));
    }

    AFX_MODULE_STATE m_before;
};

// A main window with help of its own.
class HelpWindow : public ParentWindow
{
public:
    DWORD_PTR m_context = 0;
    int m_defaultHelp = 0;

protected:
    afx_msg LRESULT OnCommandHelp(WPARAM, LPARAM lParam)
    {
        const DWORD_PTR context = lParam != 0 ? static_cast<DWORD_PTR>(lParam) : m_context;
        if (context == 0)
            return FALSE;
        WinHelp(context);
        return TRUE;
    }
    afx_msg LRESULT OnHelpHitTest(WPARAM, LPARAM lParam) { return 1000 + GET_X_LPARAM(lParam); }
    afx_msg void OnDefaultHelp() { ++m_defaultHelp; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HelpWindow, CWnd)
    ON_MESSAGE(WM_COMMANDHELP, OnCommandHelp)
    ON_MESSAGE(WM_HELPHITTEST, OnHelpHitTest)
    ON_COMMAND(ID_DEFAULT_HELP, OnDefaultHelp)
END_MESSAGE_MAP()

class Help : public testing::Test
{
protected:
    Help() { m_app.m_pMainWnd = &m_main; }
    ~Help() override { m_app.m_pMainWnd = NULL; }

    HelpApp m_app;
    HelpWindow m_main;
};

std::string Line(const char* program, DWORD_PTR data, UINT command)
{
    return std::string(program) + " " + std::to_string(data) + " " + std::to_string(command);
}

TEST_F(Help, TheFileHasTheNameOfTheProgramAndTheExtensionOfItsKind)
{
    EXPECT_STREQ(CString(m_app.m_pszHelpFilePath).Right(19), L"\\framework_test.HLP");
    EXPECT_EQ(m_app.GetHelpMode(), afxWinHelp);
    m_app.EnableHtmlHelp();
    EXPECT_STREQ(CString(m_app.m_pszHelpFilePath).Right(19), L"\\framework_test.CHM");
    EXPECT_EQ(m_app.m_eHelpType, afxHTMLHelp);
}

TEST_F(Help, TheCommandsShowTheirPartInTheChosenWay)
{
    m_app.OnHelpIndex();
    m_app.OnHelpFinder();
    m_app.OnHelpUsing();
    EXPECT_EQ(m_app.Take(), (Log{Line("WinHelp", 0, HELP_INDEX), Line("WinHelp", 0, HELP_FINDER),
                                 Line("WinHelp", 0, HELP_HELPONHELP)}));
    m_app.EnableHtmlHelp();
    m_main.OnHelpIndex();
    m_main.OnHelpFinder();
    EXPECT_EQ(m_app.Take(),
              (Log{Line("HtmlHelp", 0, HH_DISPLAY_INDEX), Line("HtmlHelp", 0, HH_DISPLAY_TOPIC)}));
}

TEST_F(Help, OnHelpAsksTheMainWindowFirst)
{
    m_main.m_context = 42;
    m_app.OnHelp();
    EXPECT_EQ(m_app.Take(), Log{Line("WinHelp", 42, HELP_CONTEXT)});
    EXPECT_EQ(m_main.m_defaultHelp, 0);
}

TEST_F(Help, OnHelpFallsBackToTheDefault)
{
    m_app.OnHelp();
    EXPECT_EQ(m_app.Take(), Log{});
    EXPECT_EQ(m_main.m_defaultHelp, 1);
}

// The number of a dialog's help is that of its template.
class NumberedDialog : public CDialog
{
public:
    NumberedDialog() : CDialog(321u) {}
};

TEST_F(Help, ADialogAsksForHelpOnItsTemplate)
{
    NumberedDialog dialog;
    const DialogTemplateBuilder layout;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), &m_main));
    EXPECT_TRUE(dialog.SendMessage(WM_COMMANDHELP, 0, 0));
    EXPECT_EQ(m_app.Take(), Log{Line("WinHelp", HID_BASE_RESOURCE + 321, HELP_CONTEXT)});
    m_app.EnableHtmlHelp();
    EXPECT_TRUE(dialog.SendMessage(WM_COMMANDHELP, 0, 7));
    EXPECT_EQ(m_app.Take(), Log{Line("HtmlHelp", 7, HH_HELP_CONTEXT)});
}

TEST_F(Help, AFrameAsksForHelpOnItsResources)
{
    CFrameWnd* const frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, L"Frame"));
    EXPECT_FALSE(frame->SendMessage(WM_COMMANDHELP, 0, 0)) << "it was made without a number";
    EXPECT_TRUE(frame->SendMessage(WM_COMMANDHELP, 0, 5));
    EXPECT_EQ(m_app.Take(), Log{Line("WinHelp", 5, HELP_CONTEXT)});
    frame->DestroyWindow();
}

// Counts the commands ID_HELP that arrive at it.
class CommandWindow : public ParentWindow
{
public:
    int m_commands = 0;

protected:
    afx_msg void OnHelpCommand() { ++m_commands; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandWindow, CWnd)
    ON_COMMAND(ID_HELP, OnHelpCommand)
END_MESSAGE_MAP()

TEST_F(Help, F1InADialogIsTheHelpCommandOfTheMainWindow)
{
    CommandWindow main;
    m_app.m_pMainWnd = &main;
    const DialogTemplateBuilder layout;
    ScriptedDialog dialog(layout, &main);
    dialog.inLoop = [&] {
        HELPINFO info = {};
        info.cbSize = sizeof info;
        dialog.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
        dialog.EndDialog(1);
    };
    dialog.DoModal();
    EXPECT_EQ(main.m_commands, 1);
}

TEST_F(Help, AClickInHelpModeShowsHelpOnWhatIsThere)
{
    CPoint point(30, 20);
    m_main.ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
    PumpPending();
    m_main.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 20));
    m_app.OnContextHelp();
    EXPECT_FALSE(m_app.m_bHelpMode);
    EXPECT_NE(CWnd::GetCapture(), &m_main);
    EXPECT_EQ(m_app.Take(), Log{Line("WinHelp", 1030, HELP_CONTEXT)});
}

TEST_F(Help, EscapeLeavesHelpMode)
{
    m_main.PostMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    m_app.OnContextHelp();
    EXPECT_FALSE(m_app.m_bHelpMode);
    EXPECT_EQ(m_app.Take(), Log{});
}

} // namespace
} // namespace quor::test
