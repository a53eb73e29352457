// TGColSelector: the column header, the window along the grid's top edge.
#pragma once

#include "grid/window/BrushWindowClass.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class HeaderBand;
class HeaderDrag;
class TGGrid;
class TGGridCol;

// Draws one caption box per column. The grid makes one (control ColHeaderId) when the column header is
// enabled and owns it. It scrolls horizontally with the grid.
//
// Clicks select columns: one; with Ctrl one more or one less; with Shift all from the one that is selected.
// Dragging a right edge, seen by the cursor, resizes a column and asks nobody. Dragging a selected column
// moves the selection when it is one run of columns: OnBeginMoveCol is asked first, OnMovingCol at each
// place passed over, OnMoveCol at the drop; then the columns move, and OnEndMoveCol and OnDataChanged follow.
// A drag at the left or right end of the view scrolls the grid. It ends without effect when the mouse capture
// is lost. The style word forbids either kind: SetColFixWidth, SetColPosFix.
//
// Hosts reach it through hooks only: OnColTip gives a column a tip, OnRClickCol a menu.
class QUOR_EXT_CLASS TGColSelector : public CWnd
{
public:
    // Creates the window as a child of the grid's; a grid without a window gets none, until MakeWindow. The
    // grid must outlive the object.
    explicit TGColSelector(TGGrid& grid);
    // Destroys the window.
    ~TGColSelector() override;

    // Creates the window when it is not there and the grid has its own; nothing of a drag in an earlier
    // window stays.
    void MakeWindow();

    // Shows the mark of a running drag again, on the grid's drawing context, after the grid has drawn its
    // cells, or what stands in `drawn` (logical coordinates).
    void RestoreMark();
    void RestoreMark(const CRect& drawn);

    // Asks the grid's OnColTip for the column under `point`; -1 beside the columns and without a tip.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // The column under a point in client coordinates, the column count when none contains it; the raw x
    // without the grid's drawing context.
    long PtToCol(CPoint point) const;

    // Extensions of the grid see a message first.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()
    // The boxes in the clip box, with captions of several lines.
    afx_msg void OnPaint();
    // Takes the focus, which ends an edit, and the capture; selects a column or begins a drag.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    // Carries a drag on.
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    // The two-headed arrow at an edge that can be dragged.
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    // Carries a drag out and gives the focus back to the grid.
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    // Selects the column under the point, unless it is selected, and calls OnRClickCol.
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    // Takes the mark off and forgets the drag.
    afx_msg void OnCaptureChanged(CWnd* newCapture);

private:
    friend class TGGridExtension;

    // How CDC::DrawText draws a caption, and where in its box.
    static UINT CaptionFormat(const TGGridCol& col);
    static CRect CaptionPlace(const TGGrid& grid, const CRect& box);

    // Where the header stands, and how its boxes are drawn.
    HeaderBand Band() const;
    // The caption of a column, in the column's alignment.
    void DrawCaption(CDC& context, TGGridCol& col, const CRect& box) const;
    // The caption as extensions want it.
    void DrawExtended(CDC& context, TGGridCol& col, const CRect& box, CRect place) const;

    // Mouse.
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

    // The fields up to markX keep this order, for hosts that were compiled with it.
    // The grid that owns the window; never null.
    TGGrid* grid;
    // The background, in the colour of buttons.
    CBrush bkBrush;
    // The selected columns are dragged; an edge is dragged. Never both.
    bool moving = false;
    bool resizing = false;
    // The column whose right edge is, or was last, dragged.
    long resizeCol = -1;
    // The logical x of the mark that is inverted across the cells, -1 while there is none.
    long markX = -1;
    // The window class with that background.
    BrushWindowClass windowClass;
};

} // namespace QuorUiCtr
