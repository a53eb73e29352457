// TGRowSelector: the row header, the narrow window at the grid's left edge.
#pragma once

#include "grid/window/BrushWindowClass.h"
#include "grid/headers/HeaderIcon.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class HeaderBand;
class HeaderDrag;
class HeaderPainter;
class TGGrid;

// Draws one box per row, as wide as one row is high, with icons in the current row and in the new-row line.
// The grid makes one (control RowHeaderId) when the row header is enabled and owns it. It scrolls vertically
// with the grid.
//
// Clicks select rows: one; with Ctrl one more or one less; with Shift all up to a selection without gaps. A
// click on the box of the new-row line appends a row, or ends the edit that is open there and so enters its
// row. Dragging moves the selected rows, if none of them is an unfolded parent or may not be deleted:
// OnBeginMoveRow is asked first, OnMovingRow at each place passed over, OnMoveRow at the drop; then the rows
// move, and OnEndMoveRow and OnDataChanged follow. A drag at the upper or lower end of the view scrolls the
// grid. It ends without effect when the mouse capture is lost. SetRowPosFix forbids drags, SetSingleSelRow
// Ctrl and Shift.
//
// Hosts reach it through hooks only: OnRowTip gives a row a tip, OnRClickRow a menu, OnDblClick an action.
class QUOR_EXT_CLASS TGRowSelector : public CWnd
{
public:
    // Creates the window as a child of the grid's; a grid without a window gets none, until MakeWindow. The
    // grid must outlive the object.
    explicit TGRowSelector(TGGrid& grid);
    // Destroys the window.
    ~TGRowSelector() override;

    // Creates the window when it is not there and the grid has its own; nothing of a drag in an earlier
    // window stays.
    void MakeWindow();

    // Shows the drop mark of a running drag again, on the grid's drawing context, after the grid has drawn
    // its cells, or what stands in `drawn` (logical coordinates).
    void RestoreDropMark();
    void RestoreDropMark(const CRect& drawn);

    // The grid's current row changed: moves the icon from the marked row to the current one, drawing at once.
    void OnCurRowChanged();

    // Asks the grid's OnRowTip for the row under `point`; -1 beside the rows and without a tip.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // The row under a point in client coordinates (it may lie outside the rows); the raw y without the grid's
    // drawing context.
    long PtToRow(CPoint point) const;

    // Extensions of the grid see a message first.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()
    // The boxes in the clip box.
    afx_msg void OnPaint();
    // Takes the focus, which ends an edit, and the capture; selects a row or begins a drag.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    // Carries a drag on.
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    // Carries a drag out and gives the focus back to the grid.
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    // Selects the row under the point, unless it is selected, and calls OnRClickRow.
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    // Calls OnDblClick for the row under the point.
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    // Takes the mark off and forgets the drag.
    afx_msg void OnCaptureChanged(CWnd* newCapture);

private:
    // Where the header stands, and how its boxes are drawn.
    HeaderBand Band() const;
    // The box of a row in logical coordinates.
    CRect BoxRect(const HeaderPainter& painter, long row) const;
    // The box of a row and the icon in it, which may be null.
    void DrawBox(const HeaderPainter& painter, long row, HeaderIcon* icon);
    // Draws a row's box over what stands there; nothing for an index outside the rows.
    void RedrawRow(const HeaderPainter& painter, long row);

    // Mouse.
    void ClickNewRowBox();
    void ClickRow(long row);
    void ExtendSelection(long row);
    void BeginDrag(long row);
    // The mark of the drag, and scrolling.
    HeaderDrag Drag();
    void DragTo(long row);
    void Drop(long to);
    void CancelDrag();

    // The fields up to markedRow keep this order, for hosts that were compiled with it.
    // The grid that owns the window; never null.
    TGGrid* grid;
    // The background, in the colour of buttons.
    CBrush bkBrush;
    // The selected rows are dragged.
    bool dragging = false;
    // The logical y of the mark that is inverted across the cells, -1 while there is none.
    long dropMarkY = -1;
    // The row that the drag began on; a drop there changes nothing.
    long dragRow = -1;
    // The row that shows the icon of the current row, -1 for none.
    long markedRow = -1;
    // The window class with that background.
    BrushWindowClass windowClass;
    HeaderIcon currentRowIcon;
    HeaderIcon newRowIcon;
};

} // namespace QuorUiCtr
