// TGCellSpinEdit: a cell's edit with a spin control at its right end.
#pragma once

#include "grid/TGCellEdit.h"
#include "grid/TGCellSpin.h"
#include "module/QuorExport.h"

namespace QuorUiCtr
{

// A text field as TGCellEdit for whole numbers, which the spin counts up and down; typing is not restricted.
// Made by the default OnGetCellEdit for columns with TGGridCol::SetRightSpin.
//
// The spin counts from 0 to 100000 unless the grid's OnCellSpinInit sets another range. Its position is set
// by its low 16 bits only, so larger values stay right in the text while the spin goes on from the remainder.
class QUOR_EXT_CLASS TGCellSpinEdit : public TGCellEdit
{
public:
    // Without windows, which Create makes.
    explicit TGCellSpinEdit(TGGridCell& editedCell);
    ~TGCellSpinEdit() override;

    // As TGCellEdit::Create, with the text kept left of the spin. A cell higher than wide gets no spin, and
    // OnCellSpinInit is not called. The spin starts from the number in the cell or, when that lies outside
    // the range, from the lower end; the text stays as it is until the user counts.
    void Create(CRect& rect) override;

protected:
    DECLARE_MESSAGE_MAP()
    // The user counted: the number becomes the text, all selected, as if it had been typed.
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    // The text changed: the spin goes on from the number it begins with, if that lies in the range.
    afx_msg void OnEnChange();

private:
    // The range, by OnCellSpinInit, and the first position.
    void InitSpin();
    // Sets the spin to the number that the text begins with, if it lies in the range; returns whether it
    // does.
    bool FollowText(const CString& text);

    // Its window goes with the editor's.
    TGCellSpin spin;
};

} // namespace QuorUiCtr
