// A grid for tests of the edit session: writes down the hooks of an edit and lets a test script them.
#pragma once

#include "grid/TGCellCtrl.h"
#include "tests/grid/WindowGrid.h"

#include <functional>
#include <map>

namespace quor::test
{

// While recording it writes every hook but those of tips. A scripted answer replaces the default one; a
// script runs after its line was written. Leaves out the default of OnInsertRow: OnDataChanged, which the end
// of the edit calls, too.
class EditGrid : public WindowGrid
{
public:
    explicit EditGrid(bool tree = false) : WindowGrid(tree) {}

    std::function<bool(QuorUiCtr::TGGridCell&, bool&)> beforeEdit;
    std::function<bool(QuorUiCtr::TGGridCell&, CString&)> modifiedText;
    std::function<void()> dataChanged;
    std::function<void()> curChanged;
    std::function<bool(long, QuorUiCtr::TGGridRow*&)> beforeInsertRow;
    std::function<void(QuorUiCtr::TGGridRow&)> insertedRow;
    std::function<bool(QuorUiCtr::TGGridCell&, CString&)> buttonDown;
    std::function<void(QuorUiCtr::TGGridCell&, CComboBox&)> comboStrings;
    std::function<void(QuorUiCtr::TGGridCell&, CSpinButtonCtrl&)> spinInit;
    std::function<bool(long, long, CString&)> buttonTip;
    std::function<QuorUiCtr::TGCellCtrl*(QuorUiCtr::TGGridCell&)> makeEditor;

    // How often the timer of an id has fired.
    std::map<UINT_PTR, int> timerMessages;
    // The editor that was made last; the test ends its use with the session.
    QuorUiCtr::TGCellCtrl* editor = nullptr;
    CWnd* EditorWindow() { return GetDlgItem(101); }
    // The button or the spin of the editor.
    CWnd* EditorPart() { return EditorWindow()->GetDlgItem(105); }
    // The corner shows the grid as focused.
    bool ShowsFocus();
    // Types into the open editor as far as the grid can tell: sets text and modified mark.
    void Enter(const wchar_t* text);
    // TakeText() without what only tells of painting.
    std::string TakeEditText();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool Note(const samples::HookCall& call) const override;
    void NoteEnd(const char* hook) const override;
    bool Records(const samples::HookCall& call) const override;
    bool OnBeforeEdit(Cell& cell, bool& commitNewRow) override;
    QuorUiCtr::TGCellCtrl* OnGetCellEdit(Cell& cell) override;
    void OnCellComboString(Cell& cell, CComboBox& combo) override;
    bool OnCellButtonDown(Cell& cell, CString& text) override;
    void OnCellSpinInit(Cell& cell, CSpinButtonCtrl& spin) override;
    bool OnModified(Cell& cell, CString& text) override;
    bool OnBeforeInsertRow(long position, Row*& row) override;
    void OnInsertRow(Row& row) override;
    bool OnCellButtonTip(long row, long col, CString& text) const override;
};

// A grid of editors in a host window.
class EditTest : public GridWindowTest
{
protected:
    // Three rows and columns whose cells read "row,col", with the log on.
    void Make(EditGrid& grid, long rows = 3, long cols = 3);
    static CString TextOf(EditGrid& grid, long row, long col) { return grid.GetCell(row, col).GetText(); }
};

} // namespace quor::test
