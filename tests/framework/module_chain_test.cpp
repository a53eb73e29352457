// The chain of modules and the resource look-up along it. System DLLs stand for extension DLLs: they have
// resources that this program has not.
#include "tests/framework/ControlsResource.h"
#include "tests/framework/WindowLog.h"
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

#include <afxdllx.h>

namespace quor::test
{
namespace
{

// A system DLL that is in the chain as long as the object lives.
class ChainedModule
{
public:
    explicit ChainedModule(LPCTSTR fileName) : m_module(::LoadLibrary(fileName))
    {
        AfxInitExtensionModule(m_state, m_module);
        new CDynLinkLibrary(m_state);
    }
    ~ChainedModule()
    {
        AfxTermExtensionModule(m_state);
        ::FreeLibrary(m_module);
    }
    ChainedModule(const ChainedModule&) = delete;
    ChainedModule& operator=(const ChainedModule&) = delete;

    HMODULE Handle() const { return m_module; }

private:
    HMODULE m_module;
    AFX_EXTENSION_MODULE m_state = {};
};

const LPCTSTR FirstVersion = MAKEINTRESOURCE(1);

HINSTANCE VersionModule()
{
    return AfxFindResourceHandle(FirstVersion, RT_VERSION);
}

TEST(ModuleChain, AnExtensionModuleIsSearchedWhileItIsInTheChain)
{
    const HINSTANCE before = VersionModule();
    {
        const ChainedModule module(L"shell32.dll");
        EXPECT_EQ(VersionModule(), module.Handle());
    }
    EXPECT_EQ(VersionModule(), before);
}

TEST(ModuleChain, TheNewestModuleComesFirst)
{
    const ChainedModule first(L"shell32.dll");
    {
        const ChainedModule second(L"user32.dll");
        EXPECT_EQ(VersionModule(), second.Handle());
    }
    EXPECT_EQ(VersionModule(), first.Handle());
}

TEST(ModuleChain, TheResourceHandleComesBeforeTheChain)
{
    const ChainedModule chained(L"shell32.dll");
    const HMODULE chosen = ::LoadLibrary(L"user32.dll");
    const HINSTANCE before = AfxGetResourceHandle();
    AfxSetResourceHandle(chosen);
    EXPECT_EQ(AfxGetResourceHandle(), chosen);
    EXPECT_EQ(VersionModule(), chosen);
    AfxSetResourceHandle(before);
    EXPECT_EQ(VersionModule(), chained.Handle());
    ::FreeLibrary(chosen);
}

TEST(ModuleChain, WhatIsNowhereIsLookedForInTheDefaultModule)
{
    EXPECT_EQ(AfxFindResourceHandle(L"NOSUCHRESOURCE", RT_RCDATA), AfxGetResourceHandle());
}

// A string id that the module has and the program has not.
UINT StringOf(HMODULE module)
{
    TCHAR text[8] = {};
    for (UINT id = 1; id < 0xFFFF; ++id)
    {
        if (::LoadString(module, id, text, 8) > 2 && ::LoadString(::GetModuleHandle(NULL), id, text, 8) == 0)
            return id;
    }
    return 0;
}

TEST(ModuleChain, StringsComeFromTheChainAndAreCutToTheBuffer)
{
    const ChainedModule module(L"shell32.dll");
    const UINT id = StringOf(module.Handle());
    ASSERT_NE(id, 0u);
    TCHAR expected[256] = {};
    const int length = ::LoadString(module.Handle(), id, expected, 256);
    TCHAR text[256] = {};
    EXPECT_EQ(AfxLoadString(id, text), length);
    EXPECT_STREQ(text, expected);
    EXPECT_EQ(AfxLoadString(id, text, 3), 2);
    EXPECT_EQ(CString(text), CString(expected).Left(2));
    EXPECT_STREQ(CString(MAKEINTRESOURCE(id)), expected);

    text[0] = L'x';
    EXPECT_EQ(AfxLoadString(0xFFF3, text), 0);
    EXPECT_EQ(text[0], 0);
}

TEST(ModuleChain, AStringMayBeOneCharacter)
{
    TCHAR text[8] = L"before";
    EXPECT_EQ(AfxLoadString(IDS_ONE_LETTER, text, 8), 1);
    EXPECT_STREQ(text, L"x");
}

TEST(ModuleChain, ATipIsAStringOfTheModuleThatHasIt)
{
    const ChainedModule module(L"shell32.dll");
    // The first, so that the module has no strings just before it.
    const UINT id = StringOf(module.Handle());
    ASSERT_NE(id, 0u);
    HostWindow host;
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&host));
    ASSERT_TRUE(tips.AddTool(&host, id));
    CString text;
    tips.GetText(text, &host);
    EXPECT_STREQ(text, CString(MAKEINTRESOURCE(id)));
    EXPECT_FALSE(text.IsEmpty());
}

TEST(ModuleChain, TheInstanceIsTheProgram)
{
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(NULL));
    EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(NULL));
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(NULL));
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
    EXPECT_EQ(AfxGetModuleState()->m_pCurrentWinApp, AfxGetApp());
}

TEST(ModuleChain, AManagedStateEndsWithItsScope)
{
    AFX_MODULE_STATE* const before = AfxGetModuleState();
    AFX_MODULE_STATE second = {};
    second.m_hCurrentInstanceHandle = ::GetModuleHandle(L"user32.dll");
    {
        AFX_MANAGE_STATE(&second);
        EXPECT_EQ(AfxGetModuleState(), &second);
        EXPECT_EQ(AfxGetInstanceHandle(), second.m_hCurrentInstanceHandle);
    }
    EXPECT_EQ(AfxGetModuleState(), before);
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(NULL));
}

TEST(ModuleChain, InitialisingFillsTheRecordOnce)
{
    AFX_EXTENSION_MODULE state = {};
    const HMODULE module = ::GetModuleHandle(L"user32.dll");
    EXPECT_TRUE(AfxInitExtensionModule(state, module));
    EXPECT_TRUE(state.bInitialized);
    EXPECT_EQ(state.hModule, module);
    EXPECT_EQ(state.hResource, module);
    AfxTermExtensionModule(state);
    EXPECT_FALSE(state.bInitialized);
}

} // namespace
} // namespace quor::test
