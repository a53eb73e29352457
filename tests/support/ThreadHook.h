// A Windows hook on the calling thread, which ends with the object.
#pragma once

#include <windows.h>

namespace quor::test
{

class ThreadHook
{
public:
    ThreadHook(int kind, HOOKPROC procedure)
        : m_hook(SetWindowsHookExW(kind, procedure, nullptr, GetCurrentThreadId()))
    {
    }
    ~ThreadHook() { UnhookWindowsHookEx(m_hook); }

    ThreadHook(const ThreadHook&) = delete;
    ThreadHook& operator=(const ThreadHook&) = delete;

private:
    HHOOK m_hook;
};

} // namespace quor::test
