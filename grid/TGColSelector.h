// TGColSelector: the column header, the window along the grid's top edge.
#pragma once

#include "grid/BrushWindowClass.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;
class TGGridCol;

// Draws one caption box per column. The grid makes one (control id 103) when the column header is enabled and
// owns it. It scrolls horizontally with the grid.
class AFX_EXT_CLASS TGColSelector : public CWnd
{
public:
    // Creates the window as a child of `grid`.
    explicit TGColSelector(TGGrid& grid);
    ~TGColSelector() override;

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override;

protected:
    // The column under a point in client coordinates, the column count when none contains it; the raw x
    // without the grid's drawing context.
    long PtToCol(CPoint point) const;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();

private:
    // Moves the origin of `context` to the grid's horizontal scroll position.
    void PrepareContext(CDC& context) const;
    void DrawCaption(CDC& context, const TGGridCol& col, const CRect& box) const;

    TGGrid* grid;
    CBrush bkBrush;
    bool moving = false;
    bool resizing = false;
    long resizeCol = -1;
    long markX = -1;
    BrushWindowClass windowClass;
};

} // namespace QuorUiCtr
