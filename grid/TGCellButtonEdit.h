// TGCellButtonEdit: a cell's edit with a push button at its right end.
#pragma once

#include "grid/TGCellButton.h"
#include "grid/TGCellEdit.h"
#include "module/QuorExport.h"

namespace QuorUiCtr
{

// The button calls the grid's OnCellButtonDown, which may supply a new text.
class QUOR_EXT_CLASS TGCellButtonEdit : public TGCellEdit
{
public:
    explicit TGCellButtonEdit(TGGridCell& editedCell);
    ~TGCellButtonEdit() override;

    // As TGCellEdit::Create, with the text kept left of the button. A cell higher than wide gets no button.
    void Create(CRect& rect) override;

private:
    TGCellButton button;
};

} // namespace QuorUiCtr
