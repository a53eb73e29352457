// Timing, medians and the table of results.
#include "Harness.h"

#include <algorithm>
#include <cstdio>

#include <afxwin.h>

#include <psapi.h>

namespace bench
{

double TimeMs(const std::function<void()>& work)
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER begin;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    work();
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - begin.QuadPart) * 1000.0 /
           static_cast<double>(frequency.QuadPart);
}

double MedianMs(const std::function<void()>& work, const std::function<void()>& prepare, int runs)
{
    std::vector<double> timings;
    for (int run = 0; run < runs; ++run)
    {
        if (prepare)
            prepare();
        timings.push_back(TimeMs(work));
    }
    std::sort(timings.begin(), timings.end());
    return timings[timings.size() / 2];
}

Report::Report()
{
    std::printf("%-44s %8s %12s  %-24s %12s %8s\n", "workload", "n", "ours", "peer", "peer's", "ratio");
}

void Report::Add(const Result& result)
{
    results.push_back(result);
    std::printf("%-44s %8ld %12.4f  %-24s %12.4f %8.3f\n", result.workload.c_str(), result.n, result.ours,
                result.peer.c_str(), result.peerFigure, result.Ratio());
    std::fflush(stdout);
}

bool Report::WriteCsv(const std::string& path) const
{
    std::FILE* file = std::fopen(path.c_str(), "w");
    if (!file)
        return false;
    std::fprintf(file, "workload,n,ours_ms,peer,peer_ms,ratio\n");
    for (const Result& result : results)
        std::fprintf(file, "%s,%ld,%.4f,%s,%.4f,%.4f\n", result.workload.c_str(), result.n, result.ours,
                     result.peer.c_str(), result.peerFigure, result.Ratio());
    return std::fclose(file) == 0;
}

double WorkingSetBytes()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof(counters);
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.WorkingSetSize);
}

void DrainMessages()
{
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

} // namespace bench
