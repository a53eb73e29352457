// The windows that a modal dialog blocks.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// Keeps the windows that a modal dialog blocks disabled until the end of the scope. Windows that are disabled
// already belong to an outer dialog and are left alone.
class DisabledWindows
{
public:
    DisabledWindows(HWND owner, HWND topLevel) : m_owner(Disable(owner)), m_topLevel(Disable(topLevel)) {}
    ~DisabledWindows() { Enable(); }
    DisabledWindows(const DisabledWindows&) = delete;
    DisabledWindows& operator=(const DisabledWindows&) = delete;

    void Enable()
    {
        for (HWND* window : {&m_owner, &m_topLevel})
        {
            if (*window != nullptr)
                ::EnableWindow(*window, TRUE);
            *window = nullptr;
        }
    }

private:
    static HWND Disable(HWND window)
    {
        if (window == nullptr || window == ::GetDesktopWindow() || !::IsWindowEnabled(window))
            return nullptr;
        ::EnableWindow(window, FALSE);
        return window;
    }

    HWND m_owner;
    HWND m_topLevel;
};

} // namespace quorfx
