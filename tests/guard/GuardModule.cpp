// Entry point and exported functions of QuorGuard.dll. It is loaded before the modules that it guards and
// unloaded after them, so it sees the memory of their globals come and go.
#include "Guard.h"
#include "GuardReport.h"

#include <cstdlib>

namespace
{

using namespace quor::guard;

bool reportLeaks;

std::size_t Setting(const char* name, std::size_t standard)
{
    char text[32];
    const DWORD length = GetEnvironmentVariableA(name, text, sizeof text);
    return length > 0 && length < sizeof text ? std::strtoull(text, nullptr, 0) : standard;
}

void Start()
{
    HeapOptions options;
    options.ownPagesLimit = Setting("QUOR_GUARD_LIMIT", options.ownPagesLimit);
    options.minimumAlignment = Setting("QUOR_GUARD_ALIGN", options.minimumAlignment);
    options.frames = Setting("QUOR_GUARD_FRAMES", options.frames);
    options.underflow = Setting("QUOR_GUARD_UNDER", 0) != 0;
    reportLeaks = Setting("QUOR_GUARD_LEAKS", 1) != 0;
    StartHeap(options);
    InstallFaultHandlers();
    PatchRuntime();
}

void ReportLeaksAtEnd()
{
    const std::size_t count = reportLeaks ? DescribeLeaksSince(0) : 0;
    if (count == 0)
        return;
    Say("\nGUARD: %zu leaked blocks; %zu bytes are live\n", count, LiveByteCount());
    EndProcess();
}

} // namespace

std::size_t QuorGuardMark()
{
    return BlockCount();
}

std::size_t QuorGuardLeaksSince(std::size_t mark)
{
    return DescribeLeaksSince(mark);
}

std::size_t QuorGuardLiveBlocks()
{
    return LiveBlockCount();
}

void QuorGuardIgnoreLeaks(bool ignore)
{
    IgnoreLeaks(ignore);
}

void QuorGuardFailAt(long n)
{
    FailAt(n);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_ATTACH)
        Start();
    else if (reason == DLL_PROCESS_DETACH && processEnds != nullptr)
        ReportLeaksAtEnd();
    return TRUE;
}
