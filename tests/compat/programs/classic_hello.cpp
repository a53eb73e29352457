// A frame window with a menu, a child window that paints, and an about box.
#include <afxwin.h>
#include <afxext.h>

#include "classic_hello.h"

class CHelloWnd : public CWnd
{
public:
    CHelloWnd() : m_bLoud(FALSE) {}

    void SetLoud(BOOL bLoud)
    {
        m_bLoud = bLoud;
        Invalidate();
    }
    BOOL IsLoud() const { return m_bLoud; }

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs)
    {
        if (!CWnd::PreCreateWindow(cs))
            return FALSE;
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.lpszClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursor(NULL, IDC_ARROW),
                                           (HBRUSH)(COLOR_WINDOW + 1), NULL);
        return TRUE;
    }

    afx_msg void OnPaint();

    DECLARE_MESSAGE_MAP()

private:
    BOOL m_bLoud;
};

BEGIN_MESSAGE_MAP(CHelloWnd, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CHelloWnd::OnPaint()
{
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(rect);
    CFont font;
    font.CreatePointFont(m_bLoud ? 300 : 160, _T("Tahoma"));
    CFont* pOldFont = dc.SelectObject(&font);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(_T("Hello, world"), &rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    dc.SelectObject(pOldFont);
}

class CAboutDlg : public CDialog
{
public:
    enum
    {
        IDD = IDD_ABOUT
    };

    CAboutDlg() : CDialog(IDD) {}

protected:
    virtual BOOL OnInitDialog()
    {
        CDialog::OnInitDialog();
        CString strText;
        strText.Format(IDS_ABOUT, AfxGetAppName(), 3);
        SetDlgItemText(IDC_ABOUT_TEXT, strText);
        return TRUE;
    }
};

class CHelloFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(CHelloFrame)

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnViewLoud();
    afx_msg void OnUpdateViewLoud(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

private:
    CHelloWnd m_wndView;
};

IMPLEMENT_DYNCREATE(CHelloFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CHelloFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_COMMAND(ID_VIEW_LOUD, OnViewLoud)
    ON_UPDATE_COMMAND_UI(ID_VIEW_LOUD, OnUpdateViewLoud)
END_MESSAGE_MAP()

int CHelloFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!m_wndView.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST))
    {
        TRACE0("Failed to create the view window\n");
        return -1;
    }
    return 0;
}

void CHelloFrame::OnSetFocus(CWnd*)
{
    m_wndView.SetFocus();
}

void CHelloFrame::OnViewLoud()
{
    m_wndView.SetLoud(!m_wndView.IsLoud());
    CString strTitle;
    strTitle.Format(_T("%s (%s)"), (LPCTSTR)GetTitle(), m_wndView.IsLoud() ? _T("loud") : _T("quiet"));
    SetWindowText(strTitle);
}

void CHelloFrame::OnUpdateViewLoud(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(m_wndView.IsLoud());
}

class CHelloApp : public CWinApp
{
public:
    CHelloApp() : CWinApp(_T("Hello")) {}

    virtual BOOL InitInstance();
    afx_msg void OnAppAbout();

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHelloApp, CWinApp)
    ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
END_MESSAGE_MAP()

CHelloApp theApp;

BOOL CHelloApp::InitInstance()
{
    CWinApp::InitInstance();
    CHelloFrame* pFrame = new CHelloFrame;
    m_pMainWnd = pFrame;
    if (!pFrame->LoadFrame(IDR_MAINFRAME))
        return FALSE;
    pFrame->ShowWindow(m_nCmdShow);
    pFrame->UpdateWindow();
    return TRUE;
}

void CHelloApp::OnAppAbout()
{
    CAboutDlg aboutDlg;
    aboutDlg.DoModal();
}
