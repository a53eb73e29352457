// CFileDialog: what it shows, what it tells the program, and what was chosen.
#include "tests/framework/TemporaryFolder.h"
#include "tests/support/HostWindow.h"
#include "tests/support/MessageBoxProbe.h"
#include "tests/support/Pump.h"

#include <afxdlgs.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace
{

using namespace quor::test;

// Does what the test says as soon as the dialog handles messages, and writes down its notifications.
class ScriptedFileDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;

    std::function<void()> inLoop;
    std::function<BOOL()> fileNameOk = [] { return FALSE; };
    std::string log;
    int fileNamesOffered = 0;

    HWND Dialog() const { return ::GetParent(m_hWnd); }
    void Press(int id) { ::PostMessage(Dialog(), WM_COMMAND, static_cast<WPARAM>(id), 0); }
    void TypeName(LPCTSTR name) { ::SetDlgItemText(Dialog(), cmb13, name); }

protected:
    void OnInitDone() override
    {
        CFileDialog::OnInitDone();
        log += "init ";
        PostMessage(WM_APP);
        SetTimer(1, DefaultDeadline, NULL);
    }
    void OnFolderChange() override { log += "folder "; }
    void OnTypeChange() override { log += "type "; }
    BOOL OnFileNameOK() override
    {
        ++fileNamesOffered;
        return fileNameOk();
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP && inLoop)
            inLoop();
        if (message == WM_TIMER && wParam == 1)
        {
            ADD_FAILURE() << "the dialog stays open";
            Press(IDCANCEL);
        }
        return CFileDialog::WindowProc(message, wParam, lParam);
    }
};

// The accelerator tables of this process.
std::set<HACCEL> AcceleratorTables()
{
    // Under Wine a handle without its upper word stands for the object as well.
    std::set<HACCEL> tables;
    for (UINT_PTR slot = 0x20; slot < 0xfff0; slot += 2)
    {
        if (::CopyAcceleratorTable(reinterpret_cast<HACCEL>(slot), NULL, 0) != 0)
            tables.insert(reinterpret_cast<HACCEL>(slot));
    }
    return tables;
}

class FileDialog : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_tablesBefore = AcceleratorTables(); }
    // The list of files leaves the table of its keys behind, each time the system shows one.
    static void TearDownTestSuite()
    {
        for (const HACCEL table : AcceleratorTables())
        {
            if (s_tablesBefore.count(table) == 0)
                ::DestroyAcceleratorTable(table);
        }
        std::set<HACCEL>().swap(s_tablesBefore);
    }

    void TearDown() override
    {
        for (const ShownMessage& box : m_boxes.Shown())
            ADD_FAILURE() << CStringA(box.text.c_str()).GetString();
    }

    // Makes the folder the one that dialogs begin in.
    void ShowFolder(CFileDialog& dialog) { dialog.GetOFN().lpstrInitialDir = m_folder.Path(); }

    // Questions of the system would wait for ever.
    MessageBoxProbe m_boxes;
    HostWindow m_host;
    TemporaryFolder m_folder;
    static std::set<HACCEL> s_tablesBefore;
};
std::set<HACCEL> FileDialog::s_tablesBefore;

constexpr DWORD kOpenFlags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;

