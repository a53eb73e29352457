// The page with a plain grid.
#include "GridPage.h"

#include "ColumnEditors.h"
#include "CsvWriter.h"
#include "GridFill.h"
#include "Language.h"
#include "LogPane.h"
#include "resource.h"

#include <shlwapi.h>

namespace
{

// The pictures of the page: an editor of that kind, with its list dropped down or without.
struct PictureView
{
    const wchar_t* suffix;
    EditorKind kind;
    bool dropDown;
};

constexpr PictureView PictureViews[] = {
    {L"", EditorKind::ReadOnly, false},      {L"-edit", EditorKind::Text, false},
    {L"-spin", EditorKind::Spin, false},     {L"-list", EditorKind::List, false},
    {L"-list-open", EditorKind::List, true}, {L"-combo", EditorKind::Combo, false},
    {L"-button", EditorKind::Button, false},
};
constexpr long PictureRow = 4;

} // namespace

BEGIN_MESSAGE_MAP(GridPage, StyledTablePage)
    ON_BN_CLICKED(IDC_FIT_LAST, &GridPage::OnFitLast)
END_MESSAGE_MAP()

GridPage::GridPage(LogPane& logPane) : StyledTablePage(IDD_GRID_PAGE, logPane, false) {}

CString GridPage::GetTitle() const
{
    return Tr(L"Grid");
}

BOOL GridPage::OnInitDialog()
{
    StyledTablePage::OnInitDialog();
    OpenFile(ShippedTablePath(L"elements"));
    return TRUE;
}

// Reading is half the work, showing the other.
CString GridPage::OpenFile(const CString& path)
{
    CString text;
    text.Format(Tr(L"Opening %s"), PathFindFileName(path));
    ProgressBox progress(*AfxGetMainWnd(), text);
    const gallery::CsvTable table = gallery::ReadCsvFile(
        path.GetString(), [&progress](double done) { return progress.Report(done / 2); });
    if (progress.IsCancelled())
        return CString();
    for (const std::wstring& problem : table.errors)
        Log().Add(problem.c_str());
    if (table.IsRefused())
        return table.errors.front().c_str();
    const size_t shown = ShowTable(table, progress);
    SetBanner(Summary(path, shown, table));
    return CString();
}

CString GridPage::Summary(const CString& path, size_t shown, const gallery::CsvTable& table) const
{
    CString summary;
    summary.Format(Tr(L"%s: %d rows"), PathFindFileName(path), static_cast<int>(shown));
    if (shown < table.rows.size())
        summary.AppendFormat(Tr(L" of %d, then stopped"), static_cast<int>(table.rows.size()));
    if (!table.errors.empty())
        summary.AppendFormat(Tr(L", %d lines with errors, see below"), static_cast<int>(table.errors.size()));
    return summary;
}

size_t GridPage::ShowTable(const gallery::CsvTable& table, ProgressBox& progress)
{
    constexpr size_t RowsBetweenReports = 2000;
    const QuorUiCtr::TGGridUpdate update(grid);
    grid.Clear();
    MakeColumns(grid, table);
    SetColumnEditors(grid);
    size_t shown = 0;
    for (const gallery::CsvRow& texts : table.rows)
    {
        const double part = static_cast<double>(shown) / static_cast<double>(table.rows.size());
        if (shown % RowsBetweenReports == 0 && !progress.Report((1 + part) / 2))
            break;
        grid.AppendRow(nullptr);
        FillRow(grid.GetRow(grid.GetRowNum() - 1), texts);
        ++shown;
    }
    grid.SetModify(false);
    return shown;
}

CString GridPage::SaveFile(const CString& path)
{
    constexpr long RowsBetweenReports = 2000;
    CString text;
    text.Format(Tr(L"Saving %s"), PathFindFileName(path));
    ProgressBox progress(*AfxGetMainWnd(), text);
    gallery::CsvWriter writer(path.GetString());
    const long rowCount = grid.GetRowNum();
    for (long col = 0; col < grid.GetColNum(); ++col)
        writer.AddField(grid.GetCol(col).GetName().GetString());
    writer.EndLine();
    for (long row = 0; row < rowCount; ++row)
    {
        if (row % RowsBetweenReports == 0 && !progress.Report(static_cast<double>(row) / rowCount))
            return Tr(L"Stopped; the file is as it was.");
        for (long col = 0; col < grid.GetColNum(); ++col)
            writer.AddField(grid.GetCell(row, col).GetText().GetString());
        writer.EndLine();
    }
    if (!writer.Finish())
        return Tr(L"The file cannot be written.");
    grid.SetModify(false);
    return CString();
}

UINT GridPage::GetSourceId() const
{
    return IDR_SOURCE_GRID;
}

bool GridPage::ShowPictureView(size_t view, CString& nameSuffix)
{
    grid.CancelEditCell();
    if (view >= std::size(PictureViews))
        return false;
    const PictureView& shown = PictureViews[view];
    nameSuffix = shown.suffix;
    const long col = FindColumn(grid, shown.kind);
    if (col >= 0 && grid.GetRowNum() > PictureRow)
        grid.BeginEditCell(PictureRow, col);
    if (shown.dropDown && grid.IsEditing())
        CWnd::GetFocus()->SendMessage(CB_SHOWDROPDOWN, TRUE);
    return true;
}

void GridPage::OnFitLast()
{
    if (!grid.FitLastCol())
        Log().Add(Tr(L"FitLastCol: not needed, or not possible"));
}
