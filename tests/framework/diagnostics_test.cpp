// Assertions end the process with their exit code; the validity checks tell good addresses from bad ones.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{

struct ProcessResult
{
    DWORD exitCode = 0;
    std::string errorText;
};

std::string ReadToEnd(HANDLE pipe)
{
    std::string text;
    char buffer[512];
    DWORD count = 0;
    while (ReadFile(pipe, buffer, sizeof(buffer), &count, nullptr) && count > 0)
        text.append(buffer, count);
    return text;
}

// Runs one disabled test of this program in a process of its own and collects what it writes on stderr.
ProcessResult RunDisabledTest(const wchar_t* test)
{
    SECURITY_ATTRIBUTES inheritable = {sizeof(inheritable), nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    CreatePipe(&readEnd, &writeEnd, &inheritable, 0);
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);

    wchar_t program[MAX_PATH];
    GetModuleFileName(nullptr, program, MAX_PATH);
    CString command;
    command.Format(L"\"%s\" --gtest_also_run_disabled_tests --gtest_repeat=1 --gtest_filter=%s", program,
                   test);
    STARTUPINFO startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdError = writeEnd;
    PROCESS_INFORMATION process = {};
    const BOOL started = CreateProcess(nullptr, command.GetBuffer(), nullptr, nullptr, TRUE, 0, nullptr,
                                       nullptr, &startup, &process);
    CloseHandle(writeEnd);
    ProcessResult result;
    if (started)
    {
        result.errorText = ReadToEnd(readEnd);
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &result.exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(readEnd);
    return result;
}

} // namespace

TEST(AssertionVictim, DISABLED_Fails)
{
#ifdef _DEBUG
    ASSERT(1 + 1 == 3);
#else
    AfxAssertFailed(__FILE__, __LINE__, "1 + 1 == 3");
#endif
}

TEST(AssertionVictim, DISABLED_InvalidObject)
{
    AfxAssertValidObject(nullptr, "victim.cpp", 12);
}

TEST(Assertion, Failure_EndsTheProcessWithFileAndLine)
{
    const ProcessResult result = RunDisabledTest(L"AssertionVictim.DISABLED_Fails");
    EXPECT_EQ(87u, result.exitCode);
    EXPECT_NE(std::string::npos, result.errorText.find("diagnostics_test.cpp:")) << result.errorText;
    EXPECT_NE(std::string::npos, result.errorText.find("1 + 1 == 3")) << result.errorText;
}

TEST(Assertion, InvalidObject_EndsTheProcess)
{
    const ProcessResult result = RunDisabledTest(L"AssertionVictim.DISABLED_InvalidObject");
    EXPECT_EQ(87u, result.exitCode);
    EXPECT_NE(std::string::npos, result.errorText.find("victim.cpp:12")) << result.errorText;
}

TEST(Assertion, Verify_EvaluatesInEveryBuildAndAssertOnlyWithChecks)
{
    int evaluated = 0;
    VERIFY(++evaluated > 0);
    EXPECT_EQ(1, evaluated);
    ASSERT(++evaluated > 0);
#ifdef _DEBUG
    EXPECT_EQ(2, evaluated);
#else
    EXPECT_EQ(1, evaluated);
#endif
}

TEST(Diagnostics, ValidAddresses)
{
    char bytes[16] = {};
    static const char constant[] = "constant";
    EXPECT_TRUE(AfxIsValidAddress(bytes, sizeof(bytes)));
    EXPECT_TRUE(AfxIsValidAddress(constant, sizeof(constant), FALSE));
    EXPECT_FALSE(AfxIsValidAddress(constant, sizeof(constant), TRUE));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress(reinterpret_cast<void*>(16), 1, FALSE));
}

TEST(Diagnostics, ValidStrings_EndBeforeTheirPageDoes)
{
    constexpr SIZE_T kPageSize = 4096;
    wchar_t* const page =
        static_cast<wchar_t*>(VirtualAlloc(nullptr, 2 * kPageSize, MEM_RESERVE, PAGE_READWRITE));
    VirtualAlloc(page, kPageSize, MEM_COMMIT, PAGE_READWRITE);
    wchar_t* const tail = page + kPageSize / sizeof(wchar_t) - 3;
    std::wmemcpy(tail, L"abc", 3);
    EXPECT_FALSE(AfxIsValidString(tail));
    EXPECT_TRUE(AfxIsValidString(tail, 3));
    tail[2] = 0;
    EXPECT_TRUE(AfxIsValidString(tail));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCWSTR>(nullptr)));
    VirtualFree(page, 0, MEM_RELEASE);
}

TEST(Diagnostics, TracesAndDumps_TakeEveryKindOfArgument)
{
    const CString text(L"text");
    EXPECT_NO_FATAL_FAILURE(AfxTrace(L"%s %d\n", text, 5));
    EXPECT_NO_FATAL_FAILURE(AfxTrace("%s %g\n", CStringA("narrow"), 2.5));
    CPen pen;
    afxDump << L"wide " << "narrow " << 5 << 6u << 7L << 2.5 << &pen << static_cast<CObject*>(nullptr)
            << "\n";
    EXPECT_EQ(0, afxDump.GetDepth());
}
