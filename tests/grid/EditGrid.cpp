// The grid for tests of the edit session.
#include "tests/grid/EditGrid.h"

#include "grid/TGActiveQuad.h"

#include <string_view>

namespace quor::test
{

using samples::HookCall;
using samples::HookGroup;

void EditGrid::Enter(const wchar_t* text)
{
    editor->SetNewText(text);
    editor->SetModified(true);
}

bool EditGrid::ShowsFocus()
{
    return static_cast<QuorUiCtr::TGActiveQuad*>(GetDlgItem(102))->IsActive();
}

std::string EditGrid::TakeEditText()
{
    std::string text;
    for (const std::string& line : TakeLog())
        if (!IsPaintLine(line))
            text += (text.empty() ? "" : " | ") + line;
    return text;
}

LRESULT EditGrid::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_TIMER)
        ++timerMessages[wParam];
    return WindowGrid::WindowProc(message, wParam, lParam);
}

bool EditGrid::Note(const HookCall& call) const
{
    const bool goesOn = WindowGrid::Note(call);
    // What is scripted makes the editor instead.
    return goesOn && !call.Is("OnInsertRow") && !(call.Is("OnGetCellEdit") && makeEditor);
}

void EditGrid::NoteEnd(const char* hook) const
{
    const std::string_view name = hook;
    // A copy, because the action may replace itself.
    if (const auto act = name == "OnDataChanged"  ? dataChanged
                         : name == "OnCurChanged" ? curChanged
                                                  : nullptr)
        act();
}

bool EditGrid::Records(const HookCall& call) const
{
    return recording && call.group != HookGroup::Tip;
}

bool EditGrid::OnBeforeEdit(Cell& cell, bool& commitNewRow)
{
    return WindowGrid::OnBeforeEdit(cell, commitNewRow) && (!beforeEdit || beforeEdit(cell, commitNewRow));
}

QuorUiCtr::TGCellCtrl* EditGrid::OnGetCellEdit(Cell& cell)
{
    editor = WindowGrid::OnGetCellEdit(cell);
    if (makeEditor)
        editor = makeEditor(cell);
    return editor;
}

void EditGrid::OnCellComboString(Cell& cell, CComboBox& combo)
{
    WindowGrid::OnCellComboString(cell, combo);
    if (comboStrings)
        comboStrings(cell, combo);
}

bool EditGrid::OnCellButtonDown(Cell& cell, CString& text)
{
    const bool takesText = WindowGrid::OnCellButtonDown(cell, text);
    return buttonDown ? buttonDown(cell, text) : takesText;
}

void EditGrid::OnCellSpinInit(Cell& cell, CSpinButtonCtrl& spin)
{
    WindowGrid::OnCellSpinInit(cell, spin);
    if (spinInit)
        spinInit(cell, spin);
}

bool EditGrid::OnModified(Cell& cell, CString& text)
{
    return WindowGrid::OnModified(cell, text) && (!modifiedText || modifiedText(cell, text));
}

bool EditGrid::OnBeforeInsertRow(long position, Row*& row)
{
    return WindowGrid::OnBeforeInsertRow(position, row) &&
           (!beforeInsertRow || beforeInsertRow(position, row));
}

void EditGrid::OnInsertRow(Row& row)
{
    WindowGrid::OnInsertRow(row);
    if (insertedRow)
        insertedRow(row);
}

bool EditGrid::OnCellButtonTip(long row, long col, CString& text) const
{
    const bool shows = WindowGrid::OnCellButtonTip(row, col, text);
    return buttonTip ? buttonTip(row, col, text) : shows;
}

void EditTest::Make(EditGrid& grid, long rows, long cols)
{
    Create(grid);
    Fill(grid, rows, cols);
    grid.recording = true;
}

} // namespace quor::test
