// Uses the wizard's programs from outside, as a person would.
#include "tests/compat/WizardProgram.h"

namespace
{

using namespace quor::test;

constexpr int wizardPane = 0xE900;
constexpr WPARAM editUppercase = 32771, pointsMirror = 32771;

class WizardSingle : public testing::Test
{
protected:
    WizardSingle() { ForgetRecentFiles(L"WizardSingle"); }
    ~WizardSingle() override { ForgetRecentFiles(L"WizardSingle"); }

    static void Type(const WizardProgram& program, const wchar_t* text)
    {
        for (; *text != 0; ++text)
            program.SendTo(::GetDlgItem(program.Frame(), wizardPane), WM_CHAR, *text);
    }
};

struct SingleProgram : WizardProgram
{
    explicit SingleProgram(const std::wstring& arguments = L"", const std::wstring& title = L"Untitled")
        : WizardProgram(L"wizard_single.exe", title, arguments)
    {
    }
};

TEST_F(WizardSingle, StartsWithANewDocument)
{
    const SingleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    EXPECT_EQ(program.Title(), L"Untitled - WizardSingle");
    EXPECT_TRUE(program.StatusBecomes(0, L"Ready"));
    EXPECT_TRUE(program.StatusBecomes(1, L"3 characters"));
    program.Post(command::appExit);
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(WizardSingle, LaysOutBarsAndView)
{
    const SingleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    RECT tools, status, view;
    ::GetWindowRect(program.ToolBar(), &tools);
    ::GetWindowRect(program.StatusBar(), &status);
    ::GetWindowRect(::GetDlgItem(program.Frame(), wizardPane), &view);
    EXPECT_LE(tools.bottom, view.top);
    EXPECT_EQ(view.bottom, status.top);
    program.Send(command::viewStatusBar);
    EXPECT_TRUE(program.WaitUntil([&] {
        ::GetWindowRect(::GetDlgItem(program.Frame(), wizardPane), &view);
        return view.bottom == status.bottom && !::IsWindowVisible(program.StatusBar());
    }));
    program.Send(command::viewToolBar);
    EXPECT_TRUE(program.WaitUntil([&] { return !::IsWindowVisible(program.ToolBar()); }));
    program.Send(command::viewToolBar);
    EXPECT_TRUE(program.WaitUntil([&] { return ::IsWindowVisible(program.ToolBar()) != FALSE; }));
}

TEST_F(WizardSingle, ButtonsFollowTheHandlersOfViewAndDocument)
{
    const SingleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    EXPECT_TRUE(program.ButtonBecomes(command::editCut, true));
    EXPECT_TRUE(program.ButtonBecomes(command::editCopy, false)) << "nobody handles it";
    EXPECT_TRUE(program.ButtonBecomes(command::fileSave, true));
    program.Send(command::editCut);
    EXPECT_TRUE(program.StatusBecomes(1, L"0 characters"));
    EXPECT_TRUE(program.ButtonBecomes(command::editCut, false));
    Type(program, L"ab");
    EXPECT_TRUE(program.StatusBecomes(1, L"2 characters"));
    EXPECT_TRUE(program.ButtonBecomes(command::editCut, true));
}

TEST_F(WizardSingle, MenusDescribeTheirItems)
{
    const SingleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    EXPECT_TRUE(program.StatusBecomes(0, L"Ready"));
    ::PostMessageW(program.Frame(), WM_SYSCOMMAND, SC_KEYMENU, L'f');
    EXPECT_TRUE(program.StatusBecomes(0, L"Create a new document"));
    ::PostMessageW(program.Frame(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_TRUE(program.StatusBecomes(0, L"Open an existing document"));
    ::PostMessageW(program.Frame(), WM_KEYDOWN, VK_ESCAPE, 0);
    ::PostMessageW(program.Frame(), WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_TRUE(program.StatusBecomes(0, L"Ready"));
}

TEST_F(WizardSingle, ShowsItsAboutBox)
{
    const SingleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    program.Post(command::appAbout);
    const HWND box = program.Window(L"About WizardSingle");
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(::IsWindowEnabled(program.Frame()));
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(program.WaitUntil([&] { return ::IsWindowEnabled(program.Frame()) != FALSE; }));
}

TEST_F(WizardSingle, OpensChangesAndSavesTheFileOfItsCommandLine)
{
    const DocumentFile file(L"quor wizard.wst", "");
    {
        const SingleProgram program(file.Quoted(), file.Title());
        ASSERT_NE(program.Frame(), nullptr);
        EXPECT_EQ(program.Title(), file.Title() + L" - WizardSingle");
        EXPECT_TRUE(program.StatusBecomes(1, L"0 characters"));
        Type(program, L"hello");
        program.Send(editUppercase);
        program.Send(command::fileSave);
        EXPECT_NE(file.Bytes().find(std::string("H\0E\0L\0L\0O\0", 10)), std::string::npos);
        program.Post(command::appExit);
        EXPECT_EQ(program.ExitCode(), 0u) << "asked about a document that was saved";
    }
    const SingleProgram program(file.Quoted(), file.Title());
    EXPECT_TRUE(program.StatusBecomes(1, L"5 characters"));
}

TEST_F(WizardSingle, OpensARecentFileFromItsMenu)
{
    const DocumentFile file(L"quor recent.wst", "");
    {
        const SingleProgram program(file.Quoted(), file.Title());
        ASSERT_NE(program.Frame(), nullptr);
        program.Post(command::appExit);
        EXPECT_EQ(program.ExitCode(), 0u);
    }
    const SingleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    program.ChooseByKeys(L'f', L'1');
    EXPECT_TRUE(program.TitleBecomes(file.Title() + L" - WizardSingle"));
    EXPECT_TRUE(program.StatusBecomes(1, L"0 characters"));
}

TEST_F(WizardSingle, ForFileNew_TheDocumentIsEmptiedInItsFrame)
{
    const DocumentFile file(L"quor other.wst", "");
    const SingleProgram program(file.Quoted(), file.Title());
    ASSERT_NE(program.Frame(), nullptr);
    program.Send(command::fileNew);
    EXPECT_TRUE(program.TitleBecomes(L"Untitled - WizardSingle"));
    EXPECT_TRUE(program.StatusBecomes(1, L"3 characters"));
}

TEST_F(WizardSingle, AsksBeforeItLosesChanges)
{
    const DocumentFile file(L"quor asked.wst", "");
    const SingleProgram program(file.Quoted(), file.Title());
    ASSERT_NE(program.Frame(), nullptr);
    Type(program, L"changed");
    program.Post(command::appExit);
    EXPECT_EQ(program.AnswerBox(IDCANCEL), L"Save changes to " + file.Title() + L"?");
    EXPECT_TRUE(::IsWindowVisible(program.Frame()));
    EXPECT_EQ(file.Bytes(), "");
    program.Post(command::appExit);
    program.AnswerBox(IDYES);
    EXPECT_EQ(program.ExitCode(), 0u);
    EXPECT_NE(file.Bytes().find(std::string("c\0h\0a\0n\0g\0e\0d\0", 14)), std::string::npos);
}

TEST_F(WizardSingle, AFileThatIsMissing_EndsTheProgram)
{
    const Program program(L"wizard_single.exe", L"c:\\no\\such.wst");
    const HWND box = program.Window(L"WizardSingle");
    ASSERT_NE(box, nullptr);
    EXPECT_NE(Answer(program, box, IDOK).find(L"such.wst was not found."), std::wstring::npos);
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(WizardSingle, PrintsNothing)
{
    const SingleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    program.Send(command::filePrint);
    program.Post(command::filePrintSetup);
    EXPECT_EQ(program.AnswerBox(IDOK), L"Printing is not possible.");
}

class WizardMultiple : public testing::Test
{
protected:
    WizardMultiple() { ForgetRecentFiles(L"WizardMultiple"); }
    ~WizardMultiple() override { ForgetRecentFiles(L"WizardMultiple"); }
};

struct MultipleProgram : WizardProgram
{
    explicit MultipleProgram(const std::wstring& arguments = L"")
        : WizardProgram(L"wizard_multiple.exe", L"WizardMultiple - ", arguments)
    {
    }

    HWND Client() const { return ::GetDlgItem(Frame(), wizardPane); }
    HWND ActiveChild() const
    {
        return reinterpret_cast<HWND>(::SendMessageW(Client(), WM_MDIGETACTIVE, 0, 0));
    }
    void Click(HWND child, int x, int y) const
    {
        SendTo(::GetDlgItem(child, wizardPane), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    }
    // "Points1|Points2": the titles of the children, the active one first.
    std::wstring Children() const
    {
        std::wstring titles;
        for (HWND child = ::GetWindow(Client(), GW_CHILD); child != NULL;
             child = ::GetWindow(child, GW_HWNDNEXT))
            titles += (titles.empty() ? L"" : L"|") + TextOf(child);
        return titles;
    }
};

TEST_F(WizardMultiple, StartsWithOneChild)
{
    const MultipleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    EXPECT_EQ(program.Title(), L"WizardMultiple - Points1");
    EXPECT_EQ(program.Children(), L"Points1");
    EXPECT_TRUE(program.StatusBecomes(0, L"Ready"));
    EXPECT_TRUE(program.StatusBecomes(1, L"0 points"));
    program.Post(command::appExit);
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(WizardMultiple, BarsFollowTheActiveChild)
{
    const MultipleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    const HWND first = program.ActiveChild();
    program.Click(first, 10, 20);
    EXPECT_TRUE(program.StatusBecomes(1, L"1 points"));
    EXPECT_TRUE(program.ButtonBecomes(command::editCut, true));
    program.Send(command::fileNew);
    EXPECT_EQ(program.Children(), L"Points2|Points1");
    EXPECT_TRUE(program.StatusBecomes(1, L"0 points"));
    EXPECT_TRUE(program.ButtonBecomes(command::editCut, false));
    program.SendTo(program.Client(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(first));
    EXPECT_EQ(program.Title(), L"WizardMultiple - Points1");
    EXPECT_TRUE(program.StatusBecomes(1, L"1 points"));
    EXPECT_TRUE(program.ButtonBecomes(command::editCut, true));
}

TEST_F(WizardMultiple, WithoutChildren_OnlyTheFrameAndTheApplicationHandleCommands)
{
    const MultipleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    EXPECT_TRUE(program.ButtonBecomes(command::fileSave, true));
    program.Send(command::fileClose);
    EXPECT_EQ(program.Children(), L"");
    EXPECT_EQ(program.Title(), L"WizardMultiple");
    EXPECT_TRUE(program.ButtonBecomes(command::fileSave, false));
    EXPECT_TRUE(program.ButtonBecomes(command::fileNew, true));
    program.Send(command::fileNew);
    EXPECT_EQ(program.Children(), L"Points2");
}

TEST_F(WizardMultiple, ANewWindow_ShowsTheSameDocument)
{
    const MultipleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    // By the keys of the Window menu, which only a child's menu has.
    program.ChooseByKeys(L'w', L'n');
    EXPECT_TRUE(program.TitleBecomes(L"WizardMultiple - Points1:2"));
    EXPECT_EQ(program.Children(), L"Points1:2|Points1:1");
    program.Click(program.ActiveChild(), 10, 20);
    program.SendTo(program.Client(), WM_MDINEXT, 0);
    EXPECT_EQ(program.Title(), L"WizardMultiple - Points1:1");
    EXPECT_TRUE(program.StatusBecomes(1, L"1 points"));
    program.SendTo(program.ActiveChild(), WM_CLOSE, 0);
    EXPECT_EQ(program.Children(), L"Points1") << "one window of two was asked about, or kept its number";
}

TEST_F(WizardMultiple, SavesAndOpensFiles)
{
    const DocumentFile file(L"quor points.wmp", "");
    const MultipleProgram program(file.Quoted());
    ASSERT_NE(program.Frame(), nullptr);
    EXPECT_EQ(program.Title(), L"WizardMultiple - " + file.Title());
    program.Click(program.ActiveChild(), 3, 7);
    program.Send(pointsMirror);
    program.Send(command::fileSave);
    const DWORD expected[] = {1, 7, 3};
    EXPECT_EQ(file.Bytes(), std::string(reinterpret_cast<const char*>(expected), sizeof expected));
    program.Send(command::fileClose);
    EXPECT_EQ(program.Children(), L"");
    program.ChooseByKeys(L'f', L'1');
    EXPECT_TRUE(program.TitleBecomes(L"WizardMultiple - " + file.Title()));
    EXPECT_TRUE(program.StatusBecomes(1, L"1 points"));
}

TEST_F(WizardMultiple, ClosingAsksAboutEveryChangedDocument)
{
    const MultipleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    program.Click(program.ActiveChild(), 3, 7);
    program.Send(command::fileNew);
    program.Send(command::fileNew);
    program.Click(program.ActiveChild(), 3, 7);
    program.Post(command::appExit);
    EXPECT_EQ(program.AnswerBox(IDNO), L"Save changes to Points1?");
    EXPECT_EQ(program.AnswerBox(IDCANCEL), L"Save changes to Points3?");
    EXPECT_EQ(program.Children(), L"Points3|Points2|Points1");
    // A child asks about its own document only.
    ::PostMessageW(program.ActiveChild(), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.AnswerBox(IDNO), L"Save changes to Points3?");
    EXPECT_TRUE(program.WaitUntil([&] { return program.Children() == L"Points2|Points1"; }));
    program.Post(command::appExit);
    EXPECT_EQ(program.AnswerBox(IDNO), L"Save changes to Points1?");
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(WizardMultiple, AMaximizedChild_IsNamedInBrackets)
{
    const MultipleProgram program;
    ASSERT_NE(program.Frame(), nullptr);
    const WPARAM child = reinterpret_cast<WPARAM>(program.ActiveChild());
    program.SendTo(program.Client(), WM_MDIMAXIMIZE, child);
    EXPECT_EQ(program.Title(), L"WizardMultiple - [Points1]");
    program.SendTo(program.Client(), WM_MDIRESTORE, child);
    EXPECT_EQ(program.Title(), L"WizardMultiple - Points1");
}

} // namespace