TEST_F(FileDialog, GivesThePartsOfTheChosenName)
{
    MakeFile(m_folder.File(_T("letter.v1.txt")), "x");
    ScriptedFileDialog dialog(TRUE, NULL, NULL, kOpenFlags, NULL, &m_host);
    ShowFolder(dialog);
    dialog.inLoop = [&] {
        dialog.TypeName(_T("letter.v1.txt"));
        dialog.Press(IDOK);
    };
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_STREQ(m_folder.File(_T("letter.v1.txt")), dialog.GetPathName());
    EXPECT_STREQ(_T("letter.v1.txt"), dialog.GetFileName());
    EXPECT_STREQ(_T("txt"), dialog.GetFileExt());
    EXPECT_STREQ(_T("letter.v1"), dialog.GetFileTitle());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(FileDialog, AnswersWhileItIsOpen)
{
    ScriptedFileDialog dialog(FALSE, NULL, _T("start.txt"), OFN_HIDEREADONLY, NULL, &m_host);
    ShowFolder(dialog);
    CString folder, path, name, title;
    BOOL hostEnabled = TRUE;
    dialog.inLoop = [&] {
        folder = dialog.GetFolderPath();
        path = dialog.GetPathName();
        name = dialog.GetFileName();
        title = dialog.GetFileTitle();
        hostEnabled = m_host.IsWindowEnabled();
        dialog.Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(0u, ::CommDlgExtendedError());
    EXPECT_STREQ(m_folder.Path(), folder);
    EXPECT_STREQ(m_folder.File(_T("start.txt")), path);
    EXPECT_STREQ(_T("start.txt"), name);
    EXPECT_STREQ(_T("start"), title);
    EXPECT_FALSE(hostEnabled);
    EXPECT_NE(std::string::npos, dialog.log.find("init"));
    EXPECT_NE(std::string::npos, dialog.log.find("folder"));
}

TEST_F(FileDialog, SaveAddsTheDefaultExtension)
{
    ScriptedFileDialog dialog(FALSE, _T("dat"), _T("fresh"), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, NULL,
                              &m_host);
    ShowFolder(dialog);
    dialog.inLoop = [&] { dialog.Press(IDOK); };
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_STREQ(m_folder.File(_T("fresh.dat")), dialog.GetPathName());
}

// Hears what the system's dialog is asked for.
class DialogSpy : public CWnd
{
public:
    CString extension;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == CDM_SETDEFEXT)
            extension = reinterpret_cast<LPCTSTR>(lParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(FileDialog, SetDefExtTellsTheDialog)
{
    ScriptedFileDialog dialog(FALSE, _T("dat"), _T("fresh"), OFN_HIDEREADONLY, NULL, &m_host);
    ShowFolder(dialog);
    DialogSpy spy;
    dialog.inLoop = [&] {
        spy.SubclassWindow(dialog.Dialog());
        dialog.SetDefExt("log");
        spy.UnsubclassWindow();
        dialog.Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_STREQ(_T("log"), spy.extension);
}

TEST_F(FileDialog, ARefusedNameLeavesItOpen)
{
    ScriptedFileDialog dialog(FALSE, NULL, _T("bad.txt"), OFN_HIDEREADONLY, NULL, &m_host);
    ShowFolder(dialog);
    dialog.fileNameOk = [&] {
        if (dialog.GetFileName() != _T("bad.txt"))
            return FALSE;
        dialog.TypeName(_T("good.txt"));
        dialog.Press(IDOK);
        return TRUE;
    };
    dialog.inLoop = [&] { dialog.Press(IDOK); };
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(2, dialog.fileNamesOffered);
    EXPECT_STREQ(_T("good.txt"), dialog.GetFileName());
}

TEST_F(FileDialog, SeveralFilesAreWalkedThrough)
{
    MakeFile(m_folder.File(_T("a.txt")), "x");
    MakeFile(m_folder.File(_T("b.txt")), "x");
    ScriptedFileDialog dialog(TRUE, NULL, NULL, kOpenFlags | OFN_ALLOWMULTISELECT, NULL, &m_host);
    ShowFolder(dialog);
    TCHAR names[2000] = {};
    dialog.GetOFN().lpstrFile = names;
    dialog.GetOFN().nMaxFile = _countof(names);
    dialog.inLoop = [&] {
        dialog.TypeName(_T("\"a.txt\" \"b.txt\""));
        dialog.Press(IDOK);
    };
    ASSERT_EQ(IDOK, dialog.DoModal());
    POSITION position = dialog.GetStartPosition();
    EXPECT_STREQ(m_folder.File(_T("a.txt")), dialog.GetNextPathName(position));
    ASSERT_NE(nullptr, position);
    EXPECT_STREQ(m_folder.File(_T("b.txt")), dialog.GetNextPathName(position));
    EXPECT_EQ(nullptr, position);
}

TEST_F(FileDialog, ASingleFileIsAWalkOfOneStep)
{
    MakeFile(m_folder.File(_T("a.txt")), "x");
    ScriptedFileDialog dialog(TRUE, NULL, NULL, kOpenFlags | OFN_ALLOWMULTISELECT, NULL, &m_host);
    ShowFolder(dialog);
    dialog.inLoop = [&] {
        dialog.TypeName(_T("a.txt"));
        dialog.Press(IDOK);
    };
    ASSERT_EQ(IDOK, dialog.DoModal());
    POSITION position = dialog.GetStartPosition();
    EXPECT_STREQ(m_folder.File(_T("a.txt")), dialog.GetNextPathName(position));
    EXPECT_EQ(nullptr, position);
}

TEST_F(FileDialog, ShowsTheFiltersAndTellsOfAnother)
{
    ScriptedFileDialog dialog(TRUE, NULL, NULL, kOpenFlags, _T("Text (*.txt)|*.txt|All (*.*)|*.*||"),
                              &m_host);
    ShowFolder(dialog);
    LRESULT filters = 0;
    TCHAR second[50] = {};
    dialog.inLoop = [&] {
        const HWND combo = ::GetDlgItem(dialog.Dialog(), cmb1);
        filters = ::SendMessage(combo, CB_GETCOUNT, 0, 0);
        ::SendMessage(combo, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(second));
        ::SendMessage(combo, CB_SETCURSEL, 1, 0);
        ::SendMessage(dialog.Dialog(), WM_COMMAND, MAKEWPARAM(cmb1, CBN_SELENDOK),
                      reinterpret_cast<LPARAM>(combo));
        ::SendMessage(dialog.Dialog(), WM_COMMAND, MAKEWPARAM(cmb1, CBN_SELCHANGE),
                      reinterpret_cast<LPARAM>(combo));
        dialog.Press(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(2, filters);
    EXPECT_STREQ(_T("All (*.*)"), second);
    EXPECT_NE(std::string::npos, dialog.log.find("type"));
    EXPECT_EQ(2u, dialog.GetOFN().nFilterIndex);
}

TEST_F(FileDialog, HidesAndRenamesItsControls)
{
    ScriptedFileDialog dialog(TRUE, NULL, NULL, kOpenFlags, NULL, &m_host);
    ShowFolder(dialog);
    BOOL visible = TRUE;
    TCHAR caption[50] = {};
    dialog.inLoop = [&] {
        dialog.HideControl(cmb1);
        dialog.SetControlText(IDOK, "Take it");
        visible = ::IsWindowVisible(::GetDlgItem(dialog.Dialog(), cmb1));
        ::GetDlgItemText(dialog.Dialog(), IDOK, caption, _countof(caption));
        dialog.Press(IDCANCEL);
    };
    dialog.DoModal();
    EXPECT_FALSE(visible);
    EXPECT_STREQ(_T("Take it"), caption);
}

TEST_F(FileDialog, TheReadOnlyBoxIsAPreference)
{
    MakeFile(m_folder.File(_T("a.txt")), "x");
    ScriptedFileDialog dialog(TRUE, NULL, _T("a.txt"), OFN_FILEMUSTEXIST, NULL, &m_host);
    ShowFolder(dialog);
    EXPECT_FALSE(dialog.GetReadOnlyPref());
    dialog.inLoop = [&] {
        ::CheckDlgButton(dialog.Dialog(), chx1, BST_CHECKED);
        dialog.Press(IDOK);
    };
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(dialog.GetReadOnlyPref());
}

} // namespace
