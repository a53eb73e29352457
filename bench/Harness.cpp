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

namespace
{

std::vector<double> SortedTimings(const std::function<void()>& work, const std::function<void()>& prepare,
                                  int runs)
{
    std::vector<double> timings;
    for (int run = 0; run < runs; ++run)
    {
        if (prepare)
            prepare();
        timings.push_back(TimeMs(work));
    }
    std::sort(timings.begin(), timings.end());
    return timings;
}

std::string LimitText(const Result& result)
{
    if (result.limit <= 0)
        return "";
    char text[32];
    std::snprintf(text, sizeof(text), "%.2f%s", result.limit, result.IsMissed() ? " MISSED" : "");
    return text;
}

} // namespace

double MedianMs(const std::function<void()>& work, const std::function<void()>& prepare, int runs)
{
    const std::vector<double> timings = SortedTimings(work, prepare, runs);
    return timings[timings.size() / 2];
}

double ShortestMs(const std::function<void()>& work, const std::function<void()>& prepare, int runs)
{
    return SortedTimings(work, prepare, runs).front();
}

std::vector<double> ShortestInTurns(const std::vector<Timed>& all, int runs)
{
    std::vector<double> shortest(all.size());
    for (int run = 0; run < runs; ++run)
        for (size_t i = 0; i < all.size(); ++i)
        {
            const double timeMs = ShortestMs(all[i].work, all[i].prepare, 1);
            shortest[i] = run == 0 ? timeMs : (std::min)(shortest[i], timeMs);
        }
    return shortest;
}

Report::Report()
{
    std::printf("%-44s %8s %12s  %-24s %12s %8s  %s\n", "workload", "n", "ours", "peer", "peer's", "ratio",
                "limit");
}

void Report::Add(const Result& result)
{
    results.push_back(result);
    std::printf("%-44s %8ld %12.4f  %-24s %12.4f %8.3f  %s\n", result.workload.c_str(), result.n, result.ours,
                result.peer.c_str(), result.peerFigure, result.Ratio(), LimitText(result).c_str());
    std::fflush(stdout);
}

bool Report::WriteCsv(const std::string& path) const
{
    std::FILE* file = std::fopen(path.c_str(), "w");
    if (!file)
        return false;
    std::fprintf(file, "workload,n,ours_ms,peer,peer_ms,ratio,limit\n");
    for (const Result& result : results)
        std::fprintf(file, "%s,%ld,%.4f,%s,%.4f,%.4f,%.4f\n", result.workload.c_str(), result.n, result.ours,
                     result.peer.c_str(), result.peerFigure, result.Ratio(), result.limit);
    return std::fclose(file) == 0;
}

int Report::PrintMisses() const
{
    int misses = 0;
    for (const Result& result : results)
        if (result.IsMissed())
        {
            ++misses;
            std::printf("limit missed: %s, %ld: %.3f of %s, limit %.2f\n", result.workload.c_str(), result.n,
                        result.Ratio(), result.peer.c_str(), result.limit);
        }
    return misses;
}

void AddGrowth(Report& report, const std::string& workload, long small, long large, Growth growth,
               const std::function<double(long)>& timeMs, double limit)
{
    double atSmall = timeMs(small);
    double atLarge = timeMs(large);
    for (int run = 1; run < 3; ++run)
    {
        atSmall = (std::min)(atSmall, timeMs(small));
        atLarge = (std::min)(atLarge, timeMs(large));
    }
    const double factor =
        growth == Growth::Linear ? static_cast<double>(large) / static_cast<double>(small) : 1;
    const std::string peer = (growth == Growth::Linear ? "linear from " : "as for ") + std::to_string(small);
    report.Add({workload, large, atLarge, peer, atSmall * factor, limit});
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
