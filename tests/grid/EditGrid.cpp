// The grid for tests of the edit session.
#include "EditGrid.h"

#include "ModelGrid.h"
#include "grid/TGActiveQuad.h"

namespace quor::test
{

using QuorUiCtr::TGCellCtrl;
using QuorUiCtr::TGGridCell;
using QuorUiCtr::TGGridRow;

void EditGrid::Note(const char* what, const TGGridCell& cell, const CString& text)
{
    if (!recording)
        return;
    std::string line = what;
    line += " " + std::to_string(cell.GetRowIndex()) + "," + std::to_string(cell.GetColIndex());
    if (!text.IsEmpty())
        line += " " + Narrow(text);
    log.push_back(line);
}

void EditGrid::Enter(const wchar_t* text)
{
    editor->SetNewText(text);
    editor->SetModified(true);
}

bool EditGrid::ShowsFocus()
{
    return static_cast<QuorUiCtr::TGActiveQuad*>(GetDlgItem(102))->IsActive();
}

std::string EditGrid::TakeText()
{
    std::string joined;
    for (const std::string& line : TakeLog())
        joined += (joined.empty() ? "" : " | ") + line;
    return joined;
}

std::string EditGrid::TakeEditText()
{
    std::erase_if(log, [](const std::string& line) {
        return line.starts_with("row ") || line.starts_with("cell ") || line.starts_with("colours ");
    });
    return TakeText();
}

LRESULT EditGrid::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_TIMER)
        ++timerMessages[wParam];
    return WindowGrid::WindowProc(message, wParam, lParam);
}

bool EditGrid::OnBeforeEdit(TGGridCell& cell, bool& commitNewRow)
{
    Note("before", cell);
    return beforeEdit ? beforeEdit(cell, commitNewRow) : WindowGrid::OnBeforeEdit(cell, commitNewRow);
}

TGCellCtrl* EditGrid::OnGetCellEdit(TGGridCell& cell)
{
    Note("editor", cell);
    editor = makeEditor ? makeEditor(cell) : WindowGrid::OnGetCellEdit(cell);
    return editor;
}

bool EditGrid::OnModified(TGGridCell& cell, CString& text)
{
    Note("modified", cell, text);
    return modifiedText ? modifiedText(cell, text) : WindowGrid::OnModified(cell, text);
}

void EditGrid::OnDataChanged()
{
    if (recording)
        log.push_back("changed");
    WindowGrid::OnDataChanged();
    if (dataChanged)
        dataChanged();
}

void EditGrid::OnCurChanged()
{
    WindowGrid::OnCurChanged();
    if (recording)
        log.push_back("cur " + std::to_string(GetCurRowIndex()) + "," + std::to_string(GetCurColIndex()));
    // A copy, because the action may replace itself.
    if (const auto act = curChanged)
        act();
}

bool EditGrid::OnBeforeInsertRow(long position, TGGridRow*& row)
{
    if (recording)
        log.push_back("insert? " + std::to_string(position));
    return beforeInsertRow ? beforeInsertRow(position, row) : WindowGrid::OnBeforeInsertRow(position, row);
}

void EditGrid::OnInsertRow(TGGridRow& row)
{
    if (recording)
        log.push_back("inserted " + std::to_string(row.GetIndex()));
    if (insertedRow)
        insertedRow(row);
}

void EditGrid::OnCmbSelchange(TGGridCell& cell, CComboBox* combo)
{
    Note("sel", cell);
    WindowGrid::OnCmbSelchange(cell, combo);
}

void EditGrid::OnCmbEditchange(TGGridCell& cell, CComboBox* combo)
{
    Note("editchange", cell);
    WindowGrid::OnCmbEditchange(cell, combo);
}

bool EditGrid::OnCellButtonTip(long row, long col, CString& text) const
{
    return buttonTip ? buttonTip(row, col, text) : WindowGrid::OnCellButtonTip(row, col, text);
}

bool EditGrid::OnCellButtonDown(TGGridCell& cell, CString& text)
{
    Note("button", cell, text);
    return buttonDown ? buttonDown(cell, text) : WindowGrid::OnCellButtonDown(cell, text);
}

void EditGrid::OnCellComboString(TGGridCell& cell, CComboBox& combo)
{
    Note("strings", cell);
    if (comboStrings)
        comboStrings(cell, combo);
}

void EditGrid::OnCellSpinInit(TGGridCell& cell, CSpinButtonCtrl& spin)
{
    Note("spin", cell);
    if (spinInit)
        spinInit(cell, spin);
}

void EditTest::Make(EditGrid& grid, long rows, long cols)
{
    Create(grid);
    Fill(grid, rows, cols);
    grid.recording = true;
}

} // namespace quor::test
