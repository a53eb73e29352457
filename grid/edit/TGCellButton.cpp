// The push button of a cell's edit.
#include "grid/TGCellButton.h"

#include "grid/edit/CellEditorLife.h"
#include "grid/TGCellCtrl.h"
#include "grid/TGCellCtrlIds.h"
#include "grid/TGCellSpin.h"
#include "grid/TGGrid.h"
#include "grid/window/TipAnswer.h"

namespace QuorUiCtr
{

BEGIN_MESSAGE_MAP(TGCellButton, CButton)
    ON_CONTROL_REFLECT(BN_CLICKED, &TGCellButton::OnBnClicked)
END_MESSAGE_MAP()

TGCellButton::TGCellButton(TGCellCtrl* owningEditor) : owner(owningEditor) {}

TGCellButton::~TGCellButton() = default;

bool TGCellButton::Create()
{
    CRect square;
    if (!RightEndSquare(*owner->GetWnd(), square) ||
        !CButton::Create(L"", WS_CHILD | WS_VISIBLE | WS_BORDER, square, owner->GetWnd(), CellEditorPartId))
        return false;
    EnableToolTips(TRUE);
    return true;
}

TGGrid* TGCellButton::SessionGrid() const
{
    TGGrid* grid = DYNAMIC_DOWNCAST(TGGrid, owner->GetWnd()->GetParent());
    return grid != nullptr && grid->editCell == &owner->GetCell() ? grid : nullptr;
}

void TGCellButton::OnBnClicked()
{
    TGGrid* grid = SessionGrid();
    if (grid == nullptr)
        return;
    CString text;
    owner->GetNewText(text);
    const bool taken = grid->OnCellButtonDown(owner->GetCell(), text);
    // The hook may have destroyed the windows; the objects live on until this message is done.
    if (m_hWnd == nullptr)
        return;
    if (taken)
    {
        owner->SetNewText(text);
        owner->SetModified(true);
    }
    Invalidate();
    if (owner->GetWnd()->IsWindowVisible())
        owner->GetWnd()->SetFocus();
}

INT_PTR TGCellButton::OnToolHitTest(CPoint, TOOLINFO* info) const
{
    const TGGrid* grid = SessionGrid();
    if (grid == nullptr)
        return -1;
    const long row = owner->GetCell().GetRowIndex();
    CString tip;
    const CellEditorLife::Use use(owner);
    if (!grid->OnCellButtonTip(row, owner->GetCell().GetColIndex(), tip) || m_hWnd == nullptr)
        return -1;
    return AnswerTip(*this, tip, row, TTF_CENTERTIP, info);
}

} // namespace QuorUiCtr
