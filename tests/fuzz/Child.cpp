// Starts this program again and watches it: no step may take longer than the limit.
#include "tests/fuzz/Child.h"
#include "tests/fuzz/Progress.h"
#include "tests/fuzz/Signature.h"

#include <windows.h>

#include <cstdio>
#include <cstring>

namespace quor::fuzz
{

namespace
{

// A step takes less than a millisecond; starting a process on a busy machine may take a while.
constexpr DWORD MillisecondsForStep = 60000;
constexpr DWORD MillisecondsBetweenLooks = 500;

std::wstring Wide(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}

std::wstring CommandLineFor(const Options& options, const std::wstring& name)
{
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring line = L"\"" + std::wstring(path) + L"\" --child --progress " + name + L" --control " +
                        Wide(options.controls.front()) + L" --seed " + std::to_wstring(options.seed) +
                        L" --steps " + std::to_wstring(options.steps);
    if (options.checksEach)
        line += L" --check-each";
    if (options.bare)
        line += L" --bare";
    if (options.talks)
        line += L" --talk";
    return line;
}

// Long lists of steps do not fit into a command line.
std::wstring WriteSteps(const Options& options, const std::wstring& folder)
{
    const std::wstring path = folder + L"fuzz-steps-" + std::to_wstring(GetCurrentProcessId()) + L".txt";
    if (std::FILE* file = _wfopen(path.c_str(), L"wb"))
    {
        const std::string text = Text(options.kept);
        std::fwrite(text.data(), 1, text.size(), file);
        std::fclose(file);
    }
    return path;
}

std::string ReadFile(const std::wstring& path)
{
    std::string text;
    if (std::FILE* file = _wfopen(path.c_str(), L"rb"))
    {
        char buffer[4096];
        for (std::size_t size = 0; (size = std::fread(buffer, 1, sizeof buffer, file)) > 0;)
            text.append(buffer, size);
        std::fclose(file);
    }
    return text;
}

std::wstring TemporaryFolder()
{
    wchar_t folder[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, folder);
    return folder;
}

HANDLE OpenOutput(const std::wstring& path)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// Records of who made a block take long, and are wanted when a fault is looked at only.
void ChooseRecords(const Options& options)
{
    SetEnvironmentVariableW(L"QUOR_GUARD_FRAMES", options.checksEach ? nullptr : L"0");
}

bool Start(std::wstring line, HANDLE output, PROCESS_INFORMATION& process)
{
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output;
    start.hStdError = output;
    return CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                          &process) != FALSE;
}

// Returns false when the process had to be ended because it did not get on.
bool WaitFor(HANDLE process, const Progress& progress)
{
    LONG seen = -2;
    for (DWORD waited = 0; WaitForSingleObject(process, MillisecondsBetweenLooks) == WAIT_TIMEOUT;)
    {
        waited = progress.done == seen ? waited + MillisecondsBetweenLooks : 0;
        seen = progress.done;
        if (waited >= MillisecondsForStep)
        {
            TerminateProcess(process, 1);
            WaitForSingleObject(process, INFINITE);
            return false;
        }
    }
    return true;
}

} // namespace

Outcome RunChild(const Options& options)
{
    const std::wstring name = L"QuorFuzz" + std::to_wstring(GetCurrentProcessId());
    Progress& progress = *OpenProgress(name.c_str());
    progress.step = -1;
    progress.done = 0;
    progress.digest = 0;

    const std::wstring folder = TemporaryFolder();
    const std::wstring outputPath =
        folder + L"fuzz-output-" + std::to_wstring(GetCurrentProcessId()) + L".txt";
    std::wstring line = CommandLineFor(options, name);
    if (!options.kept.empty())
        line += L" --only-in \"" + WriteSteps(options, folder) + L"\"";

    Outcome outcome;
    ChooseRecords(options);
    const HANDLE output = OpenOutput(outputPath);
    PROCESS_INFORMATION process = {};
    if (!Start(line, output, process))
    {
        outcome.failed = true;
        outcome.signature = "the process does not start";
        CloseHandle(output);
        return outcome;
    }
    const bool hung = !WaitFor(process.hProcess, progress);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    CloseHandle(output);
    outcome.output = ReadFile(outputPath);
    outcome.failed = hung || code != 0;
    outcome.step = progress.step;
    outcome.done = progress.done;
    outcome.digest = static_cast<unsigned long>(progress.digest);
    if (outcome.failed)
        outcome.signature = hung ? "a hang" : SignatureOf(outcome.output, code);
    return outcome;
}

} // namespace quor::fuzz
