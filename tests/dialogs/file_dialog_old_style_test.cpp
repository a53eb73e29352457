// CFileDialog: templates, names that were chosen, and what dialogs of the old style tell by messages.
#include "tests/framework/BadArguments.h"
#include "tests/support/HostWindow.h"

#include <afxdlgs.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace quor::test;

// A dialog that is never shown; its hook is called as the system would.
class UnshownDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;

    std::string log;

    using CFileDialog::OnFileNameOK;
    using CFileDialog::OnFolderChange;
    using CFileDialog::OnLBSelChangedNotify;
    using CFileDialog::OnShareViolation;
    using CFileDialog::OnTypeChange;
};

TEST(FileDialogDefaults, TakeAnyNameAndWarnOfSharing)
{
    UnshownDialog dialog(TRUE);
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CFileDialog)));
    EXPECT_FALSE(dialog.OnFileNameOK()) << "FALSE: the name is good";
    EXPECT_EQ(dialog.OnShareViolation(L"c:\\some.file"), static_cast<UINT>(OFN_SHAREWARN));
    dialog.OnFolderChange();
    dialog.OnTypeChange();
    dialog.OnLBSelChangedNotify(0, 0, 0);
}

TEST(FileDialogDefaults, ATemplateIsThatOfItsStyle)
{
    UnshownDialog dialog(TRUE);
    dialog.SetTemplate(101u, 102u);
    EXPECT_TRUE(dialog.GetOFN().Flags & OFN_ENABLETEMPLATE);
    EXPECT_EQ(dialog.GetOFN().lpTemplateName, MAKEINTRESOURCE(102)) << "of the Explorer style";
    dialog.GetOFN().Flags &= ~static_cast<DWORD>(OFN_EXPLORER);
    dialog.SetTemplate(L"OLD", L"NEW");
    EXPECT_STREQ(dialog.GetOFN().lpTemplateName, L"OLD");
    EXPECT_EQ(dialog.GetOFN().hInstance, AfxGetResourceHandle());
}

TEST(FileDialogDefaults, FiltersEndWithAnEmptyOne)
{
    const auto filterOf = [](LPCTSTR filter) {
        UnshownDialog dialog(TRUE, nullptr, nullptr, 0, filter);
        const LPCTSTR text = dialog.GetOFN().lpstrFilter;
        if (text == nullptr)
            return std::wstring(L"none");
        std::wstring parts;
        for (LPCTSTR part = text; *part != 0; part += ::lstrlen(part) + 1)
            parts += std::wstring(part) + L";";
        return parts;
    };
    EXPECT_EQ(filterOf(L"Text|*.txt|All|*.*||"), L"Text;*.txt;All;*.*;");
    EXPECT_EQ(filterOf(L"Text|*.txt"), L"Text;*.txt;") << "without its end";
    EXPECT_EQ(filterOf(L""), L"none");
    EXPECT_EQ(filterOf(nullptr), L"none");
}

TEST(FileDialogDefaults, NamesWithoutAnExtensionOrAFolder)
{
    UnshownDialog dialog(TRUE);
    const auto choose = [&](LPCTSTR path) { ::lstrcpyn(dialog.GetOFN().lpstrFile, path, MAX_PATH); };
    choose(L"c:\\folder.x\\name");
    EXPECT_STREQ(dialog.GetFileName(), L"name");
    EXPECT_STREQ(dialog.GetFileExt(), L"");
    EXPECT_STREQ(dialog.GetFileTitle(), L"name");
    choose(L"c:/folder/name.of.file");
    EXPECT_STREQ(dialog.GetFileName(), L"name.of.file");
    EXPECT_STREQ(dialog.GetFileExt(), L"file");
    EXPECT_STREQ(dialog.GetFileTitle(), L"name.of");
    choose(L"name.txt");
    EXPECT_STREQ(dialog.GetPathName(), L"name.txt");
    EXPECT_STREQ(dialog.GetFileName(), L"name.txt");
    POSITION position = nullptr;
    EXPECT_TRUE(RefusesArguments([&] { dialog.GetNextPathName(position); }));
}

} // namespace
