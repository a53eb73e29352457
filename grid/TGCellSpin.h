// TGCellSpin: the spin control at the right end of a cell's edit.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcmn.h>

namespace QuorUiCtr
{

class TGCellCtrl;

// A member of the editor that owns it; its window is a child of the editor's. It is the platform's up-down
// control without a buddy: it tells the editor by WM_VSCROLL, and the editor writes the text. Hosts meet it
// in OnCellSpinInit, where they set range and acceleration, and switch it on with TGGridCol::SetRightSpin.
class QUOR_EXT_CLASS TGCellSpin : public CSpinButtonCtrl
{
public:
    // `owningEditor` is the editor that has this one as a member. Makes no window.
    explicit TGCellSpin(TGCellCtrl* owningEditor);
    ~TGCellSpin() override;

    // Creates the spin as a square at the right end of the owner's window. Returns false, making no window,
    // when that window is higher than wide.
    bool Create();

private:
    // The editor; never null.
    TGCellCtrl* owner;
};

// Where buttons and spins of cell editors go: the square at the right end of `window`'s client area, in its
// client coordinates; false when the window is higher than wide.
bool RightEndSquare(CWnd& window, CRect& square);

} // namespace QuorUiCtr
