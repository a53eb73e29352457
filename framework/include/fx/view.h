// CView and CScrollView: what a frame shows.
#pragma once

#include "fx/document.h"
#include "fx/wnd.h"
#include "atltypes.h"

class CFrameWnd;
class CPreviewView;
class CView;
struct CPrintInfo;

// Passed to the creation of views and frames: what to create for what. Any member may be NULL.
struct CCreateContext
{
    // The class of the view, DYNCREATE.
    CRuntimeClass* m_pNewViewClass = NULL;
    // The document the view shows.
    CDocument* m_pCurrentDoc = NULL;
    // The template that creates the frame.
    CDocTemplate* m_pNewDocTemplate = NULL;
    // The frame of an existing window that the new one resembles.
    CFrameWnd* m_pCurrentFrame = NULL;
    // The last view of the document.
    CView* m_pLastView = NULL;
};

// A child window that shows a document inside a frame. Created on the heap, by its run-time class or by new;
// it deletes itself with its window.
class QFX_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

protected:
    CView();
    virtual ~CView();

public:
    // NULL for a view without a document.
    CDocument* GetDocument() const { return m_pDocument; }

    // Called once after the view has been attached to its document, before it is shown. The base calls
    // OnUpdate.
    virtual void OnInitialUpdate();
    // Routes commands: the view, then its document.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);
    // The scroll bar that the panes of a splitter share.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    // Called before OnDraw and OnPrint. The base does nothing.
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = NULL);
    // For views that can tell what is selected, and that scroll; the bases do nothing and return FALSE.
    virtual BOOL IsSelected(const CObject* pDocItem) const;
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);

    // The framework has no printing: this returns FALSE, as it does when the user cancels the print dialog,
    // so that nothing is printed.
    BOOL DoPreparePrinting(CPrintInfo* pInfo);
    // The commands ID_FILE_PRINT and ID_FILE_PRINT_PREVIEW: ask OnPreparePrinting, and end there. Programs
    // name them in the message maps of their views as &CView::OnFilePrint: that is why they are public.
    afx_msg void OnFilePrint();
    afx_msg void OnFilePrintPreview();

protected:
    // What a program overrides to print. OnPreparePrinting returns FALSE, OnPrint calls OnDraw, the others do
    // nothing.
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnPrint(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT point, CPreviewView* pView);

    // Called when the document changed. The base repaints everything.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    // Paints the view; the device context is prepared by OnPrepareDC.
    virtual void OnDraw(CDC* pDC) = 0;
    // Called when the view becomes the frame's active one or stops being it. The base takes the focus.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    // Called when the frame of the active view is activated or deactivated.
    virtual void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PostNcDestroy();

    CDocument* m_pDocument;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);

    DECLARE_MESSAGE_MAP()

    friend class CDocument;
    friend class CFrameWnd;
    friend class CMDIChildWnd;
    friend class CMDIFrameWnd;

private:
    afx_msg LRESULT HandleInitialUpdate(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnNextPaneCmd(UINT nID);
    afx_msg void OnUpdateNextPaneMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnSplitCmd(UINT nID);
    afx_msg void OnUpdateSplitCmd(CCmdUI* pCmdUI);
};

// A view larger than its window, with scroll bars. Sizes and positions are in logical units of the mapping
// mode unless a name says device.
class QFX_API CScrollView : public CView
{
    DECLARE_DYNAMIC(CScrollView)

protected:
    CScrollView();
    virtual ~CScrollView();

public:
    static const SIZE sizeDefault;

    // Sets the size of the whole, and what a page and a line scroll (0: a tenth, and a tenth of that).
    void SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage = sizeDefault,
                        const SIZE& sizeLine = sizeDefault);
    void GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const;
    CSize GetTotalSize() const { return m_totalLog; }
    // The point of the whole that is at the window's top left corner.
    CPoint GetScrollPosition() const;
    CPoint GetDeviceScrollPosition() const;
    // Scrolls that point to the top left corner, as far as the size allows.
    void ScrollToPosition(POINT pt);
    // Paints what lies outside the whole.
    void FillOutsideRect(CDC* pDC, CBrush* pBrush);
    // Makes the frame fit the whole; bShrinkOnly never enlarges it.
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);
    void CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const;

    // Scrolls by a SB_ code for each direction (low byte horizontal, high byte vertical), or by device
    // pixels. FALSE if nothing moved. bDoScroll FALSE only asks.
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = NULL);

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    friend class CFormView;

    // Sets range and page of the scroll bars for the window's size, and keeps the position inside.
    void UpdateBars();
    // Sizes and points of the mapping mode in device pixels, never negative, and back.
    CSize DeviceSize(SIZE logicalSize) const;
    // Scrolls so that this device point of the whole is at the top left corner; FALSE if nothing moved.
    BOOL ScrollToDevicePosition(CPoint devicePoint);
    int m_nMapMode;
    CSize m_totalLog;
    CSize m_totalDev;
    CSize m_pageDev;
    CSize m_lineDev;
    BOOL m_bInsideUpdate;
};
