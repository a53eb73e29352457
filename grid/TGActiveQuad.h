// TGActiveQuad: the corner window where the grid's two headers meet.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// Shows whether the grid has the keyboard focus, by the colour of active captions; a double click selects all
// rows. The grid makes one (control QuadId) when both headers are enabled and owns it. It is as wide as the
// row header and as high as the column header; the grid places it.
//
// Hosts reach it through hooks only: OnActiveQuadTip gives it a tip, OnRClickQuad a menu.
class QUOR_EXT_CLASS TGActiveQuad : public CWnd
{
public:
    // Creates the window as a child of the grid's; a grid without a window gets none, until MakeWindow. The
    // grid must outlive the object.
    explicit TGActiveQuad(TGGrid& grid);
    // Destroys the window.
    ~TGActiveQuad() override;

    // Creates the window, inactive, when it is not there and the grid has its own.
    void MakeWindow();

    // As ShowActive said last; false for a new window.
    bool IsActive() const { return active; }
    // Stores the state and repaints the window, if there is one. TGGrid::ShowActive calls it, for the grid
    // and for its editors.
    void ShowActive(bool newActive);

    // Asks the grid's OnActiveQuadTip; -1 when that shows no tip.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // Extensions of the grid see a message first.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()
    // A header box with a coloured inside.
    afx_msg void OnPaint();
    // Gives the grid the focus, which ends an edit of a cell.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    // The same, and selects all rows, also where the user may select only one.
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    // Gives the grid the focus and calls OnRClickQuad with the point in screen coordinates.
    afx_msg void OnRButtonUp(UINT flags, CPoint point);

private:
    // Runs hooks: an edit may end.
    void FocusGrid();

    // The fields keep this order, for hosts that were compiled with it. Is shown as focused.
    bool active = false;
    // The grid that owns the window; never null.
    TGGrid* grid;
};

} // namespace QuorUiCtr
