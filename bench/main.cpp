// The benchmark program: runs the workloads whose names are given (all without arguments), prints the table
// and writes it to the file named by "--csv FILE". With "--growth" the workloads are those that compare two
// sizes of one thing. The exit code is 2 when a line misses its limit.
#include "Workloads.h"

#include <afxwin.h>

#include <cstdio>
#include <cstring>
#include <set>
#include <span>
#include <string>

namespace
{

struct Workload
{
    const char* name;
    void (*run)(bench::Report&);
};

// Memory comes first: later it would find what earlier workloads have left to be used again.
constexpr Workload Workloads[] = {
    {"memory", bench::RunMemory},     {"build", bench::RunBuild},       {"sort", bench::RunSort},
    {"columns", bench::RunColumns},   {"command", bench::RunCommands},  {"edit", bench::RunEdit},
    {"populate", bench::RunPopulate}, {"propgrid", bench::RunPropGrid}, {"repaint", bench::RunRepaint},
    {"scroll", bench::RunScroll},     {"select", bench::RunSelection},  {"treegrid", bench::RunTreeGrid},
    {"treemove", bench::RunTreeMove}, {"list", bench::RunList},         {"clipboard", bench::RunClipboard},
    {"undo", bench::RunUndo},         {"treeundo", bench::RunTreeUndo},
};

// Short ones, whose outcome does not depend on the machine.
constexpr Workload GrowthWorkloads[] = {
    {"rows", bench::RunRowGrowth},          {"trees", bench::RunTreeGrowth},
    {"scroll", bench::RunScrollGrowth},     {"list", bench::RunListGrowth},
    {"propgrid", bench::RunPropGridGrowth},
};

struct Arguments
{
    Arguments(int count, char** texts)
    {
        for (int i = 1; i < count; ++i)
        {
            if (std::strcmp(texts[i], "--csv") == 0 && i + 1 < count)
                csvPath = texts[++i];
            else if (std::strcmp(texts[i], "--growth") == 0)
                growth = true;
            else
                chosen.insert(texts[i]);
        }
    }
    bool IsChosen(const Workload& workload) const { return chosen.empty() || chosen.contains(workload.name); }

    std::string csvPath;
    bool growth = false;
    std::set<std::string> chosen;
};

} // namespace

int main(int argc, char** argv)
{
    AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), 0);
    const Arguments arguments(argc, argv);
    bench::Report report;
    for (const Workload& workload :
         arguments.growth ? std::span<const Workload>(GrowthWorkloads) : std::span<const Workload>(Workloads))
        if (arguments.IsChosen(workload))
            workload.run(report);
    const int misses = report.PrintMisses();

    if (!arguments.csvPath.empty() && !report.WriteCsv(arguments.csvPath))
    {
        std::fprintf(stderr, "cannot write %s\n", arguments.csvPath.c_str());
        return 1;
    }
    return misses > 0 ? 2 : 0;
}
