// Workload: selecting rows one by one and all at once.
#include "Subjects.h"
#include "Workloads.h"

#include <algorithm>
#include <numeric>
#include <random>

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
void SelectInOrder(Report& report, Host& host, const char* name, const std::vector<long>& order)
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
}

void SelectAllAndRepaint(Report& report, Host& host, long n)
{
    GridSubject grid(&host);
    grid.AppendRowsAsOne(n);
    const double ours = MedianMs(
        [&] {
            grid.Grid().SelectAll();
            grid.Grid().UpdateWindow();
        },
        [&] { grid.Grid().UnSelect(); });
    ListViewSubject list(host);
    list.AppendRowsAsOne(n);
    const double peer = MedianMs(
        [&] {
            list.List().SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
            list.List().UpdateWindow();
        },
        [&] { list.List().SetItemState(-1, 0, LVIS_SELECTED); });
    report.Add({"select all and repaint", n, ours, "list view", peer});
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
    for (long n : {10000L, 100000L})
    {
        SelectInOrder(report, host, "select one by one ascending", Ascending(n));
        SelectInOrder(report, host, "select one by one descending", Descending(n));
        SelectInOrder(report, host, "select one by one in random order", Shuffled(n));
    }
    SelectAllAndRepaint(report, host, 100000);
    UnselectAll(report, host, 100000);
    RepaintSelected(report, host, 100000);
}

} // namespace bench
