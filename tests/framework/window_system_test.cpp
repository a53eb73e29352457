// What CWnd passes on to Windows and few programs need: directories in lists, information, layers, the
// clipboard.
#include "tests/support/HostWindow.h"

#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace quor::test;

constexpr int listId = 11;
constexpr int comboId = 12;
constexpr int labelId = 13;

// An empty folder with two files, for as long as it lives.
class Folder
{
public:
    Folder()
    {
        TCHAR base[MAX_PATH] = {};
        ::GetTempPath(MAX_PATH, base);
        m_path.Format(L"%sQuorFolder%u", base, static_cast<unsigned>(::GetCurrentProcessId()));
        ::CreateDirectory(m_path, NULL);
        for (const wchar_t* name : {L"one.txt", L"two.txt", L"three.dat"})
            ::CloseHandle(
                ::CreateFile(m_path + L"\\" + name, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL));
    }
    ~Folder()
    {
        for (const wchar_t* name : {L"one.txt", L"two.txt", L"three.dat"})
            ::DeleteFile(m_path + L"\\" + name);
        ::RemoveDirectory(m_path);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    CString m_path;
};

// Restores the current folder, which the lists of files change.
class CurrentFolder
{
public:
    CurrentFolder() { ::GetCurrentDirectory(MAX_PATH, m_path); }
    ~CurrentFolder() { ::SetCurrentDirectory(m_path); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    TCHAR m_path[MAX_PATH] = {};
};

class WindowSystem : public testing::Test
{
protected:
    HostWindow m_host;
};

TEST_F(WindowSystem, ListsShowTheFilesOfAFolder)
{
    const CurrentFolder before;
    const Folder folder;
    CListBox list;
    CComboBox combo;
    CStatic label;
    list.Create(WS_CHILD | WS_VISIBLE | LBS_SORT, CRect(0, 0, 100, 100), &m_host, listId);
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_SORT, CRect(100, 0, 200, 100), &m_host,
                 comboId);
    label.Create(L"", WS_CHILD, CRect(0, 100, 200, 120), &m_host, labelId);

    wchar_t path[MAX_PATH] = L"";
    wcscpy(path, folder.m_path + L"\\*.txt");
    EXPECT_TRUE(m_host.DlgDirList(path, listId, labelId, DDL_READWRITE));
    EXPECT_EQ(list.GetCount(), 2);
    CString shown;
    label.GetWindowText(shown);
    EXPECT_EQ(shown.CompareNoCase(folder.m_path), 0) << "the label shows the folder";
    list.SetCurSel(1);
    wchar_t chosen[MAX_PATH] = L"";
    EXPECT_FALSE(m_host.DlgDirSelect(chosen, listId)) << "a file is no folder";
    EXPECT_STREQ(chosen, L"two.txt");

    wcscpy(path, folder.m_path + L"\\*.dat");
    EXPECT_TRUE(m_host.DlgDirListComboBox(path, comboId, 0, DDL_READWRITE));
    combo.SetCurSel(0);
    EXPECT_FALSE(m_host.DlgDirSelectComboBox(chosen, comboId));
    EXPECT_STREQ(chosen, L"three.dat");
}

TEST_F(WindowSystem, InformationAboutTheWindow)
{
    WINDOWINFO info = {};
    EXPECT_TRUE(m_host.GetWindowInfo(&info));
    EXPECT_EQ(info.dwStyle, m_host.GetStyle());
    TITLEBARINFO title = {};
    EXPECT_TRUE(m_host.GetTitleBarInfo(&title));
    CRect window;
    m_host.GetWindowRect(&window);
    EXPECT_TRUE(window.PtInRect(CRect(title.rcTitleBar).CenterPoint()));
    m_host.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED);
    SCROLLBARINFO bar = {};
    EXPECT_TRUE(m_host.GetScrollBarInfo(static_cast<LONG>(OBJID_VSCROLL), &bar));
    EXPECT_EQ(bar.rcScrollBar.right - bar.rcScrollBar.left, ::GetSystemMetrics(SM_CXVSCROLL));
}

TEST_F(WindowSystem, TheMenuBarHasItems)
{
    CMenu menu;
    menu.CreateMenu();
    menu.AppendMenu(MF_STRING, 100, L"Item");
    m_host.SetMenu(&menu);
    MENUBARINFO bar = {};
    EXPECT_TRUE(m_host.GetMenuBarInfo(static_cast<LONG>(OBJID_MENU), 0, &bar));
    EXPECT_EQ(bar.hMenu, menu.m_hMenu);
    EXPECT_TRUE(m_host.HiliteMenuItem(&menu, 100, MF_BYCOMMAND | MF_HILITE));
    EXPECT_TRUE(menu.GetMenuState(100, MF_BYCOMMAND) & MF_HILITE);
    m_host.SetMenu(NULL);
}

TEST_F(WindowSystem, LayersHaveAKeyAndATransparency)
{
    m_host.ModifyStyleEx(0, WS_EX_LAYERED);
    EXPECT_TRUE(m_host.SetLayeredWindowAttributes(RGB(1, 2, 3), 200, LWA_ALPHA | LWA_COLORKEY));
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
    EXPECT_TRUE(m_host.GetLayeredWindowAttributes(&key, &alpha, &flags));
    EXPECT_EQ(key, RGB(1, 2, 3));
    EXPECT_EQ(alpha, 200);
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA | LWA_COLORKEY));
}

TEST_F(WindowSystem, TheClipboardKnowsItsWindows)
{
    EXPECT_TRUE(m_host.OpenClipboard());
    EXPECT_EQ(CWnd::GetOpenClipboardWindow(), &m_host);
    ::EmptyClipboard();
    EXPECT_EQ(CWnd::GetClipboardOwner(), &m_host);
    ::CloseClipboard();
    EXPECT_EQ(CWnd::GetOpenClipboardWindow(), nullptr);
    const HWND next = m_host.SetClipboardViewer();
    EXPECT_EQ(CWnd::GetClipboardViewer(), &m_host);
    m_host.ChangeClipboardChain(next);
    EXPECT_NE(CWnd::GetClipboardViewer(), &m_host);
}

TEST_F(WindowSystem, CloseWindowMinimises)
{
    m_host.CloseWindow();
    EXPECT_TRUE(m_host.IsIconic());
}

TEST_F(WindowSystem, MinimisedChildrenAreArranged)
{
    CWnd child;
    child.Create(NULL, L"Child", WS_CHILD | WS_VISIBLE | WS_CAPTION | WS_MINIMIZEBOX, CRect(0, 0, 200, 100),
                 &m_host, 5);
    child.ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(child.IsIconic());
    CRect place, after;
    child.GetWindowRect(&place);
    child.SetWindowPos(NULL, 300, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_GT(m_host.ArrangeIconicWindows(), 0u);
    child.GetWindowRect(&after);
    EXPECT_EQ(after.TopLeft(), place.TopLeft()) << "back in its place";
}

TEST_F(WindowSystem, WindowsKeepANumberForHelp)
{
    EXPECT_EQ(m_host.GetWindowContextHelpId(), 0u);
    EXPECT_TRUE(m_host.SetWindowContextHelpId(77));
    EXPECT_EQ(m_host.GetWindowContextHelpId(), 77u);
}

} // namespace
