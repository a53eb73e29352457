// The grid and its peers, each filled with the same text: what the workloads run on.
#pragma once

#include "grid/TGGrid.h"

#include <string>
#include <vector>

namespace bench
{

constexpr int ColumnCount = 10;
constexpr int ViewWidth = 860;
constexpr int ViewHeight = 640;

// The text of every cell in row `row`: 8 characters, which no string keeps inside its object here.
const wchar_t* CellText(long row);

// A top-level window to hold the subjects.
class Host : public CWnd
{
public:
    Host();
    ~Host() override;
};

// The grid with ten columns, with a window when `parent` is given.
class GridSubject
{
public:
    explicit GridSubject(CWnd* parent);
    ~GridSubject();

    QuorUiCtr::TGGrid& Grid() { return grid; }
    // Appends `count` rows, one structure operation each.
    void AppendRows(long count);
    // The same inside one BeginUpdate/EndUpdate.
    void AppendRowsAsOne(long count);
    // Gives all cells of a row the text of row `number`.
    static void SetTexts(QuorUiCtr::TGGridRow& row, long number);
    void Empty();
    // Scrolls so that `row` is about the topmost row, and paints what that leaves open.
    void ScrollToRow(long row);
    void InvalidateAndPaint();

private:
    QuorUiCtr::TGGrid grid;
};

// The platform's list view in report mode with ten columns and normal items.
class ListViewSubject
{
public:
    explicit ListViewSubject(CWnd& parent);
    ~ListViewSubject();

    CListCtrl& List() { return list; }
    void AppendRows(long count);
    // The same with redraw switched off.
    void AppendRowsAsOne(long count);
    void Empty();
    void ScrollToRow(long row);
    void InvalidateAndPaint();

private:
    CListCtrl list;
};

// Nested vectors of wstring: the floor for holding the data.
using RawTable = std::vector<std::vector<std::wstring>>;
void FillRawTable(RawTable& table, long rows);

} // namespace bench
