// Workloads: filling, emptying and sorting the rows of a shown grid, against the bare data: nested vectors of
// strings. All figures are the shortest of several runs, because they have limits.
#include "Subjects.h"
#include "Workloads.h"

#include "grid/extras/TGHeaderSort.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace bench
{
namespace
{

constexpr long Inserted = 10000;

// Few rows cost the layout of the window, which the bare data has not.
double LimitFor(long rows, double limit)
{
    return rows >= 100000 ? limit : 0;
}

void FillBothWays(Report& report, Host& host, long rows)
{
    GridSubject grid(&host);
    RawTable table;
    const auto empty = [&] { grid.Empty(), table = RawTable(); };
    const std::vector<double> shortest = ShortestInTurns({{[&] { grid.AppendRowsAsOne(rows); }, empty},
                                                          {[&] { grid.AppendRows(rows); }, empty},
                                                          {[&] { FillRawTable(table, rows); }, empty}},
                                                         3);
    report.Add({"fill in one update", rows, shortest[0], "nested vectors", shortest[2], LimitFor(rows, 1)});
    report.Add({"fill without an update block", rows, shortest[1], "in one update", shortest[0], 1.5});
}

void InsertInFront(Report& report, Host& host)
{
    GridSubject grid(&host);
    RawTable table;
    const auto insert = [&] {
        for (long i = 0; i < Inserted; ++i)
        {
            grid.Grid().InsertRow(0, nullptr);
            grid.SetTexts(grid.Grid().GetRow(0), i);
        }
    };
    const auto insertAsOne = [&] {
        const QuorUiCtr::TGGridUpdate update(grid.Grid());
        insert();
    };
    const auto insertBare = [&] {
        for (long i = 0; i < Inserted; ++i)
            table.emplace(table.begin())->assign(ColumnCount, CellText(i));
    };
    const auto empty = [&] { grid.Empty(), table = RawTable(); };
    const std::vector<double> shortest =
        ShortestInTurns({{insertAsOne, empty}, {insert, empty}, {insertBare, empty}}, 3);
    report.Add(
        {"insert rows in front, in one update", Inserted, shortest[0], "nested vectors", shortest[2], 1});
    report.Add(
        {"insert rows in front without one", Inserted, shortest[1], "in one update", shortest[0], 1.5});
}

void ClearRows(Report& report, Host& host, long rows)
{
    GridSubject grid(&host);
    RawTable table;
    const auto fill = [&] { grid.AppendRowsAsOne(rows), DrainMessages(); };
    const std::vector<double> shortest =
        ShortestInTurns({{[&] { grid.Grid().Clear(); }, fill},
                         {[&] { table = RawTable(); }, [&] { FillRawTable(table, rows); }}});
    report.Add({"clear", rows, shortest[0], "nested vectors", shortest[1], 1});
}

// The same random texts in both.
class SortedTexts
{
public:
    SortedTexts(GridSubject& sortedGrid, long rows) : grid(sortedGrid), numbers(static_cast<size_t>(rows))
    {
        std::iota(numbers.begin(), numbers.end(), 0L);
        std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
        grid.AppendRowsAsOne(rows);
        FillRawTable(table, rows);
        grid.Grid().AppendKey(0);
        order.resize(numbers.size());
    }

    void Shuffle()
    {
        auto number = numbers.begin();
        for (auto& row : table)
            row[0] = CellText(*number++);
        number = numbers.begin();
        for (grid.Grid().MoveToFirst(); !grid.Grid().IsOut(); grid.Grid().MoveToNext())
            grid.Grid().CurRow()[0].SetText(CellText(*number++));
    }
    // Texts that are numbers of up to six digits, in another order.
    void ShuffleNumbers()
    {
        std::shuffle(numbers.begin(), numbers.end(), random);
        auto number = numbers.begin();
        for (grid.Grid().MoveToFirst(); !grid.Grid().IsOut(); grid.Grid().MoveToNext())
            grid.Grid().CurRow()[0].SetText(std::to_wstring(*number++).c_str());
    }
    void SortIndices()
    {
        std::iota(order.begin(), order.end(), size_t{0});
        std::stable_sort(order.begin(), order.end(),
                         [this](size_t first, size_t second) { return table[first][0] < table[second][0]; });
    }
    // What sorting has to find out when the rows are in order.
    bool IsSorted() const
    {
        return std::is_sorted(order.begin(), order.end(), [this](size_t first, size_t second) {
            return table[first][0] < table[second][0];
        });
    }

private:
    GridSubject& grid;
    std::vector<long> numbers;
    RawTable table;
    std::vector<size_t> order;
    std::mt19937 random{7};
};

void SortRows(Report& report, Host& host, long rows)
{
    GridSubject grid(&host);
    SortedTexts texts(grid, rows);
    const auto shuffle = [&] { texts.Shuffle(); };
    const auto arrange = [&] { grid.Grid().Arrange(true); };
    const std::vector<double> random =
        ShortestInTurns({{arrange, shuffle}, {[&] { texts.SortIndices(); }, shuffle}}, 3);
    bool isSorted = true;
    arrange();
    const std::vector<double> again =
        ShortestInTurns({{arrange, {}}, {[&] { isSorted = isSorted && texts.IsSorted(); }, {}}});
    report.Add(
        {"sort random texts", rows, random[0], "index sort of the texts", random[1], LimitFor(rows, 0.5)});
    report.Add({"sort again", rows, again[0], isSorted ? "check in that order" : "NOT SORTED", again[1],
                LimitFor(rows, 1.2)});
}

// As a click on the header sorts numbers, against the grid's own sorting of the same texts.
void SortNumbers(Report& report, Host& host, long rows)
{
    double ordinal = 0;
    double numbers = 0;
    {
        GridSubject grid(&host);
        SortedTexts texts(grid, rows);
        ordinal = ShortestMs([&] { grid.Grid().Arrange(true); }, [&] { texts.ShuffleNumbers(); });
    }
    {
        GridSubject grid(&host);
        SortedTexts texts(grid, rows);
        QuorUiCtr::TGHeaderSort sorting(grid.Grid());
        sorting.SetComparison(0, QuorUiCtr::TGSortBy::Number);
        numbers = ShortestMs([&] { sorting.Sort({{0, true}}); }, [&] { texts.ShuffleNumbers(); });
    }
    report.Add({"sort by header as numbers", rows, numbers, "ordinal sort of the same", ordinal,
                LimitFor(rows, 1.5)});
}

void AppendColumns(Report& report, Host& host, int columns)
{
    const auto append = [&host](int number) {
        QuorUiCtr::TGGrid grid;
        grid.Create(CRect(0, 0, ViewWidth, ViewHeight), WS_CHILD | WS_VISIBLE, &host);
        const double timeMs = TimeMs([&] {
            for (int i = 0; i < number; ++i)
                grid.AppendCol(L"Column", 80);
        });
        grid.DestroyWindow();
        return timeMs;
    };
    const double few = append(columns / 10);
    report.Add({"append columns", columns, append(columns), "ten times a tenth", few * 10, 1.5});
}

// The hooks are asked for every cell of the rows in view, so that this grows with the columns, slowly.
void RepaintWide(Report& report, Host& host, int columns)
{
    const auto repaint = [&host](int number) {
        QuorUiCtr::TGGrid grid;
        grid.Create(CRect(0, 0, ViewWidth, ViewHeight), WS_CHILD | WS_VISIBLE, &host);
        {
            const QuorUiCtr::TGGridUpdate update(grid);
            for (int i = 0; i < number; ++i)
                grid.AppendCol(L"Column", 80);
            grid.SetRowNum(100);
        }
        grid.UpdateWindow();
        const double timeMs = ShortestMs([&] {
            grid.Invalidate(1);
            grid.UpdateWindow();
        });
        grid.DestroyWindow();
        return timeMs;
    };
    report.Add({"repaint many columns", columns, repaint(columns), "11 columns", repaint(11)});
}

} // namespace

void RunBuild(Report& report)
{
    Host host;
    for (const long rows : {1000L, 100000L, 1000000L})
        FillBothWays(report, host, rows);
    InsertInFront(report, host);
    ClearRows(report, host, 100000);
}

void RunSort(Report& report)
{
    Host host;
    for (const long rows : {1000L, 100000L})
    {
        SortRows(report, host, rows);
        SortNumbers(report, host, rows);
    }
}

void RunColumns(Report& report)
{
    Host host;
    for (const int columns : {1000, 10000})
    {
        AppendColumns(report, host, columns);
        RepaintWide(report, host, columns);
    }
}

} // namespace bench
