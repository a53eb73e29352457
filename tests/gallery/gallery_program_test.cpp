// Uses the gallery from outside, as a person would.
#include "QuorVersion.h"
#include "samples/gallery/resource.h"
#include "tests/compat/Program.h"

#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#define QUOR_WIDE_TEXT(text) L##text
#define QUOR_WIDE(text) QUOR_WIDE_TEXT(text)
#define QUOR_WIDE_VERSION QUOR_WIDE(QUOR_VERSION)

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

void PressWithControl(WORD key)
{
    INPUT input[2] = {};
    input[0].type = INPUT_KEYBOARD;
    input[0].ki.wVk = VK_CONTROL;
    input[1] = input[0];
    input[1].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(1, &input[0], sizeof(INPUT));
    PressKey(key);
    ::SendInput(1, &input[1], sizeof(INPUT));
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
        // Before a control has the focus, the window itself may have it.
        ASSERT_TRUE(program.WaitUntil(
            [this] { return ::GetForegroundWindow() == window && ::IsChild(window, FocusOf(window)); }));
        // Another page may have been open when the program was closed last.
        ::SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_PAGES)), TRUE);
        ASSERT_TRUE(program.WaitUntil([this] { return FocusOf(window) == Item(IDC_PAGES); }));
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

    void ShowPage(const wchar_t* title)
    {
        const HWND list = Item(IDC_PAGES);
        const LRESULT index =
            ::SendMessageW(list, LB_FINDSTRINGEXACT, WPARAM(-1), reinterpret_cast<LPARAM>(title));
        ASSERT_GE(index, 0);
        ::SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(IDC_PAGES, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(list));
    }

    // Presses a key and waits until the focus has moved from where it was.
    bool MoveFocus(WORD key)
    {
        const HWND before = FocusOf(window);
        PressKey(key);
        return program.WaitUntil([&] { return FocusOf(window) != before; });
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
    ASSERT_TRUE(program.WaitUntil([&] {
        return ColoursOf(Item(IDC_LOG), area) == std::set<COLORREF>{RGB(255, 255, 255)};
    })) << ColoursOf(Item(IDC_LOG), area).size()
        << " colours";
}

// Changes the name of an element and leaves the editor open.
void TypeIntoTheGrid(const Program& program, HWND window, HWND grid)
{
    ::SendMessageW(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, 60));
    ::SendMessageW(grid, WM_LBUTTONUP, 0, MAKELPARAM(200, 60));
    ASSERT_TRUE(program.WaitUntil([&] { return ::GetParent(FocusOf(window)) == grid; }));
    ::SendMessageW(FocusOf(window), WM_CHAR, L'x', 1);
}

TEST_F(Gallery, WithChanges_AsksBeforeItCloses_AnOpenEditorIncluded)
{
    ASSERT_NO_FATAL_FAILURE(TypeIntoTheGrid(program, window, ::GetDlgItem(Page(), IDC_GRID)));
    for (const int answer : {IDNO, IDYES})
    {
        ::PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
        HWND box = nullptr;
        ASSERT_TRUE(program.WaitUntil([&] {
            box = ::GetLastActivePopup(window);
            return box != window && ::IsWindowVisible(box) && ::GetDlgItem(box, answer) != nullptr;
        }));
        EXPECT_NE(TextOf(::GetDlgItem(box, 0xFFFF)).find(L"not saved:\n    Grid\n"), std::wstring::npos);
        EXPECT_TRUE(::IsWindowVisible(window));
        ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(answer), 0);
        ASSERT_TRUE(program.WaitUntil([&] { return !::IsWindow(box); }));
    }
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(Gallery, StatusLine_SaysWhereTheUserIsAndHowMuchThereIs)
{
    const auto part = [this](WPARAM index) {
        // Texts of a status bar do not cross the border of a process.
        return static_cast<int>(LOWORD(::SendMessageW(Item(IDC_STATUS), SB_GETTEXTLENGTHW, index, 0)));
    };
    const int whole = static_cast<int>(wcslen(L"118 rows, 11 columns"));
    ASSERT_TRUE(program.WaitUntil([&] { return part(2) == whole; }));
    EXPECT_EQ(part(1), 0);
    ::SendMessageW(::GetDlgItem(Page(), IDC_GRID), WM_KEYDOWN, 'A', 1);
    const int selected = static_cast<int>(wcslen(L"Rows selected: 118"));
    EXPECT_TRUE(program.WaitUntil([&] { return part(1) == selected; }));
}

