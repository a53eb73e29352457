// What a child process tells the process that watches it.
#pragma once

#include <windows.h>

namespace quor::fuzz
{

// The exit code of a child that found something wrong.
constexpr int FailureExitCode = 3;

// Lies in memory that both processes see.
struct Progress
{
    volatile LONG step;    // the step that is being done; -1 before the first
    volatile LONG done;    // how many steps have been done
    volatile LONG digest;  // of all states, to compare two runs
    volatile LONG handled; // how many messages and calls there were
};

// The memory under that name, made when it is not there; null when that fails.
Progress* OpenProgress(const wchar_t* name);

} // namespace quor::fuzz
