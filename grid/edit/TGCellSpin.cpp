// The spin control of a cell's edit.
#include "grid/TGCellSpin.h"

#include "grid/TGCellCtrl.h"
#include "grid/TGCellCtrlIds.h"

namespace QuorUiCtr
{

TGCellSpin::TGCellSpin(TGCellCtrl* owningEditor) : owner(owningEditor) {}

TGCellSpin::~TGCellSpin() = default;

bool TGCellSpin::Create()
{
    CRect square;
    return RightEndSquare(*owner->GetWnd(), square) &&
           CSpinButtonCtrl::Create(WS_CHILD | WS_VISIBLE, square, owner->GetWnd(), CellEditorPartId);
}

bool RightEndSquare(CWnd& window, CRect& square)
{
    window.GetClientRect(square);
    if (square.Height() > square.Width())
        return false;
    square.left = square.right - square.Height();
    return true;
}

} // namespace QuorUiCtr
