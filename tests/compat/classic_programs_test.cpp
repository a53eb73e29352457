// Uses the classic programs from outside, as a person would: starts them, presses, types, reads, and closes
// them.
#include "tests/compat/Program.h"
#include "tests/compat/programs/classic_dialog.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

// Commands as the menu sends them.
constexpr WPARAM appAbout = 0xE140;
constexpr WPARAM appExit = 0xE141;
constexpr WPARAM editClearAll = 0xE121;
constexpr WPARAM viewLoud = 32771;
constexpr WPARAM colorGreen = 32781;
constexpr int firstPane = 0xE900;
constexpr int aboutText = 1000;

TEST(ClassicHello, ShowsItsFrameAndFollowsItsMenu)
{
    const Program program(L"classic_hello.exe");
    const HWND frame = program.Window(L"Classic hello");
    ASSERT_NE(frame, nullptr);
    const HWND view = ::GetDlgItem(frame, firstPane);
    ASSERT_NE(view, nullptr);
    RECT client, inside;
    ::GetClientRect(frame, &client);
    ::GetWindowRect(view, &inside);
    EXPECT_EQ(inside.right - inside.left, client.right);
    ::SendMessageW(frame, WM_COMMAND, viewLoud, 0);
    EXPECT_EQ(TextOf(frame), L"Classic hello (loud)");
    ::SendMessageW(frame, WM_COMMAND, viewLoud, 0);
    EXPECT_EQ(TextOf(frame), L"Classic hello (quiet)");
    ::PostMessageW(frame, WM_COMMAND, appExit, 0);
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST(ClassicHello, ShowsItsAboutBoxOverTheDisabledFrame)
{
    const Program program(L"classic_hello.exe");
    const HWND frame = program.Window(L"Classic hello");
    ASSERT_NE(frame, nullptr);
    ::PostMessageW(frame, WM_COMMAND, appAbout, 0);
    const HWND box = program.Window(L"About Hello");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(::GetDlgItem(box, aboutText)), L"Hello, version 3");
    EXPECT_FALSE(::IsWindowEnabled(frame));
    ::PostMessageW(box, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(program.WaitUntil([&] { return !::IsWindow(box); }));
    EXPECT_TRUE(program.WaitUntil([&] { return ::IsWindowEnabled(frame) != FALSE; }));
    ::PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.ExitCode(), 0u);
}

