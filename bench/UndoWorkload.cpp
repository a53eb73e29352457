// Workload: recording, undoing and redoing 100,000 pasted cells and a million deleted rows, against the paste
// and the deletion without a stack.
#include "Subjects.h"
#include "Workloads.h"

#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"
#include "undo/TGUndoStack.h"

#include <vector>

namespace bench
{
namespace
{

// Of ten cells.
constexpr long UndoneRows = 10000;
constexpr long KeptRows = 1000000;

// A grid of rows, with the extensions of a sheet.
struct UndoSheet
{
    explicit UndoSheet(Host& host) : subject(&host), cursor(subject.Grid()), clipboard(subject.Grid()) {}

    void Refill()
    {
        subject.Empty();
        subject.AppendRowsAsOne(UndoneRows);
        Blank();
        stack.Clear();
        cursor.MoveTo(0, 0);
    }
    void Blank()
    {
        for (long row = 0; row < UndoneRows; ++row)
            for (long col = 0; col < subject.Grid().GetColNum(); ++col)
                subject.Grid().GetCell(row, col).GetText().Empty();
    }

    GridSubject subject;
    QuorUiCtr::TGUndoStack stack;
    QuorUiCtr::TGCellCursor cursor;
    QuorUiCtr::TGClipboard clipboard;
};

void UndoPaste(Report& report, Host& host)
{
    UndoSheet source(host);
    source.subject.AppendRowsAsOne(UndoneRows);
    source.clipboard.CopyAll();
    UndoSheet plain(host);
    UndoSheet sheet(host);
    sheet.stack.Watch(sheet.subject.Grid());
    const std::vector<double> shortest =
        ShortestInTurns({{[&] { plain.clipboard.Paste(); }, [&] { plain.Refill(); }},
                         {[&] { sheet.clipboard.Paste(); }, [&] { sheet.Refill(); }},
                         {[&] { sheet.stack.Undo(); }, [&] { sheet.Refill(), sheet.clipboard.Paste(); }},
                         {[&] { sheet.stack.Redo(); },
                          [&] { sheet.Refill(), sheet.clipboard.Paste(), sheet.stack.Undo(); }}});
    const long cells = UndoneRows * 10;
    report.Add({"paste cells, recorded", cells, shortest[1], "paste them", shortest[0], 2});
    report.Add({"undo the paste", cells, shortest[2], "paste them", shortest[0], 2});
    report.Add({"redo the paste", cells, shortest[3], "paste them", shortest[0], 2});
    report.Add({"bytes of the step per cell", cells,
                static_cast<double>(sheet.stack.GetBytes()) / static_cast<double>(cells), "text of it",
                2.0 * 8});
}

void UndoDelete(Report& report)
{
    GridSubject plain(nullptr);
    GridSubject kept(nullptr);
    QuorUiCtr::TGUndoStack stack;
    stack.SetLimits(0, 0);
    const auto remove = [](GridSubject& subject) {
        return [&subject] {
            subject.Grid().SelectAll();
            subject.Grid().DoDelete();
        };
    };
    const auto refill = [&] {
        stack.Unwatch(kept.Grid());
        kept.Empty();
        kept.AppendRowsAsOne(KeptRows);
        stack.Watch(kept.Grid());
    };
    const std::vector<double> shortest =
        ShortestInTurns({{remove(plain), [&] { plain.Empty(), plain.AppendRowsAsOne(KeptRows); }},
                         {remove(kept), refill},
                         {[&] { stack.Undo(); }, [&] { refill(), remove(kept)(); }},
                         {[&] { stack.Redo(); }, [&] { refill(), remove(kept)(), stack.Undo(); }}},
                        2);
    report.Add({"delete rows, kept", KeptRows, shortest[1], "delete them", shortest[0], 2});
    report.Add({"undo the deletion", KeptRows, shortest[2], "delete them", shortest[0]});
    report.Add({"redo the deletion", KeptRows, shortest[3], "delete them", shortest[0]});
}

} // namespace

void RunUndo(Report& report)
{
    Host host;
    UndoPaste(report, host);
    UndoDelete(report);
}

} // namespace bench
