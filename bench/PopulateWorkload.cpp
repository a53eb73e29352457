// Workload: filling the grid.
#include "Subjects.h"
#include "Workloads.h"

#include <memory>

namespace bench
{
namespace
{

void PopulateWithoutWindow(Report& report, long n)
{
    std::unique_ptr<GridSubject> grid;
    const double ours =
        MedianMs([&] { grid->AppendRows(n); }, [&] { grid = std::make_unique<GridSubject>(nullptr); });
    RawTable table;
    const double floor = MedianMs([&] { FillRawTable(table, n); }, [&] { table = RawTable(); });
    report.Add({"populate without window", n, ours, "vectors of wstring", floor});
}

void PopulateAsOne(Report& report, Host& host, long n)
{
    GridSubject grid(&host);
    const double ours = MedianMs([&] { grid.AppendRowsAsOne(n); }, [&] { grid.Empty(); });
    ListViewSubject list(host);
    const double peer = MedianMs([&] { list.AppendRowsAsOne(n); }, [&] { list.Empty(); });
    report.Add({"populate as one change", n, ours, "list view redraw off", peer});
}

// Both get the last 1000 of n rows one by one; the list view would take minutes for all of them.
void PopulateRowByRow(Report& report, Host& host, long n)
{
    constexpr long Timed = 1000;
    GridSubject grid(&host);
    const double ours = MedianMs([&] { grid.AppendRows(Timed); },
                                 [&] {
                                     grid.Empty();
                                     grid.AppendRowsAsOne(n - Timed);
                                     grid.Grid().UpdateWindow();
                                 });
    ListViewSubject list(host);
    const double peer = MedianMs([&] { list.AppendRows(Timed); },
                                 [&] {
                                     list.Empty();
                                     list.AppendRowsAsOne(n - Timed);
                                     list.List().UpdateWindow();
                                 });
    report.Add({"append the last 1000 rows one by one", n, ours, "list view redraw on", peer});
}

} // namespace

void RunPopulate(Report& report)
{
    Host host;
    for (long n : {1000L, 10000L, 100000L})
        PopulateWithoutWindow(report, n);
    for (long n : {1000L, 10000L, 100000L})
        PopulateAsOne(report, host, n);
    for (long n : {1000L, 10000L, 100000L})
        PopulateRowByRow(report, host, n);
}

} // namespace bench
