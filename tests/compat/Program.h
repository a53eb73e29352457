// Another program, which a test starts and uses from outside.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

// The longest wait for another process in milliseconds.
constexpr DWORD deadline = 30'000;

inline std::wstring TextOf(HWND window)
{
    wchar_t text[256] = L"";
    ::SendMessageW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
    return text;
}

// A running program; ended by force if a test leaves it running.
class Program
{
public:
    enum class Start
    {
        UntilIdle,
        AtOnce // for what a program shows before it waits for the user the first time
    };

    // Starts a program of the folder in which the test is.
    explicit Program(const std::wstring& name, const std::wstring& arguments = L"",
                     Start start = Start::UntilIdle)
    {
        wchar_t path[MAX_PATH] = L"";
        ::GetModuleFileNameW(NULL, path, MAX_PATH);
        std::wstring command(path);
        command = L"\"" + command.substr(0, command.rfind(L'\\') + 1) + name + L"\" " + arguments;
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        if (!::CreateProcessW(NULL, command.data(), NULL, NULL, FALSE, 0, NULL, NULL, &startup, &m_process))
            ADD_FAILURE() << "cannot be started, error " << ::GetLastError();
        else if (start == Start::UntilIdle)
            ::WaitForInputIdle(m_process.hProcess, deadline);
    }
    ~Program()
    {
        ::TerminateProcess(m_process.hProcess, 99);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Waits for a visible top-level window of the program whose title begins so. A program that ends shows
    // none.
    HWND Window(const std::wstring& title) const
    {
        HWND found = NULL;
        WaitUntil([&] { return (found = Find(title)) != NULL; });
        if (found == NULL)
            ADD_FAILURE() << (HasEnded() ? "the program has ended with code " : "no such window; state ")
                          << State();
        return found;
    }

    // Waits until the condition holds, or the program ends: false then, as after the longest wait. Of the
    // rest there is no event to wait for: hooks for the accessibility events of other processes hear nothing
    // under Wine when the focus moves there, a window goes or a text changes.
    bool WaitUntil(const std::function<bool()>& condition) const
    {
        constexpr DWORD interval = 5;
        const ULONGLONG end = ::GetTickCount64() + deadline;
        bool isOver = false;
        while (!condition())
        {
            if (isOver)
                return false;
            isOver = ::WaitForSingleObject(m_process.hProcess, interval) != WAIT_TIMEOUT ||
                     ::GetTickCount64() > end;
        }
        return true;
    }

    // Waits for the program's end.
    DWORD ExitCode() const
    {
        DWORD code = STILL_ACTIVE;
        ::WaitForSingleObject(m_process.hProcess, deadline);
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

private:
    struct Search
    {
        DWORD process;
        const std::wstring& title;
        HWND found;
    };

    DWORD State() const
    {
        DWORD code = STILL_ACTIVE;
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }
    bool HasEnded() const { return State() != STILL_ACTIVE; }

    HWND Find(const std::wstring& title) const
    {
        Search search = {m_process.dwProcessId, title, NULL};
        ::EnumWindows(
            [](HWND window, LPARAM parameter) -> BOOL {
                Search& wanted = *reinterpret_cast<Search*>(parameter);
                DWORD process = 0;
                ::GetWindowThreadProcessId(window, &process);
                if (process == wanted.process && ::IsWindowVisible(window) &&
                    TextOf(window).rfind(wanted.title, 0) == 0)
                    wanted.found = window;
                return wanted.found == NULL;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.found;
    }

    PROCESS_INFORMATION m_process = {};
};
