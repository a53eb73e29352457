// Reads message boxes while they are open and presses a button.
#pragma once

#include "tests/support/ThreadHook.h"

#include <windows.h>

#include <string>
#include <vector>

namespace quor::test
{

// What a message box showed.
struct ShownMessage
{
    std::wstring caption;
    std::wstring text;
    std::vector<int> buttons; // their ids, such as IDYES, IDNO
};

// Answers, for as long as it lives, the message boxes of this thread: each is read and its button pressed. A
// box that has no such button is answered with its first one. One probe at a time.
class MessageBoxProbe
{
public:
    explicit MessageBoxProbe(int button = IDOK);
    ~MessageBoxProbe();

    const std::vector<ShownMessage>& Shown() const { return m_shown; }

private:
    static LRESULT CALLBACK OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam);

    void Answer(HWND box);

    int m_button;
    std::vector<HWND> m_answered;
    std::vector<ShownMessage> m_shown;
    ThreadHook m_hook;
};

} // namespace quor::test
