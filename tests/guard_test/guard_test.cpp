// Tests of the guard allocator and of the other checks of the checked build: each case runs the victim
// program, which commits one mistake, and looks at its exit code and report.
#include "tests/guard/Guard.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace
{

struct Result
{
    DWORD exitCode = 0;
    std::string report;
};

std::string ReadAll(HANDLE pipe)
{
    std::string text;
    char part[1024];
    DWORD count = 0;
    while (ReadFile(pipe, part, sizeof part, &count, nullptr) && count > 0)
        text.append(part, count);
    return text;
}

std::string VictimPath()
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program = path;
    return program.substr(0, program.rfind('\\') + 1) + "guard_victim.exe";
}

Result RunVictim(const std::string& mistake)
{
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    CreatePipe(&readEnd, &writeEnd, &inheritable, 0);
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = writeEnd;
    std::string command = "\"" + VictimPath() + "\" " + mistake;
    PROCESS_INFORMATION process{};
    const BOOL started = CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                        &startup, &process);
    CloseHandle(writeEnd);
    Result result;
    if (started)
    {
        result.report = ReadAll(readEnd);
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &result.exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(readEnd);
    return result;
}

struct Case
{
    const char* mistake;
    const char* finding;
};

class FoundMistake : public testing::TestWithParam<Case>
{
};

TEST_P(FoundMistake, IsReportedAndEndsTheProcess)
{
    const Result result = RunVictim(GetParam().mistake);
    EXPECT_EQ(result.exitCode, static_cast<DWORD>(GuardExitCode));
    EXPECT_NE(result.report.find(GetParam().finding), std::string::npos) << result.report;
}

const Case cases[] = {
    {"read-past-end", "heap out of bounds, READ"},
    {"write-past-end", "heap out of bounds, WRITE"},
    {"write-past-end-by-one-byte", "heap out of bounds, WRITE"},
    {"write-before-start", "bytes BEFORE the block were overwritten"},
    {"read-after-delete", "use after delete, READ"},
    {"write-after-delete", "use after delete, WRITE"},
    {"delete-twice", "double delete"},
    {"delete-mismatched", "mismatched"},
    {"delete-inside", "new never returned"},
    {"delete-wrong-size", "wrong size"},
    {"leak", "1 leaked blocks"},
    {"leak-aligned", "1 leaked blocks"},
    {"leak-in-dll", "1 leaked blocks"},
    {"index-vector", "abort()"},
    {"dereference-end", "abort()"},
    {"overflow-signed", "undefined behaviour trapped"},
    {"shift-too-far", "undefined behaviour trapped"},
    {"divide-by-zero", "undefined behaviour trapped"},
    {"overwrite-stack", "undefined behaviour trapped, or stack overwritten"},
    {"call-nothing", "access violation"},
    {"throw", "abort()"},
    {"overflow-packed-block", "bytes AFTER the block were overwritten"},
};

std::string NameOfCase(const testing::TestParamInfo<Case>& info)
{
    std::string name = info.param.mistake;
    for (char& character : name)
        if (character == '-')
            character = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Guard, FoundMistake, testing::ValuesIn(cases), NameOfCase);

TEST(Guard, ReadBeforeStart_WithUnderflowSetting_IsReported)
{
    SetEnvironmentVariableA("QUOR_GUARD_UNDER", "1");
    const Result result = RunVictim("read-before-start");
    SetEnvironmentVariableA("QUOR_GUARD_UNDER", nullptr);
    EXPECT_EQ(result.exitCode, static_cast<DWORD>(GuardExitCode));
    EXPECT_NE(result.report.find("heap out of bounds, READ"), std::string::npos) << result.report;
}

TEST(Guard, Leak_WithReportSwitchedOff_IsIgnored)
{
    SetEnvironmentVariableA("QUOR_GUARD_LEAKS", "0");
    const Result result = RunVictim("leak");
    SetEnvironmentVariableA("QUOR_GUARD_LEAKS", nullptr);
    EXPECT_EQ(result.exitCode, 0u);
}

TEST(Guard, Report_NamesTheModuleOfTheMistake)
{
    const std::string report = RunVictim("read-past-end").report;
    EXPECT_NE(report.find("guard_victim_dll.dll+0x"), std::string::npos) << report;
    EXPECT_NE(report.find("12 bytes from the start of a live 12-byte block"), std::string::npos) << report;
}

TEST(Guard, CorrectPrograms_EndWithoutAReport)
{
    for (const char* name : {"none", "fill-registry", "cross-boundary", "fail-allocation", "many-blocks"})
    {
        const Result result = RunVictim(name);
        EXPECT_EQ(result.exitCode, 0u) << name;
        EXPECT_EQ(result.report, "") << name;
    }
}

TEST(Guard, Marks_CountWhatIsLiveSince)
{
    const Result result = RunVictim("count-leaks");
    EXPECT_EQ(result.exitCode, 0u);
    EXPECT_EQ(result.report.find("counted"), std::string::npos) << result.report;
    EXPECT_NE(result.report.find("GUARD: leak of 4 bytes"), std::string::npos) << result.report;
}

} // namespace
