// Workload: copying 100,000 rows of ten columns, pasting them and filling them, against filling the grid.
#include "Subjects.h"
#include "Workloads.h"

#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"

#include <string>

namespace bench
{
namespace
{

constexpr long CopiedRows = 100000;

// What another program does that wants a format; the clipboard's memory is locked and let go.
void TakeFormat(UINT format)
{
    ::OpenClipboard(nullptr);
    if (const HANDLE memory = ::GetClipboardData(format))
    {
        ::GlobalLock(memory);
        ::GlobalUnlock(memory);
    }
    ::CloseClipboard();
}

// Another program copies something.
void EndOffer()
{
    ::OpenClipboard(nullptr);
    ::EmptyClipboard();
    ::CloseClipboard();
}

} // namespace

void RunClipboard(Report& report)
{
    Host host;
    GridSubject filled(&host);
    filled.AppendRowsAsOne(CopiedRows);
    QuorUiCtr::TGCellCursor cursor(filled.Grid());
    QuorUiCtr::TGClipboard clipboard(filled.Grid());
    GridSubject target(&host);
    QuorUiCtr::TGCellCursor targetCursor(target.Grid());
    QuorUiCtr::TGClipboard targetClipboard(target.Grid());
    GridSubject plain(&host);

    const auto copy = [&] {
        EndOffer();
        clipboard.CopyAll();
    };
    const auto take = [](UINT format) { return [format] { TakeFormat(format); }; };
    const UINT own = ::RegisterClipboardFormat(L"QuorUiCtrl Cells");
    const UINT csv = ::RegisterClipboardFormat(L"Csv");
    const UINT html = ::RegisterClipboardFormat(L"HTML Format");
    const auto empty = [&] { target.Empty(); };
    const std::vector<double> shortest =
        ShortestInTurns({{[&] { plain.AppendRowsAsOne(CopiedRows); }, [&] { plain.Empty(); }},
                         {[&] { clipboard.CopyAll(); }, EndOffer},
                         {take(CF_UNICODETEXT), copy},
                         {take(csv), copy},
                         {take(html), copy},
                         {take(own), copy},
                         {[&] { targetClipboard.Paste(); }, [&] { copy(), TakeFormat(own), target.Empty(); }},
                         {[&] { target.AppendRowsAsOne(CopiedRows); }, [&] { target.Empty(); }},
                         {[&] { clipboard.FillDown(); }, [&] { cursor.SelectAllCells(); }}});
    const double fill = shortest[0];
    empty();
    // 5 ms for the offer and 150 ms for a format where filling takes about 100 ms. What is pasted is told to
    // the extensions of the grid as what is filled is.
    report.Add({"offer a copy", CopiedRows, shortest[1], "fill the grid", fill, 0.06});
    report.Add({"render it as text", CopiedRows, shortest[2], "fill the grid", fill, 1.3});
    report.Add({"render it as CSV", CopiedRows, shortest[3], "fill the grid", fill, 1.3});
    report.Add({"render it as HTML", CopiedRows, shortest[4], "fill the grid", fill, 1.3});
    report.Add({"render it as own format", CopiedRows, shortest[5], "fill the grid", fill, 1.3});
    report.Add(
        {"paste it into an empty grid", CopiedRows, shortest[6], "fill the same grid", shortest[7], 2});
    report.Add({"fill all cells down", CopiedRows, shortest[8], "fill the grid", fill, 1.2});
}

} // namespace bench