TEST_F(Gallery, Sheet_GoesFromCellToCell_AndMakesRowsUntilItIsStopped)
{
    const auto shows = [this](WPARAM index, const wchar_t* text) {
        return program.WaitUntil([&] {
            return LOWORD(::SendMessageW(Item(IDC_STATUS), SB_GETTEXTLENGTHW, index, 0)) == wcslen(text);
        });
    };
    ASSERT_NO_FATAL_FAILURE(ShowPage(L"Sheet"));
    ASSERT_TRUE(shows(2, L"118 rows, 12 columns"));
    EXPECT_TRUE(shows(0, L"Row 1, column 1"));
    ASSERT_TRUE(MoveFocus(VK_F6));
    ASSERT_EQ(FocusOf(window), ::GetDlgItem(Page(), IDC_GRID));
    for (int i = 0; i < 9; ++i)
        PressKey(VK_DOWN);
    EXPECT_TRUE(shows(0, L"Row 10, column 1"));
    ::PostMessageW(Page(), WM_COMMAND, IDC_SHEET_MILLION, 0);
    // What lies over the busy grid has the focus, and takes the key.
    const HWND grid = ::GetDlgItem(Page(), IDC_GRID);
    ASSERT_TRUE(program.WaitUntil([&] { return FocusOf(window) != grid; }));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(program.WaitUntil([&] { return FocusOf(window) == grid; }));
    ASSERT_TRUE(
        program.WaitUntil([&] { return std::stol(TextOf(::GetDlgItem(Page(), IDC_BANNER))) >= 1000; }));
    EXPECT_TRUE(shows(0, L"Row 1, column 1")) << "the cursor is in the new rows";
}

TEST_F(Gallery, Sheet_ListsTheStepsAndGoesBackInThem)
{
    ASSERT_NO_FATAL_FAILURE(ShowPage(L"Sheet"));
    ASSERT_TRUE(MoveFocus(VK_F6));
    HWND panel = nullptr;
    for (HWND child = ::GetWindow(Page(), GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
        if (::GetDlgItem(child, IDC_UNDO_STEPS) != nullptr)
            panel = child;
    const HWND steps = ::GetDlgItem(panel, IDC_UNDO_STEPS);
    ASSERT_NE(steps, nullptr);
    // The line that is selected, and its number.
    const auto stands = [&](int line, const wchar_t* name) {
        return program.WaitUntil([&] {
            wchar_t text[100] = {};
            const LRESULT selected = ::SendMessageW(steps, LB_GETCURSEL, 0, 0);
            ::SendMessageW(steps, LB_GETTEXT, static_cast<WPARAM>(selected), reinterpret_cast<LPARAM>(text));
            return selected == line && std::wstring(text) == name;
        });
    };
    EXPECT_TRUE(stands(0, L"(at the beginning)"));
    PressKey(VK_RIGHT);
    PressKey('5');
    PressKey(VK_RETURN);
    EXPECT_TRUE(stands(1, L"Typing"));
    PressKey(VK_UP);
    PressWithControl('C');
    PressKey(VK_DOWN);
    PressWithControl('V');
    EXPECT_TRUE(stands(2, L"Paste"));
    PressWithControl('Z');
    EXPECT_TRUE(stands(1, L"Typing"));
    // A click on a line goes there.
    ::SendMessageW(steps, LB_SETCURSEL, 0, 0);
    ::SendMessageW(panel, WM_COMMAND, MAKEWPARAM(IDC_UNDO_STEPS, LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(steps));
    EXPECT_TRUE(stands(0, L"(at the beginning)"));
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(panel, IDC_UNDO_UNDO)));
    ::SendMessageW(panel, WM_COMMAND, IDC_UNDO_REDO, 0);
    EXPECT_TRUE(stands(1, L"Typing"));
}

TEST_F(Gallery, BelowItsSmallestContents_Scrolls_AndShowsWhatHasTheFocus)
{
    const auto hasBars = [this] {
        return (::GetWindowLongPtrW(window, GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL)) != 0;
    };
    ::SetWindowPos(window, nullptr, 0, 0, 1000, 800, SWP_NOZORDER);
    EXPECT_FALSE(hasBars());
    ::SetWindowPos(window, nullptr, 0, 0, 420, 320, SWP_NOZORDER);
    EXPECT_TRUE(hasBars());
    ::SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_PAGES)), TRUE);
    ASSERT_TRUE(MoveFocus(VK_F6));
    ASSERT_TRUE(MoveFocus(VK_F6));
    RECT place = {};
    RECT client = {};
    ::GetClientRect(window, &client);
    EXPECT_TRUE(program.WaitUntil([&] {
        ::GetWindowRect(Item(IDC_LOG), &place);
        ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        return place.top >= 0 && place.bottom <= client.bottom;
    })) << place.top
        << " to " << place.bottom << " of " << client.bottom;
}

