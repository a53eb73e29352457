// The page with the library's extras.
#include "SheetPage.h"

#include "GridFill.h"
#include "Language.h"
#include "LogPane.h"
#include "resource.h"

#include <algorithm>

using QuorUiCtr::TGAlign;
using QuorUiCtr::TGCellFormat;
using QuorUiCtr::TGClipboard;
using QuorUiCtr::TGClipboardReport;
using QuorUiCtr::TGColumnFormat;
using QuorUiCtr::TGColumnWidths;
using QuorUiCtr::TGEllipsis;
using QuorUiCtr::TGGridCell;
using QuorUiCtr::TGSortBy;
using QuorUiCtr::TGValueKind;

namespace
{

constexpr long MillionRows = 1000000;

constexpr long WidestColumn = 220;

// How a column is shown and sorted, by its caption.
struct ElementFormat
{
    const wchar_t* caption;
    TGSortBy order;
    TGColumnFormat format;
};

const ElementFormat ElementFormats[] = {
    {L"Atomic number", TGSortBy::Number, {.kind = TGValueKind::Number}},
    {L"Symbol", TGSortBy::Locale, {.align = TGAlign::Center, .bold = true}},
    {L"Name", TGSortBy::Locale, {}},
    {L"Atomic mass", TGSortBy::Number, {.kind = TGValueKind::Number, .decimals = 3}},
    {L"Period", TGSortBy::Number, {.align = TGAlign::Center}},
    {L"Group", TGSortBy::Number, {.align = TGAlign::Center}},
    {L"Discovered", TGSortBy::Number, {.kind = TGValueKind::Number, .grouping = false}},
    {L"Discoverers and notes", TGSortBy::Locale, {.ellipsis = TGEllipsis::End}},
};

// The columns of the million rows.
const ElementFormat RowFormats[] = {
    {L"Row", TGSortBy::Number, {.kind = TGValueKind::Number}},
    {L"Value", TGSortBy::Number, {.kind = TGValueKind::Number, .decimals = 2}},
    {L"Share", TGSortBy::Number, {.kind = TGValueKind::Percent, .decimals = 1}},
    {L"Done", TGSortBy::Ordinal, {.checkBox = true}},
};

// Gases are light blue, liquids light yellow. Symbols are what elements are known by, and stay.
void FormatElement(const TGGridCell& cell, TGCellFormat& format)
{
    format.readOnly = cell.GetCol().GetName() == L"Symbol";
    if (cell.GetText() == L"Gas")
        format.backColor = RGB(225, 240, 255);
    else if (cell.GetText() == L"Liquid")
        format.backColor = RGB(255, 250, 205);
}

CString NumberText(long number)
{
    CString text;
    text.Format(L"%ld", number);
    return text;
}

// Values that look like some.
void FillMillionth(QuorUiCtr::TGGridRow& row, long number)
{
    const long value = number * 7919 % 1000003;
    row[0].SetText(NumberText(number + 1));
    row[1].SetText(NumberText(value / 100) + L"." + NumberText(value % 100 / 10));
    row[2].SetText(L"0." + NumberText(value % 1000));
    if (number % 3 == 0)
        row[3].SetText(L"1");
}

} // namespace

BEGIN_MESSAGE_MAP(SheetPage, TablePage)
    ON_BN_CLICKED(IDC_SHEET_ELEMENTS, &SheetPage::OnElements)
    ON_BN_CLICKED(IDC_SHEET_MILLION, &SheetPage::OnMillionRows)
    ON_BN_CLICKED(IDC_SHEET_FIT, &SheetPage::OnFitColumns)
END_MESSAGE_MAP()

SheetPage::SheetPage(LogPane& logPane) : TablePage(IDD_SHEET_PAGE, logPane, grid) {}

CString SheetPage::GetTitle() const
{
    return Tr(L"Sheet");
}

UINT SheetPage::GetSourceId() const
{
    return IDR_SOURCE_SHEET;
}

BOOL SheetPage::OnInitDialog()
{
    TablePage::OnInitDialog();
    undo.CreateIn(*this);
    clipboard.SetOnReport([this](const TGClipboardReport& report) { ShowReport(report); });
    formats.SetFullLines(true);
    empty.SetText(Tr(L"No rows"));
    OnElements();
    undo.GetStack().Watch(grid);
    return TRUE;
}

void SheetPage::OnElements()
{
    const gallery::CsvTable table = gallery::ReadCsvFile(ShippedTablePath(L"elements").GetString());
    if (table.IsRefused())
    {
        SetBanner(table.errors.front().c_str());
        return;
    }
    {
        const QuorUiCtr::TGUndoPause pause(undo.GetStack());
        const QuorUiCtr::TGGridUpdate update(grid);
        grid.Clear();
        MakeColumns(grid, table);
        for (const gallery::CsvRow& texts : table.rows)
        {
            grid.AppendRow(nullptr);
            FillRow(grid.GetRow(grid.GetRowNum() - 1), texts);
        }
        AddKnownColumn();
        FormatElements();
        OnFitColumns();
    }
    CString summary;
    summary.Format(Tr(L"%d elements"), static_cast<int>(table.rows.size()));
    BeginAnew(summary);
}

