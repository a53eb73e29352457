// A program with one document at a time, as the application wizard makes it, whose document is a text that
// the user types.
#include <afxwin.h>
#include <afxext.h>
#include <afxdisp.h>
#include <afxcmn.h>

#include "wizard_single.h"

// CWizardSingleDoc

class CWizardSingleDoc : public CDocument
{
protected: // create from serialization only
    CWizardSingleDoc();
    DECLARE_DYNCREATE(CWizardSingleDoc)

    // Attributes
public:
    CString m_strText;

    // Overrides
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    virtual void DeleteContents();

    // Implementation
public:
    virtual ~CWizardSingleDoc();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

    // Generated message map functions
protected:
    afx_msg void OnEditUppercase();
    afx_msg void OnUpdateEditUppercase(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CWizardSingleDoc, CDocument)

BEGIN_MESSAGE_MAP(CWizardSingleDoc, CDocument)
    ON_COMMAND(ID_EDIT_UPPERCASE, &CWizardSingleDoc::OnEditUppercase)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UPPERCASE, &CWizardSingleDoc::OnUpdateEditUppercase)
END_MESSAGE_MAP()

CWizardSingleDoc::CWizardSingleDoc() {}

CWizardSingleDoc::~CWizardSingleDoc() {}

BOOL CWizardSingleDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;

    m_strText = _T("new");
    return TRUE;
}

void CWizardSingleDoc::DeleteContents()
{
    m_strText.Empty();
    CDocument::DeleteContents();
}

void CWizardSingleDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
    {
        ar << m_strText;
    }
    else
    {
        ar >> m_strText;
    }
}

#ifdef _DEBUG
void CWizardSingleDoc::AssertValid() const
{
    CDocument::AssertValid();
}

void CWizardSingleDoc::Dump(CDumpContext& dc) const
{
    CDocument::Dump(dc);
}
#endif

void CWizardSingleDoc::OnEditUppercase()
{
    m_strText.MakeUpper();
    SetModifiedFlag();
    UpdateAllViews(NULL);
}

void CWizardSingleDoc::OnUpdateEditUppercase(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(!m_strText.IsEmpty());
}

// CWizardSingleView

class CWizardSingleView : public CView
{
protected: // create from serialization only
    CWizardSingleView();
    DECLARE_DYNCREATE(CWizardSingleView)

    // Attributes
public:
    CWizardSingleDoc* GetDocument() const;

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
    virtual ~CWizardSingleView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

    // Generated message map functions
protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnEditCut();
    afx_msg void OnUpdateEditCut(CCmdUI* pCmdUI);
    afx_msg void OnUpdateIndicatorLength(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG // debug version below
inline CWizardSingleDoc* CWizardSingleView::GetDocument() const
{
    return reinterpret_cast<CWizardSingleDoc*>(m_pDocument);
}
#endif

IMPLEMENT_DYNCREATE(CWizardSingleView, CView)

BEGIN_MESSAGE_MAP(CWizardSingleView, CView)
    ON_WM_CHAR()
    ON_COMMAND(ID_EDIT_CUT, &CWizardSingleView::OnEditCut)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CWizardSingleView::OnUpdateEditCut)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_LENGTH, &CWizardSingleView::OnUpdateIndicatorLength)
    // Standard printing commands
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

CWizardSingleView::CWizardSingleView() {}

CWizardSingleView::~CWizardSingleView() {}

BOOL CWizardSingleView::PreCreateWindow(CREATESTRUCT& cs)
{
    return CView::PreCreateWindow(cs);
}

void CWizardSingleView::OnDraw(CDC* pDC)
{
    CWizardSingleDoc* pDoc = GetDocument();
    ASSERT_VALID(pDoc);
    if (!pDoc)
        return;

    pDC->TextOut(4, 4, pDoc->m_strText);
}

BOOL CWizardSingleView::OnPreparePrinting(CPrintInfo* pInfo)
{
    // default preparation
    return DoPreparePrinting(pInfo);
}

void CWizardSingleView::OnBeginPrinting(CDC* /*pDC*/, CPrintInfo* /*pInfo*/) {}

