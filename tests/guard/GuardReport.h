// What the guard says about a block, and how it ends the process.
#pragma once

#include "GuardHeap.h"

namespace quor::guard
{

// Says where the address lies in the block and who allocated and deleted it.
void Describe(const Block& block, const void* address);

// Reports and ends the process with GuardExitCode. The block may be null (unknown); without a processor state
// the stack is that of the caller.
[[noreturn]] void ReportAndEnd(const char* what, const void* address, const Block* block,
                               const CONTEXT* context = nullptr);

// Describes at most ten of the live blocks made since the mark; returns how many there are.
std::size_t DescribeLeaksSince(std::size_t mark);

// Turns faults in guarded memory, other unhandled exceptions and abort() into reports.
void InstallFaultHandlers();

// Makes libstdc++-6.dll, through which all modules allocate, use the guard.
void PatchRuntime();

[[noreturn]] void EndProcess();

} // namespace quor::guard
