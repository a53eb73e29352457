// The page with a plain grid.
#include "GridPage.h"

#include "GridFill.h"
#include "LogPane.h"
#include "resource.h"

#include <shlwapi.h>

BEGIN_MESSAGE_MAP(GridPage, Page)
    ON_BN_CLICKED(IDC_FLAT_HEADERS, &GridPage::OnFlatHeaders)
    ON_BN_CLICKED(IDC_FIT_LAST, &GridPage::OnFitLast)
END_MESSAGE_MAP()

GridPage::GridPage(LogPane& logPane) : Page(IDD_GRID_PAGE, logPane), grid(false, logPane)
{
    grid.SetFlatButton(true);
}

CString GridPage::GetTitle() const
{
    return L"Grid 表格";
}

void GridPage::DoDataExchange(CDataExchange* exchange)
{
    Page::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_BANNER, banner);
}

BOOL GridPage::OnInitDialog()
{
    Page::OnInitDialog();
    CheckDlgButton(IDC_FLAT_HEADERS, BST_CHECKED);
    grid.Create(this, IDC_GRID, WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | WS_CLIPCHILDREN);
    SetRoomyFont(grid, font);
    OpenFile(DataFilePath(L"elements.csv"));
    return TRUE;
}

bool GridPage::OpenFile(const CString& path)
{
    const gallery::CsvTable table = gallery::ReadCsvFile(path.GetString());
    for (const std::wstring& problem : table.errors)
        Log().Add(problem.c_str());
    if (table.IsRefused())
    {
        banner.SetWindowText(CString(PathFindFileName(path)) + L"：" + table.errors.front().c_str());
        return true;
    }
    ShowTable(table);
    CString summary;
    summary.Format(L"%s：%d 行", PathFindFileName(path), static_cast<int>(table.rows.size()));
    if (!table.errors.empty())
        summary.AppendFormat(L"，%d 行有错，见下方记录", static_cast<int>(table.errors.size()));
    banner.SetWindowText(summary);
    return true;
}

void GridPage::ShowTable(const gallery::CsvTable& table)
{
    QuorUiCtr::TGGridUpdate update(grid);
    grid.Clear();
    MakeColumns(grid, table);
    for (const gallery::CsvRow& texts : table.rows)
    {
        grid.AppendRow(nullptr);
        FillRow(grid.GetRow(grid.GetRowNum() - 1), texts);
    }
    grid.SetModify(false);
}

void GridPage::LayOut(int width, int height)
{
    PlaceBelowToolLine(*this, grid, banner, width, height);
}

void GridPage::OnFlatHeaders()
{
    grid.SetFlatButton(IsDlgButtonChecked(IDC_FLAT_HEADERS) != 0);
    grid.Invalidate(TRUE);
}

void GridPage::OnFitLast()
{
    if (!grid.FitLastCol())
        Log().Add(L"FitLastCol: 不需要或无法调整");
}
