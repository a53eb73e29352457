// Uses the gallery from outside, as a person would.
#include "samples/gallery/resource.h"
#include "tests/compat/Program.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace
{

HWND FocusOf(HWND window)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

// Sends a key as the keyboard does.
void PressKey(WORD key)
{
    INPUT input[2] = {};
    input[0].type = INPUT_KEYBOARD;
    input[0].ki.wVk = key;
    input[1] = input[0];
    input[1].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(2, input, sizeof(INPUT));
}

// The colours on screen of an area in the client coordinates of a window.
std::set<COLORREF> ColoursOf(HWND window, RECT area)
{
    std::set<COLORREF> colours;
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    const HDC screen = ::GetDC(nullptr);
    for (int y = area.top; y < area.bottom; y += 2)
        for (int x = area.left; x < area.right; x += 2)
            colours.insert(::GetPixel(screen, x, y));
    ::ReleaseDC(nullptr, screen);
    return colours;
}

// The gallery in a language, with its page list focused.
class Gallery : public testing::Test
{
protected:
    void SetUp() override
    {
        window = program.Window(L"QuorUiCtrl gallery");
        ASSERT_NE(window, nullptr);
        ::SetForegroundWindow(window);
        ASSERT_TRUE(
            WaitUntil([this] { return ::GetForegroundWindow() == window && FocusOf(window) != nullptr; }));
    }

    // The page that is shown.
    HWND Page() const
    {
        for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            if (::IsWindowVisible(child) && ::GetDlgItem(child, IDC_GRID) != nullptr)
                return child;
        return nullptr;
    }

    HWND Item(int id) const { return ::GetDlgItem(window, id); }

    // Presses a key and waits until the focus has moved from where it was.
    bool MoveFocus(WORD key)
    {
        const HWND before = FocusOf(window);
        PressKey(key);
        return WaitUntil([&] { return FocusOf(window) != before; });
    }

    const Program program{L"gallery.exe", L"/language en"};
    HWND window = nullptr;
};

TEST_F(Gallery, Tab_VisitsEveryControlAndComesBack)
{
    const HWND start = FocusOf(window);
    std::vector<HWND> visited;
    std::set<HWND> distinct;
    do
    {
        ASSERT_TRUE(MoveFocus(VK_TAB));
        visited.push_back(FocusOf(window));
        ASSERT_TRUE(distinct.insert(visited.back()).second) << "the same control twice";
    } while (visited.back() != start && visited.size() < 40);
    EXPECT_EQ(visited.back(), start);
    EXPECT_TRUE(distinct.count(Item(IDC_PAGES)));
    EXPECT_TRUE(distinct.count(Item(IDC_LOG)));
    EXPECT_TRUE(distinct.count(::GetDlgItem(Page(), IDC_GRID)));
    // Button, check box and grid of the page, sixteen styles, list and log.
    EXPECT_EQ(distinct.size(), 21u);
}

TEST_F(Gallery, F6_GoesFromPaneToPane)
{
    ::SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_PAGES)), TRUE);
    for (const HWND pane : {::GetDlgItem(Page(), IDC_GRID), Item(IDC_LOG), Item(IDC_PAGES)})
    {
        ASSERT_TRUE(MoveFocus(VK_F6));
        EXPECT_EQ(FocusOf(window), pane);
    }
}

TEST_F(Gallery, Escape_InTheGrid_LeavesTheWindowOpen)
{
    ::SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(::GetDlgItem(Page(), IDC_GRID)), TRUE);
    PressKey(VK_ESCAPE);
    // The focus moves after the key has been handled.
    ASSERT_TRUE(MoveFocus(VK_F6));
    EXPECT_TRUE(::IsWindowVisible(window));
}

TEST_F(Gallery, ClosingTheWindow_EndsTheProgram)
{
    ::PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(Gallery, SpeaksEnglish_AndChineseByAMenuEntry)
{
    EXPECT_EQ(TextOf(Item(IDC_LOG_CAPTION)), L"Notifications");
    EXPECT_EQ(TextOf(::GetDlgItem(Page(), IDC_FIT_LAST)), L"Fit &last column");
    ::SendMessageW(window, WM_COMMAND, ID_VIEW_CHINESE, 0);
    EXPECT_EQ(TextOf(Item(IDC_LOG_CAPTION)), L"\u901A\u77E5\u8BB0\u5F55");
    EXPECT_EQ(TextOf(::GetDlgItem(Page(), IDC_FIT_LAST)), L"\u672B\u5217\u586B\u6EE1(&L)");
    ::SendMessageW(window, WM_COMMAND, ID_VIEW_ENGLISH, 0);
    EXPECT_EQ(TextOf(window), L"QuorUiCtrl gallery");
}

TEST_F(Gallery, Enlarging_LeavesNoRemainsInTheLog)
{
    ::SendMessageW(window, WM_COMMAND, ID_VIEW_CLEAR_LOG, 0);
    ::SetWindowPos(window, nullptr, 0, 0, 700, 500, SWP_NOZORDER);
    ::UpdateWindow(window);
    ::SetWindowPos(window, nullptr, 0, 0, 1200, 860, SWP_NOZORDER);
    // A message that is answered after all painting.
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::SendMessageW(window, WM_NULL, 0, 0);
    RECT area;
    ::GetClientRect(Item(IDC_LOG), &area);
    area.top += 30; // below the first lines, which the new size may add
    ASSERT_TRUE(WaitUntil([&] {
        return ColoursOf(Item(IDC_LOG), area) == std::set<COLORREF>{RGB(255, 255, 255)};
    })) << ColoursOf(Item(IDC_LOG), area).size()
        << " colours";
}

TEST(GalleryFile, ThatCannotBeShown_IsNamedInAMessageBox)
{
    const Program program(L"gallery.exe", L"/language en no-such-table.csv");
    const HWND box = program.Window(L"gallery");
    ASSERT_NE(box, nullptr);
    const HWND label = ::GetDlgItem(box, 0xFFFF);
    ASSERT_NE(label, nullptr);
    EXPECT_NE(TextOf(label).find(L"no-such-table.csv cannot be shown"), std::wstring::npos);
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
}

} // namespace
