// TGRowSelector: the row header, the narrow window at the grid's left edge.
#pragma once

#include "grid/BrushWindowClass.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// Draws one box per row, as wide as one row is high, with icons in the current row and in the new-row line.
// The grid makes one (control id 104) when the row header is enabled and owns it. It scrolls vertically with
// the grid.
class AFX_EXT_CLASS TGRowSelector : public CWnd
{
public:
    // Creates the window as a child of `grid`.
    explicit TGRowSelector(TGGrid& grid);
    ~TGRowSelector() override;

    // The grid's current row changed: moves the icon from the marked row to the current one, drawing at once.
    void OnCurRowChanged();

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // The row under a point in client coordinates (it may lie outside the rows); the raw y without the grid's
    // drawing context.
    long PtToRow(CPoint point) const;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();

private:
    // Moves the origin of `context` to the grid's vertical scroll position.
    void PrepareContext(CDC& context) const;
    // The box of a row in logical coordinates.
    CRect BoxRect(long row) const;
    void DrawRow(CDC& context, long row) const;
    void DrawNewRow(CDC& context) const;
    void DrawRowIcon(CDC& context, long row, UINT iconId) const;
    // Draws a row's box over what stands there; nothing for an index outside the rows.
    void RedrawRow(CDC& context, long row);

    TGGrid* grid;
    CBrush bkBrush;
    bool dragging = false;
    long dropMarkY = -1;
    long dragRow = -1;
    long markedRow = -1;
    BrushWindowClass windowClass;
};

} // namespace QuorUiCtr
