// Workload: selecting rows one by one and all at once.
#include "Subjects.h"
#include "Workloads.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

namespace bench
{
namespace
{

std::vector<long> Ascending(long n)
{
    std::vector<long> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 0L);
    return order;
}

std::vector<long> Descending(long n)
{
    std::vector<long> order = Ascending(n);
    std::reverse(order.begin(), order.end());
    return order;
}

std::vector<long> Shuffled(long n)
{
    std::vector<long> order = Ascending(n);
    std::shuffle(order.begin(), order.end(), std::mt19937(2026));
    return order;
}

// As one change: selecting a row scrolls it into view, and 1e5 scrolled views are not what is measured here.
// Returns the milliseconds that the grid takes.
double SelectInOrder(Report& report, Host& host, const char* name, const std::vector<long>& order)
{
    const long n = static_cast<long>(order.size());
    GridSubject grid(&host);
    grid.AppendRowsAsOne(n);
    const double ours = MedianMs(
        [&] {
            QuorUiCtr::TGGridUpdate update(grid.Grid());
            for (const long row : order)
                grid.Grid().SelectRow(row, true);
        },
        [&] { grid.Grid().UnSelect(); });
    ListViewSubject list(host);
    list.AppendRowsAsOne(n);
    const double peer = MedianMs(
        [&] {
            list.List().SetRedraw(FALSE);
            for (const long row : order)
                list.List().SetItemState(static_cast<int>(row), LVIS_SELECTED, LVIS_SELECTED);
            list.List().SetRedraw(TRUE);
        },
        [&] { list.List().SetItemState(-1, 0, LVIS_SELECTED); }, 3);
    report.Add({name, n, ours, "list view redraw off", peer});
    return ours;
}

// How the cost of one row grows with their number: one grid ten times as large as the other.
void CompareSizes(Report& report, Host& host, const char* name, std::vector<long> (*makeOrder)(long))
{
    constexpr long Small = 10000;
    constexpr long Large = 100000;
    const double small = SelectInOrder(report, host, name, makeOrder(Small)) * 1000 / Small;
    const double large = SelectInOrder(report, host, name, makeOrder(Large)) * 1000 / Large;
    report.Add({std::string(name) + " (us a row)", Large, large, "10000 rows", small});
}

// Each row scrolls into view when it is selected; the list view is told to show it.
void SelectAndShow(Report& report, Host& host, long n)
{
    constexpr long Timed = 200;
    GridSubject grid(&host);
    grid.AppendRowsAsOne(n);
    const double ours = MedianMs(
        [&] {
            for (long row = 0; row < Timed; ++row)
            {
                grid.Grid().SelectRow(row, true);
                grid.Grid().UpdateWindow();
            }
        },
        [&] {
            grid.Grid().UnSelect();
            grid.ScrollToRow(0);
        });
    ListViewSubject list(host);
    list.AppendRowsAsOne(n);
    const double peer = MedianMs(
        [&] {
            for (int row = 0; row < Timed; ++row)
            {
                list.List().SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
                list.List().EnsureVisible(row, FALSE);
                list.List().UpdateWindow();
            }
        },
        [&] {
            list.List().SetItemState(-1, 0, LVIS_SELECTED);
            list.ScrollToRow(0);
        });
    report.Add({"select 200 rows, show and paint each", n, ours, "list view", peer});
}

void SelectAllAndRepaint(Report& report, Host& host, long n)
{
    GridSubject grid(&host);
    grid.AppendRowsAsOne(n);
    // What selecting cannot do without: an entry for each row, which is how selected rows are kept, and the
    // picture.
    QuorUiCtr::List<long> entries;
    const auto listAndRepaint = [&] {
        entries.Grow(n);
        long row = 0;
        for (long& entry : entries)
            entry = row++;
        grid.Grid().Invalidate(1);
        grid.Grid().UpdateWindow();
    };
    const std::vector<double> shortest =
        ShortestInTurns({{[&] { grid.Grid().SelectAll(), grid.Grid().UpdateWindow(); },
                          [&] { grid.Grid().UnSelect(), grid.Grid().UpdateWindow(); }},
                         {listAndRepaint, [&] { entries.Clear(), grid.Grid().SelectAll(); }}});
    ListViewSubject list(host);
    list.AppendRowsAsOne(n);
    const double peer = MedianMs(
        [&] {
            list.List().SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
            list.List().UpdateWindow();
        },
        [&] { list.List().SetItemState(-1, 0, LVIS_SELECTED); });
    report.Add({"select all and repaint", n, shortest[0], "list view", peer});
    report.Add({"select all and repaint", n, shortest[0], "entries, repaint", shortest[1], 1.2});
}

void UnselectAll(Report& report, Host& host, long n)
{
    GridSubject grid(&host);
    grid.AppendRowsAsOne(n);
    const double ours = MedianMs(
        [&] {
            grid.Grid().UnSelect();
            grid.Grid().UpdateWindow();
        },
        [&] {
            grid.Grid().SelectAll();
            grid.Grid().UpdateWindow();
        });
    ListViewSubject list(host);
    list.AppendRowsAsOne(n);
    const double peer = MedianMs(
        [&] {
            list.List().SetItemState(-1, 0, LVIS_SELECTED);
            list.List().UpdateWindow();
        },
        [&] { list.List().SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED); });
    report.Add({"unselect all and repaint", n, ours, "list view", peer});
}

// All rows selected against as many as the view shows.
void RepaintSelected(Report& report, Host& host, long n)
{
    const auto repaint = [](GridSubject& grid) {
        return MedianMs(
                   [&] {
                       for (int i = 0; i < 40; ++i)
                           grid.InvalidateAndPaint();
                   },
                   {}, 9) /
               40;
    };
    GridSubject grid(&host);
    grid.AppendRowsAsOne(n);
    {
        QuorUiCtr::TGGridUpdate update(grid.Grid());
        for (long row = 0; row <= ViewHeight / grid.Grid().GetRowHeight(); ++row)
            grid.Grid().SelectRow(row, true);
    }
    grid.ScrollToRow(0);
    const double screenful = repaint(grid);
    grid.Grid().SelectAll();
    const double all = repaint(grid);
    report.Add({"repaint all rows selected", n, all, "a screenful selected", screenful});
}

} // namespace

void RunSelection(Report& report)
{
    Host host;
    CompareSizes(report, host, "select one by one ascending", Ascending);
    CompareSizes(report, host, "select one by one descending", Descending);
    CompareSizes(report, host, "select one by one in random order", Shuffled);
    SelectAndShow(report, host, 100000);
    SelectAllAndRepaint(report, host, 100000);
    UnselectAll(report, host, 100000);
    RepaintSelected(report, host, 100000);
}

} // namespace bench
