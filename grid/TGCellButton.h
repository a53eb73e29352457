// TGCellButton: the push button at the right end of a cell's edit.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGCellCtrl;
class TGGrid;

// A member of the editor that owns it; its window is a child of the editor's.
class QUOR_EXT_CLASS TGCellButton : public CButton
{
public:
    explicit TGCellButton(TGCellCtrl* owningEditor);
    ~TGCellButton() override;

    // Creates the button as a square at the right end of the owner's window. Returns false, making no window,
    // when that window is higher than wide.
    bool Create();

    // Asks the grid's OnCellButtonTip.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    DECLARE_MESSAGE_MAP()
    // Hands the owner's text to OnCellButtonDown and takes over what it returns.
    afx_msg void OnBnClicked();

private:
    // The grid, while it edits the owner's cell: a finished session may have left the cell behind deleted.
    TGGrid* SessionGrid() const;

    TGCellCtrl* owner;
};

} // namespace QuorUiCtr
