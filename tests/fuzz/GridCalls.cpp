// Operations on rows, columns, selection, edits and commands, as a table.
#include "tests/fuzz/GridCalls.h"
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

#include "grid/TGRowData.h"

namespace quor::fuzz
{

using namespace QuorUiCtr;

namespace
{

// Larger grids only cost time.
constexpr long MostGridRows = 30;
constexpr long MostGridCols = 6;

struct Call
{
    const char* name;
    void (*run)(TGGrid& grid);
};

bool Flip()
{
    return Dice().OneIn(2);
}

// A position between root rows.
long RootPosition(TGGrid& grid)
{
    long i = Dice().Below(grid.GetRowNum() + 1);
    while (i < grid.GetRowNum() && grid.GetRow(i).IsChildRow())
        ++i;
    return i;
}

long AnyWidth()
{
    return Dice().OneIn(6) ? Dice().Below(2000) : Dice().Below(120);
}

void InsertRow(TGGrid& grid)
{
    if (grid.GetRowNum() < MostGridRows)
        grid.InsertRow(RootPosition(grid), Flip() ? MakeRow(grid) : nullptr);
}

void AppendRow(TGGrid& grid)
{
    if (grid.GetRowNum() < MostGridRows)
        grid.AppendRow(Flip() ? MakeRow(grid) : nullptr);
}

void DelRow(TGGrid& grid)
{
    if (const long row = AnyRow(grid); row >= 0)
        grid.IsTreeGrid() || Flip() ? grid.DelRowEx(row) : grid.DelRow(row);
}

void MoveRow(TGGrid& grid)
{
    if (!grid.IsTreeGrid() && !grid.IsEmpty())
        grid.MoveRow(AnyRow(grid), Dice().Below(grid.GetRowNum() + 1));
}

void SetRowNum(TGGrid& grid)
{
    if (const long number = Dice().Below(MostGridRows); !grid.IsTreeGrid() || number > grid.GetRowNum())
        grid.SetRowNum(number);
}

void InsertCol(TGGrid& grid)
{
    if (grid.GetColNum() >= MostGridCols)
        return;
    const long position = Dice().Below(grid.GetColNum() + 1);
    if (Flip())
        grid.InsertCol(position, AnyText(8), AnyWidth());
    else
        grid.InsertCol(position, new TGGridCol(AnyText(8), grid), AnyWidth());
}

void AppendCol(TGGrid& grid)
{
    if (grid.GetColNum() < MostGridCols)
        grid.AppendCol(AnyText(8), AnyWidth());
}

void DelCol(TGGrid& grid)
{
    if (const long col = AnyCol(grid); col >= 0)
        grid.DelCol(col);
}

void MoveCol(TGGrid& grid)
{
    if (const long col = AnyCol(grid); col >= 0)
        grid.MoveCol(col, Dice().Below(grid.GetColNum() + 1));
}

void BeginEdit(TGGrid& grid)
{
    const long row = Dice().OneIn(6) ? grid.GetRowNum() : AnyRow(grid);
    if (const long col = AnyCol(grid); col >= 0 && row >= 0)
        grid.BeginEditCell(row, col);
}

void AutoEdit(TGGrid& grid)
{
    const long row = AnyRow(grid);
    const long col = AnyCol(grid);
    grid.AutoEditCell(row >= 0 && col >= 0 && Flip() ? &grid.GetCell(row, col) : nullptr);
}

void ChangeCell(TGGrid& grid)
{
    const long row = AnyRow(grid);
    const long col = AnyCol(grid);
    if (row < 0 || col < 0)
        return;
    TGGridCell& cell = grid.GetCell(row, col);
    if (Flip())
        cell.SetText(AnyText());
    else
        cell.SetReadOnly(Dice().OneIn(3));
}

void ChangeRow(TGGrid& grid)
{
    const long i = AnyRow(grid);
    if (i < 0)
        return;
    TGGridRow& row = grid.GetRow(i);
    switch (Dice().Below(3))
    {
    case 0:
        row.SetReadOnly(Dice().OneIn(3));
        break;
    case 1:
        row.SetDelUnable(Dice().OneIn(3));
        break;
    default:
        row.SetExtendData(Flip() ? new TGRowData : nullptr);
    }
}

void ChangeCol(TGGrid& grid)
{
    const long i = AnyCol(grid);
    if (i < 0)
        return;
    TGGridCol& col = grid.GetCol(i);
    switch (Dice().Below(4))
    {
    case 0:
        col.SetName(AnyText(12));
        break;
    case 1:
        col.SetBackColor(static_cast<unsigned long>(Dice().Below(0x1000000)));
        break;
    case 2:
        col.SetReadOnly(Dice().OneIn(4));
        break;
    default:
        ChooseEditor(col);
    }
}

void ChangeStyle(TGGrid& grid)
{
    const bool rarely = Dice().OneIn(4);
    switch (Dice().Below(14))
    {
    case 0:
        return grid.SetReadOnly(rarely);
    case 1:
        return grid.SetRowFixLength(rarely);
    case 2:
        return grid.SetColFixLength(rarely);
    case 3:
        return grid.SetRowSel(!rarely);
    case 4:
        return grid.SetColSel(!rarely);
    case 5:
        return grid.SetTreeLine(!rarely);
    case 6:
        return grid.SetColFixWidth(rarely);
    case 7:
        return grid.SetColPosFix(rarely);
    case 8:
        return grid.SetRowPosFix(rarely);
    case 9:
        return grid.SetSingleSelRow(rarely);
    case 10:
        return grid.SetNoPaste(rarely);
    case 11:
        return grid.SetFlatButton(rarely);
    case 12:
        return grid.SetNoAppendButton(rarely);
    default:
        return grid.SetSortEnable(!rarely);
    }
}

void Read(TGGrid& grid)
{
    List<TGGridRow*> rows;
    List<TGGridCol*> cols;
    grid.GetSel(rows);
    grid.GetSel(cols);
    long row = 0;
    long col = 0;
    if (grid.GetCurCell(row, col) && (col < 0 || col >= grid.GetColNum()))
        Fail("a cell of column %ld is edited", col);
    CPoint corner;
    grid.GetUpCorner(corner);
    grid.IsSelConnect();
    grid.IsSelFold();
    grid.GetMainKey();
}

void UpdateTogether(TGGrid& grid)
{
    const TGGridUpdate update(grid);
    for (long i = Dice().Below(4); i > 0; --i)
        CallGrid(grid);
}

void ManageKeys(TGGrid& grid)
{
    if (Dice().OneIn(3) || grid.IsColEmpty())
        grid.ClearKey();
    else
        grid.AppendKey(AnyCol(grid));
}

// Rows come from the commands too: they are bounded here.
template <bool (TGGrid::*Command)()> void Grow(TGGrid& grid)
{
    if (grid.GetRowNum() < MostGridRows && grid.GetColNum() < MostGridCols + 2)
        (grid.*Command)();
}

const Call calls[] = {
    {"InsertRow", InsertRow},
    {"AppendRow", AppendRow},
    {"DelRow", DelRow},
    {"MoveRow", MoveRow},
    {"SetRowNum", SetRowNum},
    {"InsertCol", InsertCol},
    {"AppendCol", AppendCol},
    {"DelCol", DelCol},
    {"MoveCol", MoveCol},
    {"SetColNum", [](TGGrid& grid) { grid.SetColNum(Dice().Below(MostGridCols)); }},
    {"Clear",
     [](TGGrid& grid) {
         if (Dice().OneIn(8))
             grid.Clear();
     }},
    {"SelectRow",
     [](TGGrid& grid) { grid.SelectRow(Dice().Between(-1, grid.GetRowNum()), !Dice().OneIn(4)); }},
    {"SelectCol",
     [](TGGrid& grid) { grid.SelectCol(Dice().Between(-1, grid.GetColNum()), !Dice().OneIn(4)); }},
    {"SelectAll", [](TGGrid& grid) { grid.SelectAll(); }},
    {"UnSelect", [](TGGrid& grid) { grid.UnSelect(); }},
    {"FindAndSel", [](TGGrid& grid) { grid.FindAndSel(AnyText(2), Dice().Below(grid.GetColNum() + 1)); }},
    {"BeginEditCell", BeginEdit},
    {"BeginEditCell", BeginEdit},
    {"EndEditCell", [](TGGrid& grid) { grid.EndEditCell(); }},
    {"CancelEditCell", [](TGGrid& grid) { grid.CancelEditCell(); }},
    {"AutoEditCell", AutoEdit},
    {"AutoCloseCell", [](TGGrid& grid) { grid.AutoCloseCell(static_cast<int>(Dice().Below(10))); }},
    {"DoInsertCol", Grow<&TGGrid::DoInsertCol>},
    {"DoInsertColAfter", Grow<&TGGrid::DoInsertColAfter>},
    {"DoAppendCol", Grow<&TGGrid::DoAppendCol>},
    {"DoInsertRow", Grow<&TGGrid::DoInsertRow>},
    {"DoInsertRowAfter", Grow<&TGGrid::DoInsertRowAfter>},
    {"DoAppendRow",
     [](TGGrid& grid) {
         if (grid.GetRowNum() < MostGridRows)
             grid.DoAppendRow(Flip());
     }},
    {"DoDelete", [](TGGrid& grid) { grid.DoDelete(); }},
    {"DoCopy", [](TGGrid& grid) { grid.DoCopy(); }},
    {"DoClip", [](TGGrid& grid) { grid.DoClip(); }},
    {"DoPaste", Grow<&TGGrid::DoPaste>},
    {"Arrange", [](TGGrid& grid) { grid.Arrange(Flip()); }},
    {"keys", ManageKeys},
    {"cell", ChangeCell},
    {"row", ChangeRow},
    {"column", ChangeCol},
    {"style", ChangeStyle},
    {"questions", Read},
    {"update", UpdateTogether},
    {"RecalcLayout", [](TGGrid& grid) { grid.RecalcLayout(Flip()); }},
    {"Invalidate", [](TGGrid& grid) { grid.Invalidate(Flip()); }},
    {"Refresh", [](TGGrid& grid) { grid.Refresh(); }},
    {"FitLastCol", [](TGGrid& grid) { grid.FitLastCol(); }},
    {"MoveView",
     [](TGGrid& grid) {
         grid.MoveView(static_cast<int>(Dice().Between(-500, 500)),
                       static_cast<int>(Dice().Between(-500, 500)));
     }},
    {"ShowAppendRow", [](TGGrid& grid) { grid.ShowAppendRow(); }},
    {"SetRowSpace", [](TGGrid& grid) { grid.SetRowSpace(static_cast<int>(Dice().Below(20))); }},
    {"SetDefaultWidth", [](TGGrid& grid) { grid.SetDefaultWidth(Dice().Between(1, 200)); }},
    {"ShowActive", [](TGGrid& grid) { grid.ShowActive(Flip()); }},
};

void DestroyEditor(TGGrid& grid)
{
    if (const HWND editor = ::GetDlgItem(grid.GetSafeHwnd(), 101))
        ::DestroyWindow(editor);
}

} // namespace

long AnyRow(TGGrid& grid)
{
    return grid.IsEmpty() ? -1 : Dice().Below(grid.GetRowNum());
}

long AnyCol(TGGrid& grid)
{
    return grid.IsColEmpty() ? -1 : Dice().Below(grid.GetColNum());
}

TGGridRow* MakeRow(TGGrid& grid)
{
    TGGridRow* const row = grid.IsTreeGrid() ? new TGGridTreeRow(grid) : new TGGridRow(grid);
    if (Flip())
        row->SetExtendData(new TGRowData);
    return row;
}

void ChooseEditor(TGGridCol& col)
{
    const long kind = Dice().Below(5);
    col.SetComboEdit(kind == 1);
    col.SetComboSel(kind == 2);
    col.SetRightButton(kind == 3);
    col.SetRightSpin(kind == 4);
}

void FillGrid(TGGrid& grid, bool everyEditor)
{
    const long cols = everyEditor ? 5 : Dice().Between(1, MostGridCols);
    for (long i = 0; i < cols; ++i)
        grid.AppendCol(AnyText(8), Dice().Between(30, 120));
    for (long i = 0; i < cols; ++i)
    {
        TGGridCol& col = grid.GetCol(i);
        ChooseEditor(col);
        if (everyEditor)
        {
            col.SetComboEdit(i == 1);
            col.SetComboSel(i == 2);
            col.SetRightButton(i == 3);
            col.SetRightSpin(i == 4);
        }
    }
    const long rows = Dice().Below(14);
    for (long i = 0; i < rows; ++i)
    {
        grid.AppendRow(nullptr);
        for (long col = 0; col < cols; ++col)
            grid.GetCell(i, col).SetText(AnyText(6));
    }
}

void CallGrid(TGGrid& grid)
{
    const Call& call = Dice().Pick(calls);
    Say("%s", call.name);
    call.run(grid);
}

void DoMischief(TGGrid& grid)
{
    switch (Dice().Below(12))
    {
    case 0:
        if (Dice().OneIn(3))
        {
            Say("DestroyWindow");
            grid.DestroyWindow();
        }
        break;
    case 1:
        if (grid.GetSafeHwnd() != nullptr)
            SendAnyMessage(::GetParent(grid), grid);
        break;
    case 2:
        Say("destroys the editor");
        DestroyEditor(grid);
        break;
    case 3:
    case 4:
        CallTreeRows(grid);
        break;
    default:
        CallGrid(grid);
    }
}

} // namespace quor::fuzz
