// Stack traces for the guard's reports, and output that works inside an exception handler.
#pragma once

#include <windows.h>

#include <cstddef>

namespace quor::guard
{

constexpr std::size_t MaxFrames = 12;

// Return addresses from the innermost outwards; ends at the first null.
struct StackTrace
{
    void* frames[MaxFrames];
};

// Fills the trace with at most depth frames of the calling thread, leaving out the innermost skip ones.
void CaptureHere(StackTrace& trace, std::size_t depth, std::size_t skip);

// Fills the trace from a processor state, as an exception handler gets it.
void CaptureFrom(StackTrace& trace, const CONTEXT& context);

// Writes the trace to stderr, one "module+0xoffset" per line.
void Print(const char* title, const StackTrace& trace);

// printf to stderr without allocating.
__attribute__((format(gnu_printf, 1, 2))) void Say(const char* format, ...);

} // namespace quor::guard
