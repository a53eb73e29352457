// A program with many documents, as the application wizard makes it, whose documents are points that the user
// clicks.
#include <afxwin.h>
#include <afxext.h>
#include <afxdisp.h>
#include <afxcmn.h>
#include <afxtempl.h>

#include "wizard_multiple.h"

// CWizardMultipleDoc

class CWizardMultipleDoc : public CDocument
{
protected: // create from serialization only
    CWizardMultipleDoc();
    DECLARE_DYNCREATE(CWizardMultipleDoc)

    // Attributes
public:
    CArray<CPoint, CPoint> m_points;

    // Overrides
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    virtual void DeleteContents();

    // Implementation
public:
    virtual ~CWizardMultipleDoc();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

    // Generated message map functions
protected:
    afx_msg void OnPointsMirror();
    afx_msg void OnUpdatePointsMirror(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CWizardMultipleDoc, CDocument)

BEGIN_MESSAGE_MAP(CWizardMultipleDoc, CDocument)
    ON_COMMAND(ID_POINTS_MIRROR, &CWizardMultipleDoc::OnPointsMirror)
    ON_UPDATE_COMMAND_UI(ID_POINTS_MIRROR, &CWizardMultipleDoc::OnUpdatePointsMirror)
END_MESSAGE_MAP()

CWizardMultipleDoc::CWizardMultipleDoc() {}

CWizardMultipleDoc::~CWizardMultipleDoc() {}

BOOL CWizardMultipleDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;

    return TRUE;
}

void CWizardMultipleDoc::DeleteContents()
{
    m_points.RemoveAll();
    CDocument::DeleteContents();
}

void CWizardMultipleDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
    {
        ar << (DWORD)m_points.GetSize();
        for (INT_PTR i = 0; i < m_points.GetSize(); i++)
            ar << m_points[i];
    }
    else
    {
        DWORD nCount = 0;
        ar >> nCount;
        m_points.SetSize((INT_PTR)nCount);
        for (INT_PTR i = 0; i < m_points.GetSize(); i++)
            ar >> m_points[i];
    }
}

#ifdef _DEBUG
void CWizardMultipleDoc::AssertValid() const
{
    CDocument::AssertValid();
}

void CWizardMultipleDoc::Dump(CDumpContext& dc) const
{
    CDocument::Dump(dc);
}
#endif

void CWizardMultipleDoc::OnPointsMirror()
{
    for (INT_PTR i = 0; i < m_points.GetSize(); i++)
        m_points[i] = CPoint(m_points[i].y, m_points[i].x);
    SetModifiedFlag();
    UpdateAllViews(NULL);
}

void CWizardMultipleDoc::OnUpdatePointsMirror(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(!m_points.IsEmpty());
}

// CWizardMultipleView

class CWizardMultipleView : public CView
{
protected: // create from serialization only
    CWizardMultipleView();
    DECLARE_DYNCREATE(CWizardMultipleView)

    // Attributes
public:
    CWizardMultipleDoc* GetDocument() const;

    // Overrides
public:
    virtual void OnDraw(CDC* pDC); // overridden to draw this view
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

protected:
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);

    // Implementation
public:
    virtual ~CWizardMultipleView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

    // Generated message map functions
protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnEditCut();
    afx_msg void OnUpdateEditCut(CCmdUI* pCmdUI);
    afx_msg void OnUpdateIndicatorPoints(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG // debug version below
inline CWizardMultipleDoc* CWizardMultipleView::GetDocument() const
{
    return reinterpret_cast<CWizardMultipleDoc*>(m_pDocument);
}
#endif

IMPLEMENT_DYNCREATE(CWizardMultipleView, CView)

BEGIN_MESSAGE_MAP(CWizardMultipleView, CView)
    ON_WM_LBUTTONDOWN()
    ON_COMMAND(ID_EDIT_CUT, &CWizardMultipleView::OnEditCut)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CWizardMultipleView::OnUpdateEditCut)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_POINTS, &CWizardMultipleView::OnUpdateIndicatorPoints)
    // Standard printing commands
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

CWizardMultipleView::CWizardMultipleView() {}

CWizardMultipleView::~CWizardMultipleView() {}

