// The combo box editor of a cell.
#include "grid/TGCellCombo.h"

#include "grid/edit/CellEditorLife.h"
#include "grid/edit/CellWatch.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGGrid.h"

namespace QuorUiCtr
{
namespace
{

// The combo begins on the cell's left and upper lines. The height that its window is made with is that of the
// field and of the list that drops below it.
CRect ComboWindowRect(const CRect& cell)
{
    constexpr int DroppedCellHeights = 11;
    const long fieldBottom = cell.bottom - 1;
    return CRect(cell.left - 1, cell.top - 1, cell.right, fieldBottom + DroppedCellHeights * cell.Height());
}

} // namespace

BEGIN_MESSAGE_MAP(TGCellCombo, CComboBox)
    ON_CONTROL_REFLECT(CBN_KILLFOCUS, &TGCellCombo::OnCbnKillfocus)
    ON_CONTROL_REFLECT(CBN_SETFOCUS, &TGCellCombo::OnCbnSetfocus)
    ON_CONTROL_REFLECT(CBN_EDITCHANGE, &TGCellCombo::OnCbnEditchange)
    ON_CONTROL_REFLECT(CBN_SELCHANGE, &TGCellCombo::OnCbnSelchange)
END_MESSAGE_MAP()

TGCellCombo::TGCellCombo(TGGridCell& editedCell, bool editableText)
    : TGCellCtrl(editedCell), editable(editableText)
{
}

TGCellCombo::~TGCellCombo() = default;

void TGCellCombo::Create(CRect& rect)
{
    constexpr int FieldInset = 4;
    const DWORD kind = editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST | CBS_AUTOHSCROLL;
    TGGridCell& edited = GetCell();
    TGGrid& grid = edited.GetGrid();
    modified = false;
    CComboBox::Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | kind, ComboWindowRect(rect), &grid, CellEditorId);
    const UINT fieldHeight = static_cast<UINT>(grid.GetRowHeight() - FieldInset);
    SetItemHeight(-1, fieldHeight);
    CellWatch watch(grid, &edited);
    grid.OnCellComboString(edited, *this);
    // The hook may have destroyed the windows; the object lives on until its creation is done.
    if (m_hWnd == nullptr || watch.Cell() == nullptr)
        return;
    const CString text = edited.GetText();
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(grid.GetFont()->GetSafeHandle()), TRUE);
    // A new font makes the field as high as it likes.
    SetItemHeight(-1, fieldHeight);
    if (!editable)
        SetCurSel(FindString(-1, text));
    SetWindowText(text);
    SetFocus();
}

bool TGCellCombo::IsLeftEnd()
{
    return !editable || HIWORD(GetEditSel()) == 0;
}

bool TGCellCombo::IsRightEnd()
{
    return !editable || HIWORD(GetEditSel()) == GetWindowTextLength();
}

void TGCellCombo::AfterSelChange() {}

TGGrid* TGCellCombo::GetGrid() const
{
    return m_hWnd != nullptr ? DYNAMIC_DOWNCAST(TGGrid, GetParent()) : nullptr;
}

void TGCellCombo::PostNcDestroy()
{
    CComboBox::PostNcDestroy();
    CellEditorLife::DeleteWhenIdle(this);
}

void TGCellCombo::OnCbnSetfocus()
{
    if (TGGrid* grid = GetGrid())
        grid->ShowActive(true);
}

void TGCellCombo::OnCbnKillfocus()
{
    const CellEditorLife::Use use(this);
    TGGrid* grid = GetGrid();
    if (grid == nullptr)
        return;
    if (!grid->IsMyFocus(CWnd::GetFocus()))
        grid->ShowActive(false);
    grid->EndEditCell();
}

void TGCellCombo::OnCbnEditchange()
{
    modified = true;
}

void TGCellCombo::OnCbnSelchange()
{
    // The notification is a message of the grid: a hook that opens another cell must not delete this editor.
    const CellEditorLife::Use use(this);
    modified = true;
    if (TGGrid* grid = GetGrid())
        grid->OnCbnSelchange();
    AfterSelChange();
}

} // namespace QuorUiCtr
