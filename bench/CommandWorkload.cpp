// Workload: the user's commands on many rows, moving a row, and the headers.
#include "Subjects.h"
#include "Workloads.h"

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
    const double ours = MedianMs(
        [&] {
            grid.Grid().DoDelete();
            grid.Grid().UpdateWindow();
        },
        [&] {
            grid.Empty();
            grid.AppendRowsAsOne(n);
            SelectSpread(grid.Grid());
            grid.Grid().UpdateWindow();
        });
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
    report.Add({"delete 1000 selected rows", n, ours, "list view redraw off", peer, 0.06});
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
    constexpr int Moves = 100;
    const auto move = [&host](long rows) {
        GridSubject grid(&host);
        grid.AppendRowsAsOne(rows);
        return ShortestMs([&] {
                   for (int i = 0; i < Moves; ++i)
                   {
                       grid.Grid().MoveRow(rows - 1, 0);
                       grid.Grid().UpdateWindow();
                   }
               }) /
               Moves;
    };
    const auto repaint = [&host](long rows) {
        GridSubject grid(&host);
        grid.AppendRowsAsOne(rows);
        return ShortestMs([&] { grid.Grid().Invalidate(1), grid.Grid().UpdateWindow(); }, {}, 15);
    };
    const double small = move(1000);
    const double large = move(n);
    report.Add({"move a row from end to start", n, large, "with 1000 rows", small});
    report.Add({"move a row from end to start", n, large, "repaint with headers", repaint(n), 1.55});
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
