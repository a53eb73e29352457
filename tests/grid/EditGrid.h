// A grid for tests of the edit session: writes down the hooks of an edit and lets a test script them.
#pragma once

#include "WindowGrid.h"
#include "grid/TGCellCtrl.h"

#include <functional>
#include <map>

namespace quor::test
{

// Writes "before 1,2", "editor 1,2", "modified 1,2 text", "changed", "cur 1,2", "insert? 3", "inserted 3",
// "sel 1,2", "editchange 1,2", "button 1,2 text", "strings 1,2", "spin 1,2" into the log. A scripted answer
// replaces the default one; a script runs after its line was written.
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
    // The log as one text, lines joined by " | ", and empties it; the second leaves out what only tells of
    // painting.
    std::string TakeText();
    std::string TakeEditText();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnBeforeEdit(QuorUiCtr::TGGridCell& cell, bool& commitNewRow) override;
    QuorUiCtr::TGCellCtrl* OnGetCellEdit(QuorUiCtr::TGGridCell& cell) override;
    bool OnModified(QuorUiCtr::TGGridCell& cell, CString& text) override;
    void OnDataChanged() override;
    void OnCurChanged() override;
    bool OnBeforeInsertRow(long position, QuorUiCtr::TGGridRow*& row) override;
    void OnInsertRow(QuorUiCtr::TGGridRow& row) override;
    void OnCmbSelchange(QuorUiCtr::TGGridCell& cell, CComboBox* combo) override;
    void OnCmbEditchange(QuorUiCtr::TGGridCell& cell, CComboBox* combo) override;
    bool OnCellButtonTip(long row, long col, CString& text) const override;
    bool OnCellButtonDown(QuorUiCtr::TGGridCell& cell, CString& text) override;
    void OnCellComboString(QuorUiCtr::TGGridCell& cell, CComboBox& combo) override;
    void OnCellSpinInit(QuorUiCtr::TGGridCell& cell, CSpinButtonCtrl& spin) override;

private:
    void Note(const char* what, const QuorUiCtr::TGGridCell& cell, const CString& text = CString());
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
