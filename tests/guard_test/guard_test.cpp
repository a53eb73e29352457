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

std::string ReadAll(HANDLE file)
{
    std::string text;
    char part[1024];
    DWORD count = 0;
    SetFilePointer(file, 0, nullptr, FILE_BEGIN);
    while (ReadFile(file, part, sizeof part, &count, nullptr) && count > 0)
        text.append(part, count);
    return text;
}

// What a program writes goes to a file: a pipe would stay open as long as any process that it starts, such as
// that of the desktop.
HANDLE MakeOutputFile()
{
    char folder[MAX_PATH];
    char path[MAX_PATH];
    GetTempPathA(MAX_PATH, folder);
    GetTempFileNameA(folder, "out", 0, path);
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    return CreateFileA(path, GENERIC_READ | GENERIC_WRITE,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inheritable, CREATE_ALWAYS,
                       FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
}

std::string PathBesideThisProgram(const char* name)
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program = path;
    return program.substr(0, program.rfind('\\') + 1) + name;
}

Result RunProgram(const char* name, const std::string& argument)
{
    const HANDLE output = MakeOutputFile();
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = output;
    std::string command = "\"" + PathBesideThisProgram(name) + "\" " + argument;
    PROCESS_INFORMATION process{};
    const BOOL started = CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                        &startup, &process);
    Result result;
    if (started)
    {
        WaitForSingleObject(process.hProcess, INFINITE);
        result.report = ReadAll(output);
        GetExitCodeProcess(process.hProcess, &result.exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(output);
    return result;
}

Result RunVictim(const std::string& mistake)
{
    return RunProgram("guard_victim.exe", mistake);
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

// What the guard of the heap does not see, but the frame of all windowed test programs does.
const Case remains[] = {
    {"Pen", "pens +1"},         {"DeviceContext", "device contexts +1"},
    {"Menu", "menus +1"},       {"Window", "windows +1"},
    {"ImageList", "bitmaps +"}, {"AutomationText", "task blocks +1"},
};

class LeftBehind : public testing::TestWithParam<Case>
{
};

TEST_P(LeftBehind, FailsTheProgram)
{
    const Result result =
        RunProgram("leak_victim.exe", std::string("--gtest_filter=Leak.") + GetParam().mistake);
    EXPECT_EQ(result.exitCode, 1u);
    EXPECT_NE(result.report.find(GetParam().finding), std::string::npos) << result.report;
}

INSTANTIATE_TEST_SUITE_P(Guard, LeftBehind, testing::ValuesIn(remains), NameOfCase);

TEST(Guard, NothingLeftBehind_LetsTheProgramPass)
{
    const Result result = RunProgram("leak_victim.exe", "--gtest_filter=Leak.Nothing");
    EXPECT_EQ(result.exitCode, 0u) << result.report;
}

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