TEST_F(Gallery, ShowsTheSourceOfThePage)
{
    ::PostMessageW(window, WM_COMMAND, ID_VIEW_SOURCE, 0);
    HWND box = nullptr;
    ASSERT_TRUE(program.WaitUntil([&] {
        box = ::GetLastActivePopup(window);
        return box != window && ::IsWindowVisible(box);
    }));
    EXPECT_EQ(TextOf(::GetDlgItem(box, IDC_SOURCE_TEXT)).rfind(L"// The page with a plain grid.\r\n", 0), 0u);
    ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(program.WaitUntil([&] { return !::IsWindow(box); }));
}

TEST_F(Gallery, AboutBox_NamesTheVersions)
{
    ::PostMessageW(window, WM_COMMAND, ID_HELP_ABOUT_GALLERY, 0);
    HWND box = nullptr;
    ASSERT_TRUE(program.WaitUntil([&] {
        box = ::GetLastActivePopup(window);
        return box != window && ::IsWindowVisible(box);
    }));
    const std::wstring versions = TextOf(::GetDlgItem(box, IDC_ABOUT_VERSIONS));
    EXPECT_NE(versions.find(L"Library " QUOR_WIDE_VERSION L"\n"), std::wstring::npos);
    EXPECT_NE(versions.find(L"\nBuilt with GCC "), std::wstring::npos);
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(program.WaitUntil([&] { return !::IsWindow(box); }));
}

TEST(GalleryWindow, OpensWhereItWasClosed_OnThePageOfThatTime)
{
    const auto close = [](const Program& program, HWND window) {
        ::PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
        EXPECT_EQ(program.ExitCode(), 0u);
    };
    const auto page = [](HWND window) {
        return ::SendMessageW(::GetDlgItem(window, IDC_PAGES), LB_GETCURSEL, 0, 0);
    };
    for (const WPARAM chosen : {2, 0})
    {
        {
            const Program program(L"gallery.exe", L"/language en");
            const HWND window = program.Window(L"QuorUiCtrl gallery");
            ASSERT_NE(window, nullptr);
            ::SetWindowPos(window, nullptr, 30 + static_cast<int>(chosen), 40, 1100, 760, SWP_NOZORDER);
            ::SendMessageW(::GetDlgItem(window, IDC_PAGES), LB_SETCURSEL, chosen, 0);
            ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(IDC_PAGES, LBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(::GetDlgItem(window, IDC_PAGES)));
            close(program, window);
        }
        const Program program(L"gallery.exe", L"/language en");
        const HWND window = program.Window(L"QuorUiCtrl gallery");
        ASSERT_NE(window, nullptr);
        RECT place = {};
        ::GetWindowRect(window, &place);
        EXPECT_EQ(place.left, 30 + static_cast<int>(chosen));
        EXPECT_EQ(place.top, 40);
        EXPECT_EQ(place.right - place.left, 1100);
        EXPECT_EQ(static_cast<WPARAM>(page(window)), chosen);
        close(program, window);
    }
}

// A table that takes a while to read.
std::filesystem::path WriteLongTable()
{
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "quor_gallery_long.csv";
    std::ofstream file(path, std::ios::binary);
    file << "first,second,third\n";
    for (int row = 0; row < 1'000'000; ++row)
        file << row << ",some text,some other text\n";
    return path;
}

TEST(GalleryFile, ThatTakesLong_ShowsAProgressBar_AndCanBeStopped)
{
    const std::filesystem::path path = WriteLongTable();
    {
        const Program program(L"gallery.exe", L"/language en \"" + path.wstring() + L"\"",
                              Program::Start::AtOnce);
        const HWND window = program.Window(L"QuorUiCtrl gallery");
        ASSERT_NE(window, nullptr);
        HWND box = nullptr;
        ASSERT_TRUE(program.WaitUntil([&] {
            box = ::GetLastActivePopup(window);
            return box != window && ::GetDlgItem(box, IDC_PROGRESS_BAR) != nullptr;
        }));
        EXPECT_FALSE(::IsWindowEnabled(window));
        EXPECT_EQ(TextOf(::GetDlgItem(box, IDC_PROGRESS_TEXT)), L"Opening quor_gallery_long.csv");
        ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
        ASSERT_TRUE(program.WaitUntil([&] { return !::IsWindow(box); }));
        EXPECT_TRUE(::IsWindowEnabled(window));
        ::PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
        EXPECT_EQ(program.ExitCode(), 0u);
    }
    std::filesystem::remove(path);
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
    EXPECT_TRUE(program.WaitUntil([&] { return !::IsWindow(box); }));
}

} // namespace