// Other rows have no steps yet.
void SheetPage::BeginAnew(const CString& summary)
{
    SetBanner(summary);
    cursor.MoveTo(0, 0);
    grid.SetModify(false);
    undo.GetStack().Clear();
    undo.GetStack().SetSaved();
}

// What antiquity knew is known.
void SheetPage::AddKnownColumn()
{
    grid.InsertCol(0, Tr(L"Known"), 0);
    for (long row = 0; row < grid.GetRowNum(); ++row)
        for (long col = 1; col < grid.GetColNum(); ++col)
            if (grid.GetCell(row, col).GetText() == L"antiquity")
                grid.GetCell(row, 0).SetText(L"1");
}

void SheetPage::FormatElements()
{
    for (long col = 0; col < grid.GetColNum(); ++col)
    {
        grid.GetCol(col).SetCenterAlign(false);
        for (const ElementFormat& element : ElementFormats)
            if (grid.GetCol(col).GetName() == element.caption)
            {
                formats.SetFormat(col, element.format);
                sort.SetComparison(col, element.order);
            }
    }
    formats.SetFormat(0, {.checkBox = true});
    formats.SetRule(FormatElement);
}

// What is there when the user stops it stays.
void SheetPage::OnMillionRows()
{
    busy.Show(Tr(L"Making a million rows"), MillionRows);
    MakeMillionRows();
    busy.Hide();
    CString summary;
    summary.Format(Tr(L"%ld rows"), grid.GetRowNum());
    BeginAnew(summary);
}

void SheetPage::MakeMillionRows()
{
    constexpr long RowsBetweenSteps = 2000;
    const QuorUiCtr::TGUndoPause pause(undo.GetStack());
    const QuorUiCtr::TGGridUpdate update(grid);
    grid.Clear();
    grid.SetColNum(0);
    formats.SetRule(nullptr);
    for (const ElementFormat& column : RowFormats)
    {
        grid.AppendCol(column.caption, 0);
        formats.SetFormat(grid.GetColNum() - 1, column.format);
        sort.SetComparison(grid.GetColNum() - 1, column.order);
    }
    for (long made = 0; made < MillionRows && (made == 0 || busy.Step(made)); made += RowsBetweenSteps)
    {
        grid.SetRowNum(made + RowsBetweenSteps);
        for (long i = made; i < made + RowsBetweenSteps; ++i)
            FillMillionth(grid.GetRow(i), i);
    }
}

// No column needs the whole window.
void SheetPage::OnFitColumns()
{
    const QuorUiCtr::TGGridUpdate update(grid);
    for (long col = 0; col < grid.GetColNum(); ++col)
        grid.GetCol(col).SetWidth(
            (std::min)(widths.GetFitWidth(col, TGColumnWidths::Cells::All), WidestColumn));
}

Page::Status SheetPage::GetStatus()
{
    Status status = TablePage::GetStatus();
    if (cursor.GetRow() >= 0)
        status.position.Format(Tr(L"Row %ld, column %ld"), cursor.GetRow() + 1, cursor.GetCol() + 1);
    return status;
}

// ---- Undo and clipboard

// What was done, what was left and why; and where.
void SheetPage::ShowReport(const TGClipboardReport& report)
{
    constexpr std::size_t MostPlaces = 5;
    CString lines = report.GetText();
    lines.Replace(L"\n", L"; ");
    Log().Add(lines);
    const auto places = report.GetPlaces();
    for (std::size_t i = 0; i < (std::min)(places.size(), MostPlaces); ++i)
    {
        CString line;
        line.Format(Tr(L"Row %ld, column %ld"), places[i].row + 1, places[i].col + 1);
        Log().Add(L"    " + line);
    }
}

// Cells are copied further down, over symbols, which stay, and a state is filled down.
void SheetPage::ShowPastedCells()
{
    cursor.SelectRange({2, 1, 4, 4});
    clipboard.Copy();
    cursor.MoveTo(10, 1);
    clipboard.Paste();
    cursor.SelectRange({9, 9, 12, 9});
    clipboard.FillDown();
}

bool SheetPage::ShowPictureView(size_t view, CString& nameSuffix)
{
    grid.CancelEditCell();
    if (view == 1)
    {
        nameSuffix = L"-range";
        cursor.SelectRange({2, 1, 6, 4});
    }
    else if (view == 2)
    {
        nameSuffix = L"-pasted";
        ShowPastedCells();
    }
    return view < 3;
}
