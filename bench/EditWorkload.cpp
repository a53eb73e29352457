// Workload: opening and committing cell edits, and what they leave behind.
#include "Subjects.h"
#include "Workloads.h"

namespace bench
{
namespace
{

constexpr long EditNumber = 1000;
constexpr UINT EditorId = 101;

// Every edit changes the text, so every commit stores one.
void EditCells(QuorUiCtr::TGGrid& grid)
{
    for (long i = 0; i < EditNumber; ++i)
    {
        grid.BeginEditCell(i % 20, i % ColumnCount);
        CWnd* editor = grid.GetDlgItem(EditorId);
        editor->SetWindowText(CellText(i));
        editor->SendMessage(EM_SETMODIFY, TRUE);
        grid.EndEditCell();
    }
}

// The floor: a bare edit control made, filled, read and destroyed each time.
void EditBareControls(CWnd& parent)
{
    CString text;
    for (long i = 0; i < EditNumber; ++i)
    {
        CEdit edit;
        edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(10, 10, 90, 30), &parent, EditorId);
        edit.SetFocus();
        edit.SetWindowText(CellText(i));
        edit.GetWindowText(text);
        edit.DestroyWindow();
    }
}

double DescendantNumber(CWnd& parent)
{
    long number = 0;
    EnumChildWindows(
        parent.m_hWnd,
        [](HWND, LPARAM count) {
            ++*reinterpret_cast<long*>(count);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&number));
    return static_cast<double>(number);
}

} // namespace

void RunEdit(Report& report)
{
    Host host;
    GridSubject grid(&host);
    grid.AppendRowsAsOne(100);
    grid.Grid().UpdateWindow();
    EditCells(grid.Grid());
    const double windows = DescendantNumber(host);
    const double memory = WorkingSetBytes() / 1024;
    const double ours = MedianMs([&] { EditCells(grid.Grid()); });
    const double windowsAfter = DescendantNumber(host);
    const double memoryAfter = WorkingSetBytes() / 1024;
    const double floor = MedianMs([&] { EditBareControls(host); });
    report.Add({"begin and commit an edit", EditNumber, ours, "bare edit control", floor});
    report.Add({"windows after 5 x 1000 edits", EditNumber, windowsAfter, "before", windows});
    report.Add({"memory after 5 x 1000 edits (KB)", EditNumber, memoryAfter, "before", memory});
}

} // namespace bench
