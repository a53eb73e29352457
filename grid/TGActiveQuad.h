// TGActiveQuad: the corner window where the grid's two headers meet.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// Shows whether the grid has the keyboard focus; a double click selects all rows. The grid makes one (control
// id 102) when both headers are enabled and owns it.
class QUOR_EXT_CLASS TGActiveQuad : public CWnd
{
public:
    // Creates the window as a child of the grid's; a grid without a window gets none, until MakeWindow. The
    // grid must outlive the object.
    explicit TGActiveQuad(TGGrid& grid);
    ~TGActiveQuad() override;

    // Creates the window, inactive, when it is not there and the grid has its own.
    void MakeWindow();

    bool IsActive() const { return active; }
    // Stores the state and repaints the window.
    void ShowActive(bool newActive);

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);

private:
    void FocusGrid();

    bool active = false;
    TGGrid* grid;
};

} // namespace QuorUiCtr
