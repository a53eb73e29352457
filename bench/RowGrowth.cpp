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

double FillOneByOneMs(Host& host, long rows)
{
    GridSubject grid(&host);
    return TimeMs([&] { grid.AppendRows(rows); });
}

double InsertInFrontMs(Host& host, long rows)
{
    GridSubject grid(&host);
    return TimeMs([&] {
        for (long i = 0; i < rows; ++i)
            grid.Grid().InsertRow(0, nullptr);
    });
}

// In the opposite order.
double SortMs(Host& host, long rows)
{
    GridSubject grid(&host);
    grid.AppendRowsAsOne(rows);
    grid.Grid().AppendKey(0);
    return TimeMs([&] { grid.Grid().Arrange(false); });
}

double AppendColumnsMs(Host& host, long columns)
{
    GridSubject grid(&host);
    return TimeMs([&] {
        for (long i = 0; i < columns; ++i)
            grid.Grid().AppendCol(L"Column", 80);
    });
}

} // namespace

void RunRowGrowth(Report& report)
{
    Host host;
    AddGrowth(report, "fill in one update", FewRows, ManyRows, Growth::Linear,
              [&](long rows) { return FillMs(host, rows); });
    AddGrowth(report, "fill without an update block", FewRows, ManyRows, Growth::Linear,
              [&](long rows) { return FillOneByOneMs(host, rows); });
    AddGrowth(report, "insert rows in front", FewRows, ManyRows, Growth::Linear,
              [&](long rows) { return InsertInFrontMs(host, rows); });
    AddGrowth(report, "sort", FewRows, ManyRows, Growth::Linear,
              [&](long rows) { return SortMs(host, rows); });
    AddGrowth(report, "append columns", FewRows / 10, ManyRows / 10, Growth::Linear,
              [&](long columns) { return AppendColumnsMs(host, columns); });
    AddGrowth(report, "clear", FewRows, ManyRows, Growth::Linear,
              [&](long rows) { return ClearMs(host, rows); });
}

} // namespace bench
