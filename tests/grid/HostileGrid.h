// A grid whose hooks do to it what they should rather not.
#pragma once

#include "tests/grid/WindowGrid.h"

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
    // Hooks that ask strike first and then go on, the others after what their default does.
    bool Note(const samples::HookCall& call) const override;
    void NoteEnd(const char* hook) const override;
    bool OnBeforeEdit(Cell& cell, bool& commitNewRow) override;
    bool OnCellButtonDown(Cell& cell, CString& text) override;
    bool OnCellTip(long row, long col, CString& text) const override;
    bool OnRowTip(long row, CString& text) const override;
    bool OnColTip(long col, CString& text) const override;
    bool OnCellButtonTip(long row, long col, CString& text) const override;
    bool OnActiveQuadTip(CString& text) const override;

private:
    static constexpr int MaxStrikes = 3;

    void Strike(const char* hook) const;

    std::string armedHook;
    std::function<void()> armedAction;
    mutable int strikes = 0;
    mutable bool striking = false;
};

} // namespace quor::test
