// The application object: settings in the registry and in files, the texts it owns, OLE.
#include <afxdisp.h>

#include <gtest/gtest.h>

#include <ole2.h>

#include <vector>

namespace
{

// An application in place of the test program's own, for as long as it lives.
class SettingsApp : public CWinApp
{
public:
    SettingsApp() : SettingsApp(AFX_MODULE_STATE(*AfxGetStaticModuleState())) {}
    ~SettingsApp() override { *AfxGetStaticModuleState() = m_before; }

    using CWinApp::SetRegistryKey;

private:
    // The state is copied as an argument: the constructor of the base changes it.
    explicit SettingsApp(const AFX_MODULE_STATE& before) : CWinApp(L"SettingsApp"), m_before(before) {}

    AFX_MODULE_STATE m_before;
};

std::vector<BYTE> Binary(CWinApp& app, LPCTSTR entry)
{
    BYTE* bytes = NULL;
    UINT count = 0;
    if (!app.GetProfileBinary(L"Section", entry, &bytes, &count))
        return {};
    const std::vector<BYTE> copy(bytes, bytes + count);
    delete[] bytes;
    return copy;
}

const std::vector<BYTE> someBytes = {0x00, 0x1f, 0xf0, 0xff, 0x7a};

// The same for both places of settings.
void ExpectThatSettingsAreKept(CWinApp& app)
{
    BYTE* const bytes = const_cast<BYTE*>(someBytes.data());
    EXPECT_TRUE(app.WriteProfileBinary(L"Section", L"Bytes", bytes, 5));
    EXPECT_TRUE(app.WriteProfileInt(L"Section", L"Number", -77));
    EXPECT_TRUE(app.WriteProfileString(L"Section", L"Text", L"kept"));
    EXPECT_EQ(Binary(app, L"Bytes"), someBytes);
    EXPECT_EQ(static_cast<int>(app.GetProfileInt(L"Section", L"Number", 5)), -77);
    EXPECT_STREQ(app.GetProfileString(L"Section", L"Text"), L"kept");
    EXPECT_EQ(Binary(app, L"None"), std::vector<BYTE>{});
    EXPECT_STREQ(app.GetProfileString(L"Section", L"None"), L"");
    EXPECT_TRUE(app.WriteProfileString(L"Section", NULL, NULL));
    EXPECT_STREQ(app.GetProfileString(L"Section", L"Text", L"gone"), L"gone");
}

TEST(ApplicationSettings, AreInTheRegistryOnceThereIsAKey)
{
    SettingsApp app;
    app.SetRegistryKey(L"QuorTests");
    EXPECT_STREQ(app.m_pszRegistryKey, L"QuorTests");
    EXPECT_STREQ(app.m_pszProfileName, L"SettingsApp");
    ExpectThatSettingsAreKept(app);
    EXPECT_EQ(app.DelRegTree(HKEY_CURRENT_USER, L"Software\\QuorTests"), ERROR_SUCCESS);
}

TEST(ApplicationSettings, AreInAFileBeforeThat)
{
    SettingsApp app;
    EXPECT_EQ(app.m_pszRegistryKey, nullptr);
    EXPECT_STREQ(app.m_pszProfileName, L"framework_test.INI");
    ExpectThatSettingsAreKept(app);
    TCHAR folder[MAX_PATH] = {};
    ::GetWindowsDirectory(folder, MAX_PATH);
    EXPECT_TRUE(::DeleteFile(CString(folder) + L"\\framework_test.INI")) << "no such file";
}

TEST(ApplicationSettings, TheKeyMayBeAStringResource)
{
    SettingsApp app;
    app.SetRegistryKey(AFX_IDP_COMMAND_FAILURE);
    EXPECT_STREQ(app.m_pszRegistryKey, L"Command failed.");
}

TEST(ApplicationSettings, TheKeysCanBeOpened)
{
    SettingsApp app;
    EXPECT_EQ(app.GetAppRegistryKey(), HKEY(NULL)) << "there is no key yet";
    app.SetRegistryKey(L"QuorTests");
    const HKEY key = app.GetSectionKey(L"Section");
    ASSERT_NE(key, HKEY(NULL));
    const DWORD value = 9;
    ::RegSetValueEx(key, L"Number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
    ::RegCloseKey(key);
    EXPECT_EQ(app.GetProfileInt(L"Section", L"Number", 0), 9u);
    EXPECT_EQ(app.DelRegTree(HKEY_CURRENT_USER, L"Software\\QuorTests"), ERROR_SUCCESS);
    EXPECT_EQ(app.GetProfileInt(L"Section", L"Number", 0), 0u);
}

// Programs do so in InitInstance.
TEST(ApplicationSettings, AProgramMayReplaceTheTexts)
{
    SettingsApp app;
    CString name(L"replaced 0");
    for (LPCTSTR* const text : {&app.m_pszAppName, &app.m_pszProfileName, &app.m_pszHelpFilePath})
    {
        // The new one has a place of its own: the one before it is freed later.
        const LPTSTR before = const_cast<LPTSTR>(*text);
        *text = _tcsdup(name);
        std::free(before);
        name.SetAt(name.GetLength() - 1, static_cast<TCHAR>(name[name.GetLength() - 1] + 1));
    }
    EXPECT_STREQ(AfxGetAppName(), L"replaced 0");
}

TEST(ApplicationSettings, OleWorksOnceInitialised)
{
    EXPECT_TRUE(AfxOleInit());
    EXPECT_TRUE(AfxOleInit()) << "again";
    EXPECT_EQ(::OleFlushClipboard(), S_OK);
    AfxEnableControlContainer();
}

} // namespace
