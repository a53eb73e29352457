// The page with a grid of tree rows.
#include "TreeRowsPage.h"

#include "ColumnEditors.h"
#include "GridFill.h"
#include "Language.h"
#include "LogPane.h"
#include "resource.h"

#include <algorithm>

using QuorUiCtr::TGGridTreeRow;

namespace
{

// The columns of the element table that make the two upper levels, and the one with the label.
constexpr size_t OuterGroupColumn = 8;
constexpr size_t InnerGroupColumn = 5;
constexpr long LabelColumn = 2;

constexpr long TreeColumnWidth = 150;

// Moves the label column to the front, where the tree is drawn.
void MoveToFront(gallery::CsvTable& table, long column)
{
    const auto rotate = [column](std::vector<std::wstring>& texts) {
        std::rotate(texts.begin(), texts.begin() + column, texts.begin() + column + 1);
    };
    rotate(table.header);
    for (std::vector<std::wstring>& row : table.rows)
        rotate(row);
}

} // namespace

BEGIN_MESSAGE_MAP(TreeRowsPage, StyledTablePage)
    ON_BN_CLICKED(IDC_FOLD_ALL, &TreeRowsPage::OnFoldAll)
    ON_BN_CLICKED(IDC_UNFOLD_ALL, &TreeRowsPage::OnUnfoldAll)
END_MESSAGE_MAP()

TreeRowsPage::TreeRowsPage(LogPane& logPane) : StyledTablePage(IDD_TREE_ROWS_PAGE, logPane, true) {}

CString TreeRowsPage::GetTitle() const
{
    return Tr(L"Tree rows");
}

UINT TreeRowsPage::GetSourceId() const
{
    return IDR_SOURCE_TREE_ROWS;
}

BOOL TreeRowsPage::OnInitDialog()
{
    StyledTablePage::OnInitDialog();
    const gallery::CsvTable table = gallery::ReadCsvFile(ShippedTablePath(L"elements").GetString());
    if (table.IsRefused())
        SetBanner(table.errors.front().c_str());
    else
        ShowTable(table);
    return TRUE;
}

void TreeRowsPage::ShowTable(const gallery::CsvTable& source)
{
    gallery::CsvTable table = source;
    if (table.header.size() <= OuterGroupColumn)
    {
        SetBanner(Tr(L"The table lacks the columns of the groups"));
        return;
    }
    MoveToFront(table, LabelColumn);
    QuorUiCtr::TGGridUpdate update(grid);
    MakeColumns(grid, table);
    // The column that draws the tree needs room for three levels.
    grid.GetCol(0).SetWidth(TreeColumnWidth);
    SetColumnEditors(grid);
    for (const std::vector<std::wstring>& texts : table.rows)
    {
        TGGridTreeRow& group = ChildRow(RootRow(texts[OuterGroupColumn]), texts[InnerGroupColumn]);
        group.AppendChild(nullptr);
        FillRow(group.GetLastChild(), texts);
    }
    ForEachRoot(&TGGridTreeRow::UnFoldAll);
    CString summary;
    summary.Format(Tr(L"%d elements on three levels"), static_cast<int>(table.rows.size()));
    SetBanner(summary);
    grid.SetModify(false);
}

TGGridTreeRow& TreeRowsPage::RootRow(const std::wstring& label)
{
    for (long row = 0; row < grid.GetRowNum(); ++row)
        if (grid.GetTreeRow(row)[0].GetText() == label.c_str())
            return grid.GetTreeRow(row);
    grid.AppendRow(nullptr);
    TGGridTreeRow& root = grid.GetTreeRow(grid.GetRowNum() - 1);
    root[0].SetText(label.c_str());
    return root;
}

TGGridTreeRow& TreeRowsPage::ChildRow(TGGridTreeRow& parent, const std::wstring& label)
{
    for (parent.MoveToFirst(); !parent.IsOut(); parent.MoveToNext())
        if (parent.CurChild()[0].GetText() == label.c_str())
            return parent.CurChild();
    parent.AppendChild(nullptr);
    TGGridTreeRow& child = parent.GetLastChild();
    child[0].SetText(label.c_str());
    return child;
}

void TreeRowsPage::ForEachRoot(void (TGGridTreeRow::*operation)())
{
    QuorUiCtr::TGGridUpdate update(grid);
    std::vector<TGGridTreeRow*> roots;
    for (long row = 0; row < grid.GetRowNum(); ++row)
        if (grid.GetTreeRow(row).IsRootRow())
            roots.push_back(&grid.GetTreeRow(row));
    for (TGGridTreeRow* root : roots)
        (root->*operation)();
}

bool TreeRowsPage::ShowPictureView(size_t view, CString& nameSuffix)
{
    constexpr long PictureRow = 2;
    grid.CancelEditCell();
    if (view == 1)
    {
        nameSuffix = L"-edit";
        grid.BeginEditCell(PictureRow, 0);
    }
    return view < 2;
}

void TreeRowsPage::OnFoldAll()
{
    ForEachRoot(&TGGridTreeRow::FoldAll);
}

void TreeRowsPage::OnUnfoldAll()
{
    ForEachRoot(&TGGridTreeRow::UnFoldAll);
}
