// Workload: scrolling by lines, pages and jumps, each step painted, compared with the list view.
#include "Subjects.h"
#include "Workloads.h"

namespace bench
{
namespace
{

struct Steps
{
    const char* name;
    UINT code;
    int number;
    // Of the list view's time.
    double limit;
};

template <class Subject> double StepMs(Subject& subject, HWND window, const Steps& steps)
{
    const auto scroll = [&] {
        for (int step = 0; step < steps.number; ++step)
        {
            SendMessage(window, WM_VSCROLL, steps.code, 0);
            UpdateWindow(window);
        }
        DrainMessages();
    };
    return ShortestMs(scroll, [&] { subject.ScrollToRow(0); }) / steps.number;
}

// To one place and another far from it, which is painted.
template <class Subject> double JumpMs(Subject& subject, long n)
{
    constexpr int Jumps = 20;
    return ShortestMs([&] {
               for (int i = 0; i < Jumps; ++i)
                   subject.ScrollToRow(i % 2 == 0 ? n / 2 : 0);
               DrainMessages();
           }) /
           Jumps;
}

void ScrollAgainstListView(Report& report, Host& host, long n)
{
    const Steps all[] = {{"scroll one line", SB_LINEDOWN, 200, 0.5},
                         {"scroll one page", SB_PAGEDOWN, 20, 1.1}};
    for (const Steps& steps : all)
    {
        double ours = 0;
        {
            GridSubject grid(&host);
            grid.AppendRowsAsOne(n);
            ours = StepMs(grid, grid.Grid().m_hWnd, steps);
        }
        ListViewSubject list(host);
        list.AppendRowsAsOne(n);
        const double peer = StepMs(list, list.List().m_hWnd, steps);
        report.Add({steps.name, n, ours, "list view", peer, steps.limit});
    }
    double ours = 0;
    {
        GridSubject grid(&host);
        grid.AppendRowsAsOne(n);
        ours = JumpMs(grid, n);
    }
    ListViewSubject list(host);
    list.AppendRowsAsOne(n);
    report.Add({"scroll to a far row", n, ours, "list view", JumpMs(list, n), 1.1});
}

double LineMs(Host& host, long rows)
{
    GridSubject grid(&host);
    grid.AppendRowsAsOne(rows);
    return StepMs(grid, grid.Grid().m_hWnd, {"", SB_LINEDOWN, 100, 0});
}

} // namespace

void RunScroll(Report& report)
{
    Host host;
    for (const long n : {1000L, 100000L})
        ScrollAgainstListView(report, host, n);
}

void RunScrollGrowth(Report& report)
{
    Host host;
    AddGrowth(report, "scroll one line", 1000, 20000, Growth::Constant,
              [&](long rows) { return LineMs(host, rows); });
}

} // namespace bench