void CWizardSingleView::OnEndPrinting(CDC* /*pDC*/, CPrintInfo* /*pInfo*/) {}

#ifdef _DEBUG
void CWizardSingleView::AssertValid() const
{
    CView::AssertValid();
}

void CWizardSingleView::Dump(CDumpContext& dc) const
{
    CView::Dump(dc);
}

CWizardSingleDoc* CWizardSingleView::GetDocument() const // non-debug version is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CWizardSingleDoc)));
    return (CWizardSingleDoc*)m_pDocument;
}
#endif

void CWizardSingleView::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    CWizardSingleDoc* pDoc = GetDocument();
    pDoc->m_strText += (TCHAR)nChar;
    pDoc->SetModifiedFlag();
    pDoc->UpdateAllViews(NULL);
    CView::OnChar(nChar, nRepCnt, nFlags);
}

void CWizardSingleView::OnEditCut()
{
    CWizardSingleDoc* pDoc = GetDocument();
    pDoc->DeleteContents();
    pDoc->SetModifiedFlag();
    pDoc->UpdateAllViews(NULL);
}

void CWizardSingleView::OnUpdateEditCut(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(!GetDocument()->m_strText.IsEmpty());
}

void CWizardSingleView::OnUpdateIndicatorLength(CCmdUI* pCmdUI)
{
    CString strLength;
    strLength.Format(_T("%d characters"), GetDocument()->m_strText.GetLength());
    pCmdUI->Enable();
    pCmdUI->SetText(strLength);
}

// CMainFrame

class CMainFrame : public CFrameWnd
{
protected: // create from serialization only
    CMainFrame();
    DECLARE_DYNCREATE(CMainFrame)

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

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

static UINT indicators[] = {
    ID_SEPARATOR, // status line indicator
    ID_INDICATOR_LENGTH,
    ID_INDICATOR_CAPS,
    ID_INDICATOR_NUM,
    ID_INDICATOR_SCRL,
};

CMainFrame::CMainFrame() {}

CMainFrame::~CMainFrame() {}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
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
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    return TRUE;
}

#ifdef _DEBUG
void CMainFrame::AssertValid() const
{
    CFrameWnd::AssertValid();
}

void CMainFrame::Dump(CDumpContext& dc) const
{
    CFrameWnd::Dump(dc);
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

// CWizardSingleApp

class CWizardSingleApp : public CWinApp
{
public:
    CWizardSingleApp();

    // Overrides
public:
    virtual BOOL InitInstance();

    // Implementation
    afx_msg void OnAppAbout();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CWizardSingleApp, CWinApp)
    ON_COMMAND(ID_APP_ABOUT, &CWizardSingleApp::OnAppAbout)
    // Standard file based document commands
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
    // Standard print setup command
    ON_COMMAND(ID_FILE_PRINT_SETUP, &CWinApp::OnFilePrintSetup)
END_MESSAGE_MAP()

CWizardSingleApp::CWizardSingleApp() {}

// The one and only CWizardSingleApp object

CWizardSingleApp theApp;

BOOL CWizardSingleApp::InitInstance()
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
    CSingleDocTemplate* pDocTemplate;
    pDocTemplate = new CSingleDocTemplate(IDR_MAINFRAME, RUNTIME_CLASS(CWizardSingleDoc),
                                          RUNTIME_CLASS(CMainFrame), // main SDI frame window
                                          RUNTIME_CLASS(CWizardSingleView));
    if (!pDocTemplate)
        return FALSE;
    AddDocTemplate(pDocTemplate);

    // Parse command line for standard shell commands, DDE, file open
    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);

    // Dispatch commands specified on the command line.
    if (!ProcessShellCommand(cmdInfo))
        return FALSE;

    // The one and only window has been initialized, so show and update it
    m_pMainWnd->ShowWindow(SW_SHOW);
    m_pMainWnd->UpdateWindow();
    return TRUE;
}

void CWizardSingleApp::OnAppAbout()
{
    CAboutDlg aboutDlg;
    aboutDlg.DoModal();
}