BOOL CWizardMultipleView::PreCreateWindow(CREATESTRUCT& cs)
{
    return CView::PreCreateWindow(cs);
}

void CWizardMultipleView::OnDraw(CDC* pDC)
{
    CWizardMultipleDoc* pDoc = GetDocument();
    ASSERT_VALID(pDoc);
    if (!pDoc)
        return;

    for (INT_PTR i = 0; i < pDoc->m_points.GetSize(); i++)
    {
        CRect rect(pDoc->m_points[i], CSize(0, 0));
        rect.InflateRect(3, 3);
        pDC->Ellipse(rect);
    }
}

BOOL CWizardMultipleView::OnPreparePrinting(CPrintInfo* pInfo)
{
    // default preparation
    return DoPreparePrinting(pInfo);
}

void CWizardMultipleView::OnBeginPrinting(CDC* /*pDC*/, CPrintInfo* /*pInfo*/) {}

void CWizardMultipleView::OnEndPrinting(CDC* /*pDC*/, CPrintInfo* /*pInfo*/) {}

#ifdef _DEBUG
void CWizardMultipleView::AssertValid() const
{
    CView::AssertValid();
}

void CWizardMultipleView::Dump(CDumpContext& dc) const
{
    CView::Dump(dc);
}

CWizardMultipleDoc* CWizardMultipleView::GetDocument() const // non-debug version is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CWizardMultipleDoc)));
    return (CWizardMultipleDoc*)m_pDocument;
}
#endif

void CWizardMultipleView::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWizardMultipleDoc* pDoc = GetDocument();
    pDoc->m_points.Add(point);
    pDoc->SetModifiedFlag();
    pDoc->UpdateAllViews(NULL);
    CView::OnLButtonDown(nFlags, point);
}

void CWizardMultipleView::OnEditCut()
{
    CWizardMultipleDoc* pDoc = GetDocument();
    pDoc->DeleteContents();
    pDoc->SetModifiedFlag();
    pDoc->UpdateAllViews(NULL);
}

void CWizardMultipleView::OnUpdateEditCut(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(!GetDocument()->m_points.IsEmpty());
}

void CWizardMultipleView::OnUpdateIndicatorPoints(CCmdUI* pCmdUI)
{
    CString strPoints;
    strPoints.Format(_T("%d points"), (int)GetDocument()->m_points.GetSize());
    pCmdUI->Enable();
    pCmdUI->SetText(strPoints);
}

// CMainFrame

class CMainFrame : public CMDIFrameWnd
{
    DECLARE_DYNAMIC(CMainFrame)

public:
    CMainFrame();

    // Overrides
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

    // Implementation
public:
    virtual ~CMainFrame();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected: // control bar embedded members
    CToolBar m_wndToolBar;
    CStatusBar m_wndStatusBar;

    // Generated message map functions
protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

static UINT indicators[] = {
    ID_SEPARATOR, // status line indicator
    ID_INDICATOR_POINTS,
    ID_INDICATOR_CAPS,
    ID_INDICATOR_NUM,
    ID_INDICATOR_SCRL,
};

CMainFrame::CMainFrame() {}

CMainFrame::~CMainFrame() {}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CMDIFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;

    if (!m_wndToolBar.CreateEx(this, TBSTYLE_FLAT,
                               WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS | CBRS_FLYBY |
                                   CBRS_SIZE_DYNAMIC) ||
        !m_wndToolBar.LoadToolBar(IDR_MAINFRAME))
    {
        TRACE0("Failed to create toolbar\n");
        return -1; // fail to create
    }

    if (!m_wndStatusBar.Create(this))
    {
        TRACE0("Failed to create status bar\n");
        return -1; // fail to create
    }
    m_wndStatusBar.SetIndicators(indicators, sizeof(indicators) / sizeof(UINT));

    m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_wndToolBar);

    return 0;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CMDIFrameWnd::PreCreateWindow(cs))
        return FALSE;
    return TRUE;
}

#ifdef _DEBUG
void CMainFrame::AssertValid() const
{
    CMDIFrameWnd::AssertValid();
}

void CMainFrame::Dump(CDumpContext& dc) const
{
    CMDIFrameWnd::Dump(dc);
}
#endif

// CChildFrame

class CChildFrame : public CMDIChildWnd
{
    DECLARE_DYNCREATE(CChildFrame)

public:
    CChildFrame();

