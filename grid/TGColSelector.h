// TGColSelector: the column header, the window along the grid's top edge.
#pragma once

#include "grid/window/BrushWindowClass.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class HeaderDrag;
class TGGrid;
class TGGridCol;

// Draws one caption box per column. The grid makes one (control id 103) when the column header is enabled and
// owns it. It scrolls horizontally with the grid. Clicks select columns, with Ctrl and Shift several;
// dragging a right edge resizes a column, dragging a selected column moves the selection; a drag ends without
// effect when the mouse capture is lost.
class QUOR_EXT_CLASS TGColSelector : public CWnd
{
public:
    // Creates the window as a child of the grid's; a grid without a window gets none, until MakeWindow. The
    // grid must outlive the object.
    explicit TGColSelector(TGGrid& grid);
    ~TGColSelector() override;

    // Creates the window when it is not there and the grid has its own; nothing of a drag in an earlier
    // window stays.
    void MakeWindow();

    // Shows the mark of a running drag again, on the grid's drawing context, after the grid has drawn its
    // cells, or what stands in `drawn` (logical coordinates).
    void RestoreMark();
    void RestoreMark(const CRect& drawn);

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // The column under a point in client coordinates, the column count when none contains it; the raw x
    // without the grid's drawing context.
    long PtToCol(CPoint point) const;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* newCapture);

private:
    // Moves the origin of `context` to the grid's horizontal scroll position.
    void PrepareContext(CDC& context) const;
    void DrawCaption(CDC& context, const TGGridCol& col, const CRect& box) const;

    // Mouse.
    long LogicalX(CPoint point) const;
    long ColWithEdgeAt(long x) const;
    void ClickCol(long col);
    void ExtendSelection(long col);
    void BeginMove();
    // The mark of the drag, and scrolling.
    HeaderDrag Drag();
    long CutColumnWidth(CPoint point) const;
    void MarkMoveTarget(long col);
    void ResizeTo(long x);
    void DropAt(long to);
    void CancelDrag();

    TGGrid* grid;
    CBrush bkBrush;
    bool moving = false;
    bool resizing = false;
    long resizeCol = -1;
    long markX = -1;
    BrushWindowClass windowClass;
};

} // namespace QuorUiCtr
