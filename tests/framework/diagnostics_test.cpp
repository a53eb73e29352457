// Assertions end the process with their exit code; the validity checks tell good addresses from bad ones.
#include "tests/framework/DebugOutput.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

namespace
{

// What a failed assertion ends the process with.
constexpr int AssertionExitCode = 87;

void FailAssertion()
{
#ifdef _DEBUG
    ASSERT(1 + 1 == 3);
#else
    AfxAssertFailed(__FILE__, __LINE__, "1 + 1 == 3");
#endif
}

} // namespace

TEST(AssertionDeathTest, Failure_EndsTheProcessWithFileLineAndCondition)
{
    EXPECT_EXIT(FailAssertion(), testing::ExitedWithCode(AssertionExitCode),
                "diagnostics_test.cpp:.*1 . 1 == 3");
}

TEST(AssertionDeathTest, InvalidObject_EndsTheProcess)
{
    EXPECT_EXIT(AfxAssertValidObject(nullptr, "victim.cpp", 12), testing::ExitedWithCode(AssertionExitCode),
                "victim.cpp:12");
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

TEST(Diagnostics, Traces_AreFormattedForTheDebugger)
{
    quor::test::DebugOutput output;
    AfxTrace(L"%s %d\n", CString(L"text"), 5);
    EXPECT_EQ(output.Take(), "text 5\n");
    AfxTrace("%s %g\n", CStringA("narrow"), 2.5);
    EXPECT_EQ(output.Take(), "narrow 2.5\n");
    AfxTrace(L"%c", L'x');
    AfxTrace("%c", 'y');
    EXPECT_EQ(output.Take(), "xy");
}

TEST(Diagnostics, Dumps_TakeEveryKindOfArgument)
{
    quor::test::DebugOutput output;
    afxDump << L"wide " << "narrow " << 5 << 6u << 7L << 2.5;
    EXPECT_EQ(output.Take(), "wide narrow 5672.5");
    afxDump << static_cast<const void*>(&output);
    char address[32] = "";
    std::snprintf(address, sizeof(address), "$%p", static_cast<const void*>(&output));
    EXPECT_EQ(_stricmp(output.Take().c_str(), address), 0);
    CPen pen;
    afxDump << &pen;
    EXPECT_NE(output.Take(), "");
    afxDump << static_cast<CObject*>(nullptr) << "\n";
    EXPECT_EQ(output.Take(), "NULL\n");
    EXPECT_EQ(0, afxDump.GetDepth());
}