    // Overrides
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

    // Implementation
public:
    virtual ~CChildFrame();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

    // Generated message map functions
protected:
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CChildFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CChildFrame, CMDIChildWnd)
END_MESSAGE_MAP()

CChildFrame::CChildFrame() {}

CChildFrame::~CChildFrame() {}

BOOL CChildFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CMDIChildWnd::PreCreateWindow(cs))
        return FALSE;

    return TRUE;
}

#ifdef _DEBUG
void CChildFrame::AssertValid() const
{
    CMDIChildWnd::AssertValid();
}

void CChildFrame::Dump(CDumpContext& dc) const
{
    CMDIChildWnd::Dump(dc);
}
#endif

// CAboutDlg dialog used for App About

class CAboutDlg : public CDialog
{
public:
    CAboutDlg();

    // Dialog Data
    enum
    {
        IDD = IDD_ABOUTBOX
    };

protected:
    virtual void DoDataExchange(CDataExchange* pDX); // DDX/DDV support

    // Implementation
protected:
    DECLARE_MESSAGE_MAP()
};

CAboutDlg::CAboutDlg() : CDialog(CAboutDlg::IDD) {}

void CAboutDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
}

BEGIN_MESSAGE_MAP(CAboutDlg, CDialog)
END_MESSAGE_MAP()

// CWizardMultipleApp

class CWizardMultipleApp : public CWinApp
{
public:
    CWizardMultipleApp();

    // Overrides
public:
    virtual BOOL InitInstance();

    // Implementation
    afx_msg void OnAppAbout();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CWizardMultipleApp, CWinApp)
    ON_COMMAND(ID_APP_ABOUT, &CWizardMultipleApp::OnAppAbout)
    // Standard file based document commands
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
    // Standard print setup command
    ON_COMMAND(ID_FILE_PRINT_SETUP, &CWinApp::OnFilePrintSetup)
END_MESSAGE_MAP()

CWizardMultipleApp::CWizardMultipleApp() {}

// The one and only CWizardMultipleApp object

CWizardMultipleApp theApp;

BOOL CWizardMultipleApp::InitInstance()
{
    // InitCommonControlsEx() is required on Windows XP if an application manifest specifies use of
    // ComCtl32.dll version 6 or later to enable visual styles.
    INITCOMMONCONTROLSEX InitCtrls;
    InitCtrls.dwSize = sizeof(InitCtrls);
    InitCtrls.dwICC = ICC_WIN95_CLASSES;
    InitCommonControlsEx(&InitCtrls);

    CWinApp::InitInstance();

    // Initialize OLE libraries
    if (!AfxOleInit())
    {
        AfxMessageBox(_T("OLE initialization failed."));
        return FALSE;
    }

    AfxEnableControlContainer();

    SetRegistryKey(_T("Local AppWizard-Generated Applications"));
    LoadStdProfileSettings(4); // Load standard INI file options (including MRU)

    // Register the application's document templates.
    CMultiDocTemplate* pDocTemplate;
    pDocTemplate = new CMultiDocTemplate(IDR_PointsTYPE, RUNTIME_CLASS(CWizardMultipleDoc),
                                         RUNTIME_CLASS(CChildFrame), // custom MDI child frame
                                         RUNTIME_CLASS(CWizardMultipleView));
    if (!pDocTemplate)
        return FALSE;
    AddDocTemplate(pDocTemplate);

    // create main MDI Frame window
    CMainFrame* pMainFrame = new CMainFrame;
    if (!pMainFrame || !pMainFrame->LoadFrame(IDR_MAINFRAME))
    {
        delete pMainFrame;
        return FALSE;
    }
    m_pMainWnd = pMainFrame;

    // Parse command line for standard shell commands, DDE, file open
    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);

    // Dispatch commands specified on the command line.
    if (!ProcessShellCommand(cmdInfo))
        return FALSE;

    // The main window has been initialized, so show and update it
    pMainFrame->ShowWindow(m_nCmdShow);
    pMainFrame->UpdateWindow();

    return TRUE;
}

void CWizardMultipleApp::OnAppAbout()
{
    CAboutDlg aboutDlg;
    aboutDlg.DoModal();
}
