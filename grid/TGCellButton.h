// TGCellButton: the push button at the right end of a cell's edit.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGCellCtrl;
class TGGrid;

// A member of the editor that owns it; its window is a child of the editor's. A click does not end the edit
// session: the grid's OnCellButtonDown may show a dialog, and its answer becomes the text of the editor.
// Hosts do not make buttons; they switch them on for a column with TGGridCol::SetRightButton.
class QUOR_EXT_CLASS TGCellButton : public CButton
{
public:
    // `owningEditor` is the editor that has this one as a member. Makes no window.
    explicit TGCellButton(TGCellCtrl* owningEditor);
    ~TGCellButton() override;

    // Creates the button as a square at the right end of the owner's window. Returns false, making no window,
    // when that window is higher than wide: the text would have no room left.
    bool Create();

    // Asks the grid's OnCellButtonTip with the zero-based place of the cell; -1 when that shows no tip.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    DECLARE_MESSAGE_MAP()
    // Hands the owner's text, changed or not, to OnCellButtonDown. When that returns true, takes over its
    // text as typed by the user. Afterwards the editor has the focus again, if it is still shown.
    afx_msg void OnBnClicked();

private:
    // The grid, while it edits the owner's cell: a finished session may have left the cell behind deleted.
    TGGrid* SessionGrid() const;

    // The editor; never null.
    TGCellCtrl* owner;
};

} // namespace QuorUiCtr
