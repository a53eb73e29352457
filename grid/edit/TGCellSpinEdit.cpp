// A cell's edit with a spin control.
#include "grid/TGCellSpinEdit.h"

#include "grid/edit/CellWatch.h"
#include "grid/TGGrid.h"

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TGCellSpinEdit, TGCellEdit)
    ON_WM_VSCROLL()
    ON_CONTROL_REFLECT(EN_CHANGE, &TGCellSpinEdit::OnEnChange)
END_MESSAGE_MAP()

TGCellSpinEdit::TGCellSpinEdit(TGGridCell& editedCell)
    : TGCellEdit(editedCell), spin(static_cast<TGCellCtrl*>(this))
{
}

TGCellSpinEdit::~TGCellSpinEdit() = default;

void TGCellSpinEdit::Create(CRect& rect)
{
    if (CreateWithRoom(rect) && spin.Create())
        InitSpin();
}

void TGCellSpinEdit::InitSpin()
{
    constexpr int DefaultMaximum = 100000;
    TGGrid& grid = GetCell().GetGrid();
    CellWatch watch(grid, &GetCell());
    spin.SetRange32(0, DefaultMaximum);
    grid.OnCellSpinInit(GetCell(), spin);
    if (spin.m_hWnd == nullptr || watch.Cell() == nullptr || FollowText(GetCell().GetText()))
        return;
    int lower = 0;
    int upper = 0;
    spin.GetRange32(lower, upper);
    spin.SetPos(lower);
}

bool TGCellSpinEdit::FollowText(const CString& text)
{
    const int value = _wtoi(text);
    int lower = 0;
    int upper = 0;
    spin.GetRange32(lower, upper);
    if (value < lower || value > upper)
        return false;
    spin.SetPos(value);
    return true;
}

void TGCellSpinEdit::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    TGCellEdit::OnVScroll(code, position, bar);
    // The position travels in 16 bits, which are taken for a signed number only where the range has negative
    // ones: without that a spin could neither count below zero nor beyond 32767.
    int lower = 0;
    int upper = 0;
    if (spin.m_hWnd != nullptr)
        spin.GetRange32(lower, upper);
    const WORD bits = LOWORD(position);
    CString text;
    text.Format(L"%d", lower < 0 ? static_cast<short>(bits) : static_cast<int>(bits));
    SetNewText(text);
    SetModified(true);
    SelectAllText();
}

void TGCellSpinEdit::OnEnChange()
{
    if (spin.m_hWnd == nullptr)
        return;
    CString text;
    GetNewText(text);
    FollowText(text);
}

} // namespace QuorUiCtr
