// CSplitterWnd: a window divided into panes whose sizes the user changes.
#pragma once

#include "fx/wnd.h"
#include "afxres.h"
#include "atltypes.h"
#include <vector>

class CView;
struct CCreateContext;

// The user makes and removes panes; without it their number is fixed.
#define SPLS_DYNAMIC_SPLIT 0x0001
#define SPLS_INVERT_TRACKER 0x0002

namespace quorfx
{

// A row or a column of panes, in pixels.
struct SplitLine
{
    int ideal = 0;   // as wanted
    int least = 0;   // a smaller one is not shown
    int current = 0; // as it is
};

} // namespace quorfx

// The contents of a frame, or of a pane of another splitter. Dynamic (Create): up to two rows and columns of
// the same kind of view, which the user splits off and removes; the panes of a row share a vertical scroll
// bar and those of a column a horizontal one. Static (CreateStatic): up to 16 rows and columns; CreateView is
// called for every pane. Usually a member of the frame's object, created in OnCreateClient. Panes delete
// themselves if their class does.
class QFX_API CSplitterWnd : public CWnd
{
    DECLARE_DYNAMIC(CSplitterWnd)

public:
    CSplitterWnd();
    ~CSplitterWnd() override;

    // Create a dynamic splitter with one pane of the context's view class; rows and columns smaller than
    // sizeMin are removed.
    virtual BOOL Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin, CCreateContext* pContext,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | SPLS_DYNAMIC_SPLIT,
                        UINT nID = AFX_IDW_PANE_FIRST);
    virtual BOOL CreateStatic(CWnd* pParentWnd, int nRows, int nCols, DWORD dwStyle = WS_CHILD | WS_VISIBLE,
                              UINT nID = AFX_IDW_PANE_FIRST);
    // Creates one pane; sizeInit becomes the size of its row and column. Without a context it shows the
    // document of the active pane.
    virtual BOOL CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit,
                            CCreateContext* pContext);

    int GetRowCount() const { return m_nRows; }
    int GetColumnCount() const { return m_nCols; }
    // Sizes take effect with RecalcLayout.
    void GetRowInfo(int row, int& cyCur, int& cyMin) const;
    void SetRowInfo(int row, int cyIdeal, int cyMin);
    void GetColumnInfo(int col, int& cxCur, int& cxMin) const;
    void SetColumnInfo(int col, int cxIdeal, int cxMin);
    // WS_HSCROLL and WS_VSCROLL of the shared scroll bars.
    DWORD GetScrollStyle() const;
    void SetScrollStyle(DWORD dwStyle);

    CWnd* GetPane(int row, int col) const;
    // Whether the window is a pane of this splitter; row and column may be NULL.
    BOOL IsChildPane(CWnd* pWnd, int* pRow, int* pCol);
    // The control id of a pane.
    int IdFromRowCol(int row, int col) const;
    // Whether the user is dragging a bar.
    BOOL IsTracking() { return m_bTracking; }

    virtual void RecalcLayout();

    // The pane with the frame's active view, or else with the focus.
    virtual CWnd* GetActivePane(int* pRow = NULL, int* pCol = NULL);
    // pWnd instead of row and column if it is not NULL.
    virtual void SetActivePane(int row, int col, CWnd* pWnd = NULL);
    // The commands ID_NEXT_PANE and ID_PREV_PANE.
    virtual BOOL CanActivateNext(BOOL bPrev = FALSE);
    virtual void ActivateNext(BOOL bPrev = FALSE);

    // Scrolls a view and the panes that share a scroll bar with it, by SB_ codes (low byte horizontal, high
    // byte vertical) or pixels. FALSE if nothing moves; bDoScroll FALSE only asks.
    virtual BOOL DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll = TRUE);
    virtual BOOL DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll = TRUE);
    // The command ID_WINDOW_SPLIT: lets the user move the bars with the arrow keys, Enter and Escape.
    virtual BOOL DoKeyboardSplit();

    // For dynamic splitters. Split at a place in client pixels; FALSE if there is no room.
    virtual BOOL SplitRow(int cyBefore);
    virtual BOOL SplitColumn(int cxBefore);
    virtual void DeleteRow(int rowDelete);
    virtual void DeleteColumn(int colDelete);
    virtual void DeleteView(int row, int col);
    virtual BOOL CreateScrollBarCtrl(DWORD dwStyle, UINT nID);

protected:
    enum ESplitType
    {
        splitBox,
        splitBar,
        splitIntersection,
        splitBorder
    };

    virtual void OnDraw(CDC* pDC);
    // Draws a part; without a device context it only invalidates the rectangle.
    virtual void OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rect);
    // Shows and, called again, hides the place where the bar would go.
    virtual void OnInvertTracker(const CRect& rect);

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnCancelMode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    DECLARE_MESSAGE_MAP()

private:
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);

    // What is at a point: the bar behind a row or a column, -1 for none, or a box that splits one off.
    struct Hit
    {
        int rowBar = -1;
        int columnBar = -1;
        bool isRowBox = false;
        bool isColumnBox = false;
        bool IsAnything() const { return rowBar >= 0 || columnBar >= 0 || isRowBox || isColumnBox; }
        bool MovesRows() const { return rowBar >= 0 || isRowBox; }
        bool MovesColumns() const { return columnBar >= 0 || isColumnBox; }
    };

    BOOL CreateCommon(CWnd* pParentWnd, int nRows, int nCols, SIZE sizeMin, DWORD dwStyle, UINT nID);
    BOOL IsDynamic() const { return m_pDynamicViewClass != NULL; }
    // The client area without the shared scroll bars.
    CRect PaneArea() const;
    CRect RowBox() const;
    CRect ColumnBox() const;
    CRect PaneRect(int row, int col) const;
    CRect RowBarRect(int row) const;
    CRect ColumnBarRect(int col) const;
    int RowTop(int row) const;
    int ColumnLeft(int col) const;
    void PlacePanes();
    void PlaceScrollBars();
    void MakeScrollBars();
    CWnd* ScrollBarOf(int id) const { return GetDlgItem(id); }
    Hit HitTest(CPoint point) const;
    void StartTracking(const Hit& hit, CPoint point);
    void StopTracking(BOOL bAccept);
    void Track(CPoint point);
    CPoint InTrackArea(CPoint point) const;
    void InvertTrackers();
    void MoveRowBar(int row, int y);
    void MoveColumnBar(int col, int x);
    BOOL AddPanes(int row, int col);
    void DeleteScrollBar(int id);
    void RenumberPane(int fromId, int toId);
    void ActivateOutside(int row, int col);
    CCreateContext ContextOfActivePane();
    void ScrollSharing(UINT message, int bar, int count, UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    CRuntimeClass* m_pDynamicViewClass; // NULL for a static splitter
    int m_nMaxRows, m_nMaxCols;
    int m_nRows, m_nCols;
    std::vector<quorfx::SplitLine> m_rows, m_columns;
    DWORD m_dwScrollStyle;

    BOOL m_bTracking;
    Hit m_trackHit;
    CPoint m_trackPoint;
    CSize m_trackOffset; // from the mouse to the middle of the bar
    HWND m_hWndFocusBefore;
};
