// A frame with a view of a document: collects points that the user clicks.
#include <afxwin.h>
#include <afxext.h>
#include <afxtempl.h>

#include "classic_view.h"

class CPointsDoc : public CDocument
{
    DECLARE_DYNCREATE(CPointsDoc)

public:
    CPointsDoc() : m_nColor(0) {}

    CArray<CPoint, CPoint> m_points;
    int m_nColor;

    void AddPoint(CPoint point)
    {
        m_points.Add(point);
        SetModifiedFlag();
        Changed();
    }
    void Changed()
    {
        CString strTitle;
        strTitle.Format(_T("%d points, color %d"), (int)m_points.GetSize(), m_nColor);
        SetTitle(strTitle);
        UpdateAllViews(NULL);
    }

protected:
    virtual void DeleteContents()
    {
        m_points.RemoveAll();
        CDocument::DeleteContents();
    }

    afx_msg void OnEditClearAll()
    {
        DeleteContents();
        Changed();
    }
    afx_msg void OnUpdateEditClearAll(CCmdUI* pCmdUI) { pCmdUI->Enable(m_points.GetSize() > 0); }

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CPointsDoc, CDocument)

BEGIN_MESSAGE_MAP(CPointsDoc, CDocument)
    ON_COMMAND(ID_EDIT_CLEAR_ALL, OnEditClearAll)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR_ALL, OnUpdateEditClearAll)
END_MESSAGE_MAP()

class CPointsView : public CView
{
    DECLARE_DYNCREATE(CPointsView)

protected:
    CPointsView() : m_nTicks(0) {}

    CPointsDoc* GetDocument() { return STATIC_DOWNCAST(CPointsDoc, m_pDocument); }

    virtual void OnDraw(CDC* pDC);
    virtual void OnInitialUpdate()
    {
        CView::OnInitialUpdate();
        GetDocument()->Changed();
    }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnColor(UINT nID);
    afx_msg void OnUpdateColor(CCmdUI* pCmdUI);
    afx_msg LRESULT OnReport(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    int m_nTicks;
};

IMPLEMENT_DYNCREATE(CPointsView, CView)

static const UINT WM_REPORT = ::RegisterWindowMessage(_T("ClassicViewReport"));

BEGIN_MESSAGE_MAP(CPointsView, CView)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEWHEEL()
    ON_COMMAND_RANGE(ID_COLOR_FIRST, ID_COLOR_LAST, OnColor)
    ON_UPDATE_COMMAND_UI_RANGE(ID_COLOR_FIRST, ID_COLOR_LAST, OnUpdateColor)
    ON_REGISTERED_MESSAGE(WM_REPORT, OnReport)
END_MESSAGE_MAP()

static const COLORREF s_colors[] = {RGB(255, 0, 0), RGB(0, 160, 0), RGB(0, 0, 255)};

void CPointsView::OnDraw(CDC* pDC)
{
    CPointsDoc* pDoc = GetDocument();
    ASSERT_VALID(pDoc);
    CBrush brush(s_colors[pDoc->m_nColor]);
    CBrush* pOldBrush = pDC->SelectObject(&brush);
    for (INT_PTR i = 0; i < pDoc->m_points.GetSize(); i++)
    {
        CRect rect(pDoc->m_points[i], CSize(0, 0));
        rect.InflateRect(5, 5);
        pDC->Ellipse(rect);
    }
    pDC->SelectObject(pOldBrush);
}

int CPointsView::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CView::OnCreate(lpCreateStruct) == -1)
        return -1;
    SetTimer(1, 10, NULL);
    return 0;
}

void CPointsView::OnDestroy()
{
    KillTimer(1);
    CView::OnDestroy();
}

void CPointsView::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == 1)
        m_nTicks++;
    CView::OnTimer(nIDEvent);
}

void CPointsView::OnLButtonDown(UINT nFlags, CPoint point)
{
    GetDocument()->AddPoint(point);
    CView::OnLButtonDown(nFlags, point);
}

void CPointsView::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_DELETE)
        GetParentFrame()->SendMessage(WM_COMMAND, ID_EDIT_CLEAR_ALL);
    else
        CView::OnKeyDown(nChar, nRepCnt, nFlags);
}

BOOL CPointsView::OnEraseBkgnd(CDC* pDC)
{
    CRect rect;
    GetClientRect(&rect);
    pDC->FillSolidRect(rect, RGB(255, 255, 240));
    return TRUE;
}

BOOL CPointsView::OnMouseWheel(UINT, short zDelta, CPoint)
{
    CPointsDoc* pDoc = GetDocument();
    pDoc->m_nColor = (pDoc->m_nColor + (zDelta > 0 ? 1 : 2)) % 3;
    pDoc->Changed();
    return TRUE;
}

void CPointsView::OnColor(UINT nID)
{
    GetDocument()->m_nColor = (int)(nID - ID_COLOR_FIRST);
    GetDocument()->Changed();
}

void CPointsView::OnUpdateColor(CCmdUI* pCmdUI)
{
    pCmdUI->SetRadio((int)(pCmdUI->m_nID - ID_COLOR_FIRST) == GetDocument()->m_nColor);
}

LRESULT CPointsView::OnReport(WPARAM wParam, LPARAM)
{
    CPointsDoc* pDoc = GetDocument();
    switch (wParam)
    {
    case 0:
        return (LRESULT)pDoc->m_points.GetSize();
    case 1:
        return m_nTicks;
    default:
        return 0;
    }
}

class CPointsFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(CPointsFrame)

protected:
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext)
    {
        if (pContext == NULL)
            return FALSE;
        return CFrameWnd::OnCreateClient(lpcs, pContext);
    }

    afx_msg void OnClose()
    {
        CDocument* pDoc = GetActiveDocument();
        if (pDoc->IsModified() && AfxMessageBox(IDS_DISCARD, MB_YESNO | MB_ICONQUESTION) != IDYES)
            return;
        // The question has been asked.
        pDoc->SetModifiedFlag(FALSE);
        CFrameWnd::OnClose();
    }

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CPointsFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CPointsFrame, CFrameWnd)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

class CPointsApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(CPointsView);
        context.m_pCurrentDoc = new CPointsDoc;
        CPointsFrame* pFrame = new CPointsFrame;
        m_pMainWnd = pFrame;
        if (!pFrame->LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, NULL, &context))
            return FALSE;
        pFrame->InitialUpdateFrame(context.m_pCurrentDoc, TRUE);
        return TRUE;
    }
};

CPointsApp theApp;
