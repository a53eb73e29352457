// What a program writes for a debugger.
#pragma once

#include <windows.h>

#include <string>
#include <utility>

namespace quor::test
{

// Whether TRACE writes anything.
#ifdef _DEBUG
constexpr bool HasTraces = true;
#else
constexpr bool HasTraces = false;
#endif

// Keeps what this process writes for a debugger while the object lives: the platform tells debuggers by an
// exception, which a program can look at, too. One at a time.
class DebugOutput
{
public:
    DebugOutput() : m_handler(::AddVectoredExceptionHandler(1, &DebugOutput::OnException)) { current = this; }
    ~DebugOutput()
    {
        ::RemoveVectoredExceptionHandler(m_handler);
        current = nullptr;
    }
    DebugOutput(const DebugOutput&) = delete;
    DebugOutput& operator=(const DebugOutput&) = delete;

    std::string Take() { return std::exchange(m_text, {}); }

private:
    static LONG CALLBACK OnException(EXCEPTION_POINTERS* exception)
    {
        // The length with the zero at the end, and the text; wide texts come as narrow ones in the end.
        constexpr DWORD PrintException = 0x40010006;
        const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
        if (record.ExceptionCode == PrintException && current != nullptr &&
            record.ExceptionInformation[0] > 0)
            current->m_text.append(reinterpret_cast<const char*>(record.ExceptionInformation[1]),
                                   record.ExceptionInformation[0] - 1);
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static inline DebugOutput* current = nullptr;
    PVOID m_handler;
    std::string m_text;
};

} // namespace quor::test
