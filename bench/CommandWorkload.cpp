// Workload: the user's commands on many rows, moving a row, and the headers.
#include "Subjects.h"
#include "Workloads.h"

#include <vector>

namespace bench
{
namespace
{

constexpr long CommandRows = 1000;

// The same rows of both: every 97th, so that they do not stand together.
constexpr long RowStep = 97;

void SelectSpread(QuorUiCtr::TGGrid& grid)
{
    QuorUiCtr::TGGridUpdate update(grid);
    grid.UnSelect();
    for (long i = 0; i < CommandRows; ++i)
        grid.SelectRow(i * RowStep, true);
}

// The list view deletes from the last to the first with redraw off.
void DeleteRows(Report& report, Host& host, long n)
{
    GridSubject grid(&host);
    const auto select = [&] {
        grid.Empty();
        grid.AppendRowsAsOne(n);
        SelectSpread(grid.Grid());
        grid.Grid().UpdateWindow();
    };
    // What deleting cannot do without: the cells painted anew, and a bar with another range.
    int shownRange = 0;
    const auto repaint = [&] {
        grid.Grid().SetScrollRange(SB_VERT, 0, 1000000 + ++shownRange % 2, TRUE);
        grid.Grid().Invalidate(1);
        grid.Grid().UpdateWindow();
    };
    const std::vector<double> shortest = ShortestInTurns(
        {{[&] { grid.Grid().DoDelete(), grid.Grid().UpdateWindow(); }, select}, {repaint, {}}});
    ListViewSubject list(host);
    const double peer = MedianMs(
        [&] {
            list.List().SetRedraw(FALSE);
            for (long i = CommandRows; i-- > 0;)
                list.List().DeleteItem(static_cast<int>(i * RowStep));
            list.List().SetRedraw(TRUE);
            list.List().UpdateWindow();
        },
        [&] {
            list.Empty();
            list.AppendRowsAsOne(n);
            list.List().UpdateWindow();
        },
        3);
    report.Add({"delete 1000 selected rows", n, shortest[0], "list view redraw off", peer});
    report.Add({"delete 1000 selected rows", n, shortest[0], "repaint, with a bar", shortest[1], 2});
}

void PasteRows(Report& report, Host& host, long n)
{
    const auto paste = [&host](long rows) {
        GridSubject grid(&host);
        return MedianMs(
            [&] {
                grid.Grid().DoPaste();
                grid.Grid().UpdateWindow();
            },
            [&] {
                grid.Empty();
                grid.AppendRowsAsOne(rows);
                {
                    QuorUiCtr::TGGridUpdate update(grid.Grid());
                    for (long row = 0; row < CommandRows; ++row)
                        grid.Grid().SelectRow(row, true);
                }
                grid.Grid().DoCopy();
                grid.Grid().UnSelect();
                grid.Grid().SelectRow(0, true);
                grid.Grid().UpdateWindow();
            });
    };
    const double small = paste(CommandRows);
    report.Add({"paste 1000 rows in front", n, paste(n), "into 1000 rows", small});
}

void MoveRowFromEndToStart(Report& report, Host& host, long n)
{
    GridSubject few(&host);
    few.AppendRowsAsOne(1000);
    GridSubject many(&host);
    many.AppendRowsAsOne(n);
    const auto move = [](GridSubject& subject) {
        return [&grid = subject.Grid()] {
            grid.MoveRow(grid.GetRowNum() - 1, 0);
            grid.UpdateWindow();
        };
    };
    const auto repaint = [&] { many.Grid().Invalidate(1), many.Grid().UpdateWindow(); };
    const std::vector<double> shortest =
        ShortestInTurns({{move(few), {}}, {move(many), {}}, {repaint, {}}}, 50);
    report.Add({"move a row from end to start", n, shortest[1], "with 1000 rows", shortest[0]});
    report.Add({"move a row from end to start", n, shortest[1], "repaint with headers", shortest[2], 1.55});
}

void RepaintRowHeader(Report& report, Host& host, long n)
{
    constexpr int Repaints = 100;
    const auto repaint = [&host](long rows) {
        GridSubject grid(&host);
        grid.AppendRowsAsOne(rows);
        grid.Grid().UpdateWindow();
        CWnd* header = grid.Grid().GetDlgItem(104);
        return MedianMs(
                   [&] {
                       for (int i = 0; i < Repaints; ++i)
                       {
                           header->Invalidate();
                           header->UpdateWindow();
                       }
                   },
                   {}, 9) /
               Repaints;
    };
    const double small = repaint(1000);
    report.Add({"repaint the row header", n, repaint(n), "with 1000 rows", small});
}

} // namespace

void RunCommands(Report& report)
{
    Host host;
    DeleteRows(report, host, 100000);
    PasteRows(report, host, 100000);
    MoveRowFromEndToStart(report, host, 100000);
    RepaintRowHeader(report, host, 100000);
}

} // namespace bench
