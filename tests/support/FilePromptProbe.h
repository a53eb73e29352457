// Answers the system's dialog that asks for the name of a file, as a user does.
#pragma once

#include "tests/support/ThreadHook.h"

#include <windows.h>

#include <functional>
#include <set>
#include <string>

namespace quor::test
{

// For as long as it lives, the next dialog of this thread is read as soon as it handles messages; then
// `answer` is called with its window. One probe at a time.
class FilePromptProbe
{
public:
    explicit FilePromptProbe(std::function<void(HWND)> answer);
    ~FilePromptProbe();

    bool Opened() const { return m_dialog != nullptr; }
    const std::wstring& Title() const { return m_title; }
    const std::wstring& ProposedName() const { return m_name; }
    const std::wstring& Filters() const { return m_filters; } // the names, each followed by "|"

    // What answers do: take a name, or give up.
    static void Take(HWND dialog, const wchar_t* name);
    static void Cancel(HWND dialog);

private:
    static LRESULT CALLBACK OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam);
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);

    void Read();

    std::function<void(HWND)> m_answer;
    HWND m_dialog = nullptr;
    UINT_PTR m_timer = 0;
    bool m_isAnswered = false;
    std::wstring m_title;
    std::wstring m_name;
    std::wstring m_filters;
    std::set<HACCEL> m_tablesBefore;
    ThreadHook m_hook;
};

} // namespace quor::test
