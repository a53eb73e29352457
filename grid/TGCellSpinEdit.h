// TGCellSpinEdit: a cell's edit with a spin control at its right end.
#pragma once

#include "grid/TGCellEdit.h"
#include "grid/TGCellSpin.h"
#include "module/QuorExport.h"

namespace QuorUiCtr
{

// The spin counts from 0 to 100000 unless the grid's OnCellSpinInit sets another range. Its position is set
// by its low 16 bits only, so larger values stay right in the text while the spin goes on from the remainder.
class QUOR_EXT_CLASS TGCellSpinEdit : public TGCellEdit
{
public:
    explicit TGCellSpinEdit(TGGridCell& editedCell);
    ~TGCellSpinEdit() override;

    // As TGCellEdit::Create, with the text kept left of the spin. A cell higher than wide gets no spin.
    void Create(CRect& rect) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnEnChange();

private:
    void InitSpin();
    // Sets the spin to the number that the text begins with, if it lies in the range; returns whether it
    // does.
    bool FollowText(const CString& text);

    TGCellSpin spin;
};

} // namespace QuorUiCtr
