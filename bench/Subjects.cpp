// The grid, the list view and the raw table that the workloads run on.
#include "Subjects.h"

#include <cwchar>

namespace bench
{

const wchar_t* CellText(long row)
{
    static wchar_t text[16];
    std::swprintf(text, 16, L"%08ld", row % 100000000);
    return text;
}

Host::Host()
{
    const CString windowClass = AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW),
                                                    reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    CreateEx(0, windowClass, L"QuorUiCtrl benchmark", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 0,
             0, ViewWidth + 20, ViewHeight + 60, nullptr, nullptr);
    UpdateWindow();
}

Host::~Host()
{
    DestroyWindow();
}

GridSubject::GridSubject(CWnd* parent)
{
    if (parent)
        grid.Create(CRect(0, 0, ViewWidth, ViewHeight), WS_CHILD | WS_VISIBLE, parent);
    grid.BeginUpdate();
    for (int column = 0; column < ColumnCount; ++column)
        grid.AppendCol(L"Column", 80);
    grid.EndUpdate();
    if (parent)
        grid.UpdateWindow();
}

GridSubject::~GridSubject()
{
    grid.DestroyWindow();
}

void GridSubject::AppendRows(long count)
{
    for (long i = 0; i < count; ++i)
    {
        const long row = grid.GetRowNum();
        grid.AppendRow(nullptr);
        SetTexts(grid.GetRow(row), row);
    }
}

void GridSubject::SetTexts(QuorUiCtr::TGGridRow& row, long number)
{
    const wchar_t* text = CellText(number);
    for (int column = 0; column < ColumnCount; ++column)
        row[column].SetText(text);
}

void GridSubject::AppendRowsAsOne(long count)
{
    QuorUiCtr::TGGridUpdate update(grid);
    AppendRows(count);
}

void GridSubject::Empty()
{
    grid.Clear();
    if (grid.GetSafeHwnd())
        grid.UpdateWindow();
}

void GridSubject::ScrollToRow(long row)
{
    CPoint corner;
    grid.GetUpCorner(corner);
    const long present = grid.GetColHeaderHeight() - corner.y;
    grid.MoveView(0, static_cast<int>(row * grid.GetRowHeight() - present));
    grid.UpdateWindow();
}

void GridSubject::InvalidateAndPaint()
{
    ::InvalidateRect(grid.m_hWnd, nullptr, TRUE);
    ::UpdateWindow(grid.m_hWnd);
}

ListViewSubject::ListViewSubject(CWnd& parent)
{
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, ViewWidth, ViewHeight), &parent, 2);
    list.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
    for (int column = 0; column < ColumnCount; ++column)
        list.InsertColumn(column, L"Column", LVCFMT_LEFT, 80);
    list.UpdateWindow();
}

ListViewSubject::~ListViewSubject()
{
    list.DestroyWindow();
}

void ListViewSubject::AppendRows(long count)
{
    const int first = list.GetItemCount();
    for (int row = first; row < first + count; ++row)
    {
        const wchar_t* text = CellText(row);
        list.InsertItem(row, text);
        for (int column = 1; column < ColumnCount; ++column)
            list.SetItemText(row, column, text);
    }
}

void ListViewSubject::AppendRowsAsOne(long count)
{
    list.SetRedraw(FALSE);
    AppendRows(count);
    list.SetRedraw(TRUE);
}

void ListViewSubject::Empty()
{
    list.DeleteAllItems();
    list.UpdateWindow();
}

void ListViewSubject::ScrollToRow(long row)
{
    CRect item;
    list.GetItemRect(0, item, LVIR_BOUNDS);
    const int present = list.GetTopIndex();
    list.Scroll(CSize(0, static_cast<int>(row - present) * item.Height()));
    list.UpdateWindow();
}

void ListViewSubject::InvalidateAndPaint()
{
    ::InvalidateRect(list.m_hWnd, nullptr, TRUE);
    ::UpdateWindow(list.m_hWnd);
}

void FillRawTable(RawTable& table, long rows)
{
    for (long row = 0; row < rows; ++row)
    {
        const wchar_t* text = CellText(row);
        std::vector<std::wstring>& cells = table.emplace_back();
        for (int column = 0; column < ColumnCount; ++column)
            cells.emplace_back(text);
    }
}

} // namespace bench
