// The benchmark program: runs the workloads whose names are given (all without arguments), prints the table
// and writes it to the file named by "--csv FILE".
#include "Workloads.h"

#include <afxwin.h>

#include <cstdio>
#include <cstring>
#include <set>
#include <string>

namespace
{

struct Workload
{
    const char* name;
    void (*run)(bench::Report&);
};

constexpr Workload Workloads[] = {
    {"command", bench::RunCommands},  {"edit", bench::RunEdit},         {"memory", bench::RunMemory},
    {"populate", bench::RunPopulate}, {"propgrid", bench::RunPropGrid}, {"repaint", bench::RunRepaint},
    {"scroll", bench::RunScroll},     {"select", bench::RunSelection},  {"treegrid", bench::RunTreeGrid},
    {"treemove", bench::RunTreeMove},
};

} // namespace

int main(int argc, char** argv)
{
    AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), 0);
    std::string csvPath;
    std::set<std::string> chosen;
    for (int i = 1; i < argc; ++i)
    {
        if (std::strcmp(argv[i], "--csv") == 0 && i + 1 < argc)
            csvPath = argv[++i];
        else
            chosen.insert(argv[i]);
    }

    bench::Report report;
    for (const Workload& workload : Workloads)
        if (chosen.empty() || chosen.count(workload.name))
            workload.run(report);

    if (!csvPath.empty() && !report.WriteCsv(csvPath))
    {
        std::fprintf(stderr, "cannot write %s\n", csvPath.c_str());
        return 1;
    }
    return 0;
}
