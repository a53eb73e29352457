// Composes the guard's reports.
#include "GuardReport.h"
#include "Guard.h"

namespace quor::guard
{

namespace
{

constexpr std::size_t MaxDescribedLeaks = 10;

} // namespace

void EndProcess()
{
    for (;;)
        TerminateProcess(GetCurrentProcess(), GuardExitCode);
}

void Describe(const Block& block, const void* address)
{
    const auto offset = static_cast<const char*>(address) - block.user;
    Say("  %lld bytes from the start of a %s %zu-byte block (number %zu, thread %lu)\n",
        static_cast<long long>(offset), block.live ? "live" : "DELETED", block.size,
        static_cast<std::size_t>(&block - &BlockAt(0)), block.thread);
    Print("allocated at:", block.allocatedAt);
    if (!block.live)
        Print("deleted at:", block.deletedAt);
}

void ReportAndEnd(const char* what, const void* address, const Block* block, const CONTEXT* context)
{
    StackTrace trace;
    if (context != nullptr)
        CaptureFrom(trace, *context);
    else
        CaptureHere(trace, MaxFrames, 1);
    Say("\nGUARD: %s %p\n", what, address);
    Print("at:", trace);
    if (block != nullptr)
        Describe(*block, address);
    EndProcess();
}

std::size_t DescribeLeaksSince(std::size_t mark)
{
    std::size_t count = 0;
    for (std::size_t i = mark; i < BlockCount(); ++i)
    {
        const Block& block = BlockAt(i);
        if (!block.live || block.mayStayBehind || count++ >= MaxDescribedLeaks)
            continue;
        Say("\nGUARD: leak of %zu bytes at %p\n", block.size, static_cast<void*>(block.user));
        Describe(block, block.user);
    }
    return count;
}

} // namespace quor::guard
