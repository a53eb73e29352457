// A grid whose hooks do to it what they should rather not.
#pragma once

#include "WindowGrid.h"

#include <functional>
#include <string>

namespace quor::test
{

// Runs an action inside the first calls of one hook. Hooks that the action itself causes run no action; nor
// do later calls, because painting that asks for a repaint would never end.
class HostileGrid : public WindowGrid
{
public:
    explicit HostileGrid(bool tree) : WindowGrid(tree) {}

    // From now on `hook` runs `action`.
    void Arm(const std::string& hook, std::function<void()> action);
    void Disarm();
    // How often the hook was called while it was armed.
    int Strikes() const { return strikes; }

    // The answers to OnBeforeEdit, with commitNewRow set when it is refused, and to OnBeforeInsertRow.
    bool letsEdit = true;
    bool letsInsert = true;

    CWnd* EditorWindow() { return GetDlgItem(101); }

protected:
    using TGCellCtrl = QuorUiCtr::TGCellCtrl;
    using TGGridCell = QuorUiCtr::TGGridCell;
    using TGGridRow = QuorUiCtr::TGGridRow;

    void OnRClickCell(TGGridCell& cell, CPoint point) override;
    bool OnBeforeEdit(TGGridCell& cell, bool& commitNewRow) override;
    TGCellCtrl* OnGetCellEdit(TGGridCell& cell) override;
    void OnCellComboString(TGGridCell& cell, CComboBox& combo) override;
    bool OnCellButtonDown(TGGridCell& cell, CString& text) override;
    void OnCellSpinInit(TGGridCell& cell, CSpinButtonCtrl& spin) override;
    bool OnModified(TGGridCell& cell, CString& text) override;
    void OnDataChanged() override;
    void OnCurChanged() override;
    void OnCmbSelchange(TGGridCell& cell, CComboBox* combo) override;
    void OnCmbEditchange(TGGridCell& cell, CComboBox* combo) override;
    void OnBeforeRefresh(TGGridCell& cell) override;
    bool OnRefresh(TGGridCell& cell) override;
    bool OnRefresh(TGGridRow& row) override;
    bool OnBeforeInsertRow(long position, TGGridRow*& row) override;
    void OnInsertRow(TGGridRow& row) override;
    bool OnCellTip(long row, long col, CString& text) const override;
    bool OnRowTip(long row, CString& text) const override;
    bool OnColTip(long col, CString& text) const override;
    bool OnCellButtonTip(long row, long col, CString& text) const override;
    bool OnActiveQuadTip(CString& text) const override;

private:
    static constexpr int MaxStrikes = 3;

    void Strike(const char* hook) const;
    // Strikes and gives a tip.
    bool Tip(const char* hook, CString& text) const;

    std::string armedHook;
    std::function<void()> armedAction;
    mutable int strikes = 0;
    mutable bool striking = false;
};

} // namespace quor::test
