// A grid whose hooks do to it what they should rather not.
#include "tests/grid/HostileGrid.h"

namespace quor::test
{

namespace
{

bool Answer(CString& text)
{
    text = L"tip";
    return true;
}

} // namespace

void HostileGrid::Arm(const std::string& hook, std::function<void()> action)
{
    armedHook = hook;
    armedAction = std::move(action);
    strikes = 0;
}

void HostileGrid::Disarm()
{
    armedHook.clear();
    armedAction = nullptr;
}

void HostileGrid::Strike(const char* hook) const
{
    if (striking || strikes >= MaxStrikes || armedHook != hook)
        return;
    striking = true;
    ++strikes;
    armedAction();
    striking = false;
}

bool HostileGrid::Note(const samples::HookCall& call) const
{
    if (call.asks)
        Strike(call.hook);
    return letsInsert || !call.Is("OnBeforeInsertRow");
}

void HostileGrid::NoteEnd(const char* hook) const
{
    Strike(hook);
}

bool HostileGrid::OnBeforeEdit(Cell& cell, bool& commitNewRow)
{
    WindowGrid::OnBeforeEdit(cell, commitNewRow);
    commitNewRow = !letsEdit;
    return letsEdit || striking;
}

bool HostileGrid::OnCellButtonDown(Cell& cell, CString& text)
{
    WindowGrid::OnCellButtonDown(cell, text);
    text = L"from the button";
    return true;
}

// ---- Tips

bool HostileGrid::OnCellTip(long row, long col, CString& text) const
{
    WindowGrid::OnCellTip(row, col, text);
    return Answer(text);
}

bool HostileGrid::OnRowTip(long row, CString& text) const
{
    WindowGrid::OnRowTip(row, text);
    return Answer(text);
}

bool HostileGrid::OnColTip(long col, CString& text) const
{
    WindowGrid::OnColTip(col, text);
    return Answer(text);
}

bool HostileGrid::OnCellButtonTip(long row, long col, CString& text) const
{
    WindowGrid::OnCellButtonTip(row, col, text);
    return Answer(text);
}

bool HostileGrid::OnActiveQuadTip(CString& text) const
{
    WindowGrid::OnActiveQuadTip(text);
    return Answer(text);
}

} // namespace quor::test
