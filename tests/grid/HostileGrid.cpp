// A grid whose hooks do to it what they should rather not.
#include "HostileGrid.h"

namespace quor::test
{

using namespace QuorUiCtr;

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

bool HostileGrid::Tip(const char* hook, CString& text) const
{
    Strike(hook);
    text = L"tip";
    return true;
}

// ---- Hooks that observe: the action comes last, after what the default does
// --------------------------------

void HostileGrid::OnRClickCell(TGGridCell& cell, CPoint point)
{
    WindowGrid::OnRClickCell(cell, point);
    Strike("OnRClickCell");
}

void HostileGrid::OnCellComboString(TGGridCell& cell, CComboBox& combo)
{
    WindowGrid::OnCellComboString(cell, combo);
    Strike("OnCellComboString");
}

void HostileGrid::OnCellSpinInit(TGGridCell& cell, CSpinButtonCtrl& spin)
{
    WindowGrid::OnCellSpinInit(cell, spin);
    Strike("OnCellSpinInit");
}

void HostileGrid::OnDataChanged()
{
    WindowGrid::OnDataChanged();
    Strike("OnDataChanged");
}

void HostileGrid::OnCurChanged()
{
    WindowGrid::OnCurChanged();
    Strike("OnCurChanged");
}

void HostileGrid::OnCmbSelchange(TGGridCell& cell, CComboBox* combo)
{
    WindowGrid::OnCmbSelchange(cell, combo);
    Strike("OnCmbSelchange");
}

void HostileGrid::OnCmbEditchange(TGGridCell& cell, CComboBox* combo)
{
    WindowGrid::OnCmbEditchange(cell, combo);
    Strike("OnCmbEditchange");
}

void HostileGrid::OnBeforeRefresh(TGGridCell& cell)
{
    WindowGrid::OnBeforeRefresh(cell);
    Strike("OnBeforeRefresh");
}

void HostileGrid::OnInsertRow(TGGridRow& row)
{
    WindowGrid::OnInsertRow(row);
    Strike("OnInsertRow");
}

// ---- Hooks that answer: the action comes first, then the answer is to go on
// --------------------------------

bool HostileGrid::OnBeforeEdit(TGGridCell&, bool& commitNewRow)
{
    Strike("OnBeforeEdit");
    commitNewRow = !letsEdit;
    return letsEdit || striking;
}

bool HostileGrid::OnModified(TGGridCell&, CString&)
{
    Strike("OnModified");
    return true;
}

bool HostileGrid::OnRefresh(TGGridCell&)
{
    Strike("OnRefresh cell");
    return true;
}

bool HostileGrid::OnRefresh(TGGridRow&)
{
    Strike("OnRefresh row");
    return true;
}

bool HostileGrid::OnBeforeInsertRow(long, TGGridRow*&)
{
    Strike("OnBeforeInsertRow");
    return letsInsert;
}

bool HostileGrid::OnCellButtonDown(TGGridCell&, CString& text)
{
    Strike("OnCellButtonDown");
    text = L"from the button";
    return true;
}

TGCellCtrl* HostileGrid::OnGetCellEdit(TGGridCell& cell)
{
    TGCellCtrl* editor = WindowGrid::OnGetCellEdit(cell);
    Strike("OnGetCellEdit");
    return editor;
}

bool HostileGrid::OnCellTip(long, long, CString& text) const
{
    return Tip("OnCellTip", text);
}

bool HostileGrid::OnRowTip(long, CString& text) const
{
    return Tip("OnRowTip", text);
}

bool HostileGrid::OnColTip(long, CString& text) const
{
    return Tip("OnColTip", text);
}

bool HostileGrid::OnCellButtonTip(long, long, CString& text) const
{
    return Tip("OnCellButtonTip", text);
}

bool HostileGrid::OnActiveQuadTip(CString& text) const
{
    return Tip("OnActiveQuadTip", text);
}

} // namespace quor::test
