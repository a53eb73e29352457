// TGRowSelector: the row header, the narrow window at the grid's left edge.
#pragma once

#include "grid/window/BrushWindowClass.h"
#include "grid/headers/HeaderIcon.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class HeaderDrag;
class TGGrid;

// Draws one box per row, as wide as one row is high, with icons in the current row and in the new-row line.
// The grid makes one (control id 104) when the row header is enabled and owns it. It scrolls vertically with
// the grid. Clicks select rows, with Ctrl and Shift several; dragging moves the selected rows; a drag ends
// without effect when the mouse capture is lost.
class QUOR_EXT_CLASS TGRowSelector : public CWnd
{
public:
    // Creates the window as a child of the grid's; a grid without a window gets none, until MakeWindow. The
    // grid must outlive the object.
    explicit TGRowSelector(TGGrid& grid);
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

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // The row under a point in client coordinates (it may lie outside the rows); the raw y without the grid's
    // drawing context.
    long PtToRow(CPoint point) const;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* newCapture);

private:
    // Moves the origin of `context` to the grid's vertical scroll position.
    void PrepareContext(CDC& context) const;
    // The box of a row in logical coordinates.
    CRect BoxRect(long row) const;
    void DrawRow(CDC& context, long row);
    void DrawNewRow(CDC& context);
    // Draws a row's box over what stands there; nothing for an index outside the rows.
    void RedrawRow(CDC& context, long row);

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

    TGGrid* grid;
    CBrush bkBrush;
    bool dragging = false;
    long dropMarkY = -1;
    long dragRow = -1;
    long markedRow = -1;
    BrushWindowClass windowClass;
    HeaderIcon currentRowIcon;
    HeaderIcon newRowIcon;
};

} // namespace QuorUiCtr
