// The page with a plain grid.
#include "GridPage.h"

#include "ColumnEditors.h"
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

CString GridPage::OpenFile(const CString& path)
{
    const gallery::CsvTable table = gallery::ReadCsvFile(path.GetString());
    for (const std::wstring& problem : table.errors)
        Log().Add(problem.c_str());
    if (table.IsRefused())
        return table.errors.front().c_str();
    ShowTable(table);
    CString summary;
    summary.Format(Tr(L"%s: %d rows"), PathFindFileName(path), static_cast<int>(table.rows.size()));
    if (!table.errors.empty())
        summary.AppendFormat(Tr(L", %d lines with errors, see below"), static_cast<int>(table.errors.size()));
    SetBanner(summary);
    return CString();
}

void GridPage::ShowTable(const gallery::CsvTable& table)
{
    QuorUiCtr::TGGridUpdate update(grid);
    grid.Clear();
    MakeColumns(grid, table);
    SetColumnEditors(grid);
    for (const gallery::CsvRow& texts : table.rows)
    {
        grid.AppendRow(nullptr);
        FillRow(grid.GetRow(grid.GetRowNum() - 1), texts);
    }
    grid.SetModify(false);
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
