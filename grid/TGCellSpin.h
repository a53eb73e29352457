// TGCellSpin: the spin control at the right end of a cell's edit.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>
#include <afxcmn.h>

namespace QuorUiCtr
{

class TGCellCtrl;

// A member of the editor that owns it; its window is a child of the editor's.
class QUOR_EXT_CLASS TGCellSpin : public CSpinButtonCtrl
{
public:
    explicit TGCellSpin(TGCellCtrl* owningEditor);
    ~TGCellSpin() override;

    // Creates the spin as a square at the right end of the owner's window. Returns false, making no window,
    // when that window is higher than wide.
    bool Create();

private:
    TGCellCtrl* owner;
};

// The square at the right end of `window`'s client area, in its client coordinates; false when the window is
// higher than wide.
bool RightEndSquare(CWnd& window, CRect& square);

} // namespace QuorUiCtr