class ClassicDialog : public testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(m_dialog, nullptr); }

    HWND Item(int id) const { return ::GetDlgItem(m_dialog, id); }
    void Type(int id, LPCWSTR text) const
    {
        ::SendMessageW(Item(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    void Press(int id) const { ::SendMessageW(Item(id), BM_CLICK, 0, 0); }
    std::wstring Result() const { return TextOf(Item(IDC_RESULT)); }

    const Program m_program{L"classic_dialog.exe"};
    const HWND m_dialog = m_program.Window(L"Classic converter");
};

TEST_F(ClassicDialog, ExchangesItsMembers)
{
    EXPECT_EQ(TextOf(Item(IDC_INPUT)), L"100");
    EXPECT_EQ(TextOf(Item(IDC_DIGITS)), L"1");
    EXPECT_EQ(::SendMessageW(Item(IDC_TO_FAHRENHEIT), BM_GETCHECK, 0, 0), BST_CHECKED);
    Press(IDC_CONVERT);
    EXPECT_EQ(Result(), L"212.0");
    Press(IDC_TO_CELSIUS);
    EXPECT_EQ(TextOf(Item(IDC_UNIT)), L"Fahrenheit");
    Type(IDC_DIGITS, L"3");
    Type(IDC_INPUT, L"50");
    Press(IDC_CONVERT);
    EXPECT_EQ(Result(), L"10.000");
    EXPECT_EQ(::SendMessageW(Item(IDC_HISTORY), LB_GETCOUNT, 0, 0), 2);
    Press(IDC_KEEP);
    Press(IDC_CONVERT);
    EXPECT_EQ(::SendMessageW(Item(IDC_HISTORY), LB_GETCOUNT, 0, 0), 2);
    Press(IDOK);
    EXPECT_EQ(m_program.ExitCode(), 10u);
}

TEST_F(ClassicDialog, EnterInTheInputConverts)
{
    Type(IDC_INPUT, L"0");
    ::PostMessageW(Item(IDC_INPUT), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(m_program.WaitUntil([this] { return Result() == L"32.0"; }));
    ::PostMessageW(Item(IDC_INPUT), WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(m_program.ExitCode(), 20u);
}

TEST_F(ClassicDialog, TellsTheUserWhatIsOutOfRange)
{
    Type(IDC_INPUT, L"-300");
    ::PostMessageW(Item(IDC_CONVERT), BM_CLICK, 0, 0);
    const HWND box = m_program.Window(L"classic_dialog");
    ASSERT_NE(box, nullptr);
    const HWND text = ::GetDlgItem(box, 0xffff);
    EXPECT_EQ(TextOf(text), L"Please enter a number between -273 and 10000.");
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(m_program.WaitUntil([&] { return !::IsWindow(box); }));
    EXPECT_EQ(Result(), L"");
    ::PostMessageW(m_dialog, WM_CLOSE, 0, 0);
    EXPECT_EQ(m_program.ExitCode(), 20u);
}

class ClassicView : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_NE(m_frame, nullptr);
        m_view = ::GetDlgItem(m_frame, firstPane);
        ASSERT_NE(m_view, nullptr);
    }

    void Click(int x, int y) const { ::SendMessageW(m_view, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Command(WPARAM command) const { ::SendMessageW(m_frame, WM_COMMAND, command, 0); }
    LRESULT Report(WPARAM what) const
    {
        return ::SendMessageW(m_view, ::RegisterWindowMessageW(L"ClassicViewReport"), what, 0);
    }

    const Program m_program{L"classic_view.exe"};
    const HWND m_frame = m_program.Window(L"0 points, color 0 - Classic points");
    HWND m_view = NULL;
};

TEST_F(ClassicView, RoutesMessagesToViewAndDocument)
{
    Click(20, 30);
    Click(40, 50);
    EXPECT_EQ(TextOf(m_frame), L"2 points, color 0 - Classic points");
    EXPECT_EQ(Report(0), 2);
    Command(colorGreen);
    EXPECT_EQ(TextOf(m_frame), L"2 points, color 1 - Classic points");
    ::SendMessageW(m_view, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(TextOf(m_frame), L"2 points, color 2 - Classic points");
    Command(editClearAll);
    EXPECT_EQ(Report(0), 0);
    EXPECT_TRUE(m_program.WaitUntil([this] { return Report(1) > 0; })) << "no timer message";
}

TEST_F(ClassicView, AcceleratorsAndKeysReachTheirHandlers)
{
    Click(20, 30);
    ::PostMessageW(m_view, WM_KEYDOWN, VK_F7, 0);
    EXPECT_TRUE(
        m_program.WaitUntil([this] { return TextOf(m_frame) == L"1 points, color 2 - Classic points"; }));
    ::PostMessageW(m_view, WM_KEYDOWN, VK_DELETE, 0);
    EXPECT_TRUE(m_program.WaitUntil([this] { return Report(0) == 0; }));
}

TEST_F(ClassicView, AsksBeforeItDiscards)
{
    Click(20, 30);
    for (const WPARAM answer : {IDNO, IDYES})
    {
        ::PostMessageW(m_frame, WM_CLOSE, 0, 0);
        const HWND box = m_program.Window(L"classic_view");
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(TextOf(::GetDlgItem(box, 0xffff)), L"Discard the points?");
        ::PostMessageW(box, WM_COMMAND, answer, 0);
        EXPECT_TRUE(m_program.WaitUntil([&] { return !::IsWindow(box); }));
    }
    EXPECT_EQ(m_program.ExitCode(), 0u);
}

// The program that an application wizard makes around a dialog.
class WizardDialog : public testing::Test
{
protected:
    static constexpr WPARAM aboutBox = 0x0010;

    void SetUp() override { ASSERT_NE(m_dialog, nullptr); }

    static POINT CentreOf(const RECT& rect)
    {
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }
    static POINT CentreOf(HWND window)
    {
        RECT rect = {};
        ::GetWindowRect(window, &rect);
        return CentreOf(rect);
    }

    const Program m_program{L"wizard_dialog.exe"};
    const HWND m_dialog = m_program.Window(L"wizard_dialog");
};

TEST_F(WizardDialog, OpensInTheMiddleOfTheScreen)
{
    RECT workArea = {};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &workArea, 0);
    const POINT wanted = CentreOf(workArea);
    EXPECT_NEAR(CentreOf(m_dialog).x, wanted.x, 1);
    EXPECT_NEAR(CentreOf(m_dialog).y, wanted.y, 1);
}

TEST_F(WizardDialog, ShowsItsAboutBoxFromTheSystemMenu)
{
    ::PostMessageW(m_dialog, WM_SYSCOMMAND, aboutBox, 0);
    const HWND about = m_program.Window(L"About wizard_dialog");
    ASSERT_NE(about, nullptr);
    EXPECT_FALSE(::IsWindowEnabled(m_dialog)) << "the box is modal";
    EXPECT_EQ(::GetWindow(about, GW_OWNER), m_dialog);
    EXPECT_NEAR(CentreOf(about).x, CentreOf(m_dialog).x, 1) << "it stands in the middle of the dialog";
    EXPECT_NEAR(CentreOf(about).y, CentreOf(m_dialog).y, 1);
    ::PostMessageW(about, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(m_program.WaitUntil([&] { return !::IsWindow(about); }));
    EXPECT_TRUE(m_program.WaitUntil([this] { return ::IsWindowEnabled(m_dialog) != FALSE; }));
}

TEST_F(WizardDialog, OtherSystemCommandsStillWork)
{
    ::PostMessageW(m_dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(m_program.ExitCode(), 0u);
}

TEST_F(WizardDialog, EscapeEndsTheProgram)
{
    const HWND button = ::GetDlgItem(m_dialog, IDOK);
    ::PostMessageW(button, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(m_program.ExitCode(), 0u);
}

TEST_F(WizardDialog, EnterEndsTheProgram)
{
    ::PostMessageW(::GetDlgItem(m_dialog, IDOK), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(m_program.ExitCode(), 0u);
}

} // namespace
