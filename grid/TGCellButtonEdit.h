// TGCellButtonEdit: a cell's edit with a push button at its right end.
#pragma once

#include "grid/TGCellButton.h"
#include "grid/TGCellEdit.h"
#include "module/QuorExport.h"

namespace QuorUiCtr
{

// A text field as TGCellEdit for values that can be typed and also looked up: a file, a date, an entry of a
// catalogue. The button calls the grid's OnCellButtonDown, which may supply a new text; it does nothing by
// itself. Made by the default OnGetCellEdit for columns with TGGridCol::SetRightButton.
//
//     bool FileGrid::OnCellButtonDown(TGGridCell& cell, CString& text)
//     {
//         CFileDialog dialog(TRUE, nullptr, text);
//         const bool chosen = dialog.DoModal() == IDOK;
//         if (chosen)
//             text = dialog.GetPathName();
//         return chosen;
//     }
class QUOR_EXT_CLASS TGCellButtonEdit : public TGCellEdit
{
public:
    // Without windows, which Create makes.
    explicit TGCellButtonEdit(TGGridCell& editedCell);
    ~TGCellButtonEdit() override;

    // As TGCellEdit::Create, with the text kept left of the button. A cell higher than wide gets no button.
    void Create(CRect& rect) override;

private:
    // Its window goes with the editor's.
    TGCellButton button;
};

} // namespace QuorUiCtr
