// Growth: what is done with the rows of a grid, at two sizes.
#include "Subjects.h"
#include "Workloads.h"

namespace bench
{
namespace
{

constexpr long FewRows = 2000;
constexpr long ManyRows = 20000;

double FillMs(Host& host, long rows)
{
    GridSubject grid(&host);
    return TimeMs([&] { grid.AppendRowsAsOne(rows); });
}

double ClearMs(Host& host, long rows)
{
    GridSubject grid(&host);
    grid.AppendRowsAsOne(rows);
    return TimeMs([&] { grid.Empty(); });
}

} // namespace

void RunRowGrowth(Report& report)
{
    Host host;
    AddGrowth(report, "fill in one update", FewRows, ManyRows, Growth::Linear,
              [&](long rows) { return FillMs(host, rows); });
    AddGrowth(report, "clear", FewRows, ManyRows, Growth::Linear,
              [&](long rows) { return ClearMs(host, rows); });
}

} // namespace bench
