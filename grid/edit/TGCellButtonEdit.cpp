// A cell's edit with a push button.
#include "grid/TGCellButtonEdit.h"

namespace QuorUiCtr
{

TGCellButtonEdit::TGCellButtonEdit(TGGridCell& editedCell)
    : TGCellEdit(editedCell), button(static_cast<TGCellCtrl*>(this))
{
}

TGCellButtonEdit::~TGCellButtonEdit() = default;

void TGCellButtonEdit::Create(CRect& rect)
{
    if (CreateWithRoom(rect))
        button.Create();
}

} // namespace QuorUiCtr
