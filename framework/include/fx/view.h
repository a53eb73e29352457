// CDocument, CView and CScrollView: what a frame shows.
#pragma once

#include "fx/position.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"
#include <vector>

class CDocument;
class CFrameWnd;
class CView;
struct CPrintInfo;

// Passed to the creation of views and frames: what to create for what. Any member may be NULL.
struct CCreateContext
{
    // The class of the view, DYNCREATE.
    CRuntimeClass* m_pNewViewClass = NULL;
    // The document the view shows.
    CDocument* m_pCurrentDoc = NULL;
    // The frame of an existing window that the new one resembles.
    CFrameWnd* m_pCurrentFrame = NULL;
    // The last view of the document.
    CView* m_pLastView = NULL;
};

// Data that views show: keeps the list of its views and tells them about changes. It owns no view.
class QFX_API CDocument : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument();
    virtual ~CDocument();

    const CString& GetTitle() const { return m_strTitle; }
    // Also refreshes the titles of the views' frames.
    virtual void SetTitle(LPCTSTR lpszTitle);
    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    // The views, in the order of their addition. A view belongs to one document at most.
    void AddView(CView* pView);
    void RemoveView(CView* pView);
    virtual POSITION GetFirstViewPosition() const;
    // Returns the view and moves on; rPosition becomes NULL after the last one.
    virtual CView* GetNextView(POSITION& rPosition) const;
    // Calls OnUpdate of every view but the sender.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0L, CObject* pHint = NULL);

    // Starts a new document: empties it and clears the modified flag. FALSE refuses.
    virtual BOOL OnNewDocument();
    // Called to empty the document.
    virtual void DeleteContents();
    // Called when views came or went. The base closes the document after its last view if m_bAutoDelete is
    // set.
    virtual void OnChangedViewList();
    // Destroys the frames of all views and empties the document; deletes it if m_bAutoDelete is set.
    virtual void OnCloseDocument();

    // TRUE (the default): the document was created with new and goes with its last view.
    BOOL m_bAutoDelete;

protected:
    CString m_strTitle;
    BOOL m_bModified;

private:
    std::vector<CView*> m_views;
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

protected:
    // Called when the document changed. The base repaints everything.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    // Paints the view; the device context is prepared by OnPrepareDC.
    virtual void OnDraw(CDC* pDC) = 0;
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = NULL);
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
    afx_msg LRESULT HandleInitialUpdate(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnNextPaneCmd(UINT nID);
    afx_msg void OnUpdateNextPaneMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnSplitCmd(UINT nID);
    afx_msg void OnUpdateSplitCmd(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

    friend class CDocument;
    friend class CFrameWnd;
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
    void CenterOnPoint(CPoint ptCenter);
    // Paints what lies outside the whole.
    void FillOutsideRect(CDC* pDC, CBrush* pBrush);
    // Makes the frame fit the whole; bShrinkOnly never enlarges it.
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);
    void CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const;

    // Scrolls by a SB_ code for each direction (low byte horizontal, high byte vertical), or by device
    // pixels. FALSE if nothing moved. bDoScroll FALSE only asks.
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);

protected:
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = NULL);

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

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    DECLARE_MESSAGE_MAP()
};
