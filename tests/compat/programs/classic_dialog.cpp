// A program whose main window is a dialog: converts temperatures.
#include <afxwin.h>
#include <afxcmn.h>

#include "classic_dialog.h"

class CConvertDlg : public CDialog
{
    DECLARE_DYNAMIC(CConvertDlg)

public:
    CConvertDlg(CWnd* pParent = NULL);

    enum
    {
        IDD = IDD_CONVERT
    };
    double m_fInput;
    int m_nDirection;
    CString m_strResult;
    BOOL m_bKeep;

protected:
    CListBox m_lstHistory;
    CSpinButtonCtrl m_spinDigits;
    int m_nDigits;

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual void OnOK();

    afx_msg void OnConvert();
    afx_msg void OnSelchangeHistory();
    afx_msg void OnDirection(UINT nID);
    afx_msg void OnDeltaposDigits(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CConvertDlg, CDialog)

CConvertDlg::CConvertDlg(CWnd* pParent)
    : CDialog(CConvertDlg::IDD, pParent), m_fInput(100), m_nDirection(0), m_bKeep(TRUE), m_nDigits(1)
{
}

void CConvertDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_HISTORY, m_lstHistory);
    DDX_Control(pDX, IDC_DIGITS_SPIN, m_spinDigits);
    DDX_Text(pDX, IDC_INPUT, m_fInput);
    DDV_MinMaxDouble(pDX, m_fInput, -273, 10000);
    DDX_Radio(pDX, IDC_TO_FAHRENHEIT, m_nDirection);
    DDX_Text(pDX, IDC_RESULT, m_strResult);
    DDX_Check(pDX, IDC_KEEP, m_bKeep);
    DDX_Text(pDX, IDC_DIGITS, m_nDigits);
    DDV_MinMaxInt(pDX, m_nDigits, 0, 6);
}

BEGIN_MESSAGE_MAP(CConvertDlg, CDialog)
    ON_WM_CTLCOLOR()
    ON_BN_CLICKED(IDC_CONVERT, OnConvert)
    ON_LBN_SELCHANGE(IDC_HISTORY, &CConvertDlg::OnSelchangeHistory)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_TO_FAHRENHEIT, IDC_TO_CELSIUS, OnDirection)
    ON_NOTIFY(UDN_DELTAPOS, IDC_DIGITS_SPIN, OnDeltaposDigits)
END_MESSAGE_MAP()

BOOL CConvertDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_spinDigits.SetRange(0, 6);
    CEdit* pEdit = (CEdit*)GetDlgItem(IDC_INPUT);
    pEdit->LimitText(12);
    pEdit->SetFocus();
    pEdit->SetSel(0, -1);
    return FALSE;
}

void CConvertDlg::OnConvert()
{
    if (!UpdateData(TRUE))
        return;
    double fResult = m_nDirection == 0 ? m_fInput * 9 / 5 + 32 : (m_fInput - 32) * 5 / 9;
    m_strResult.Format(_T("%.*f"), m_nDigits, fResult);
    if (m_bKeep)
    {
        CString strLine = m_strResult;
        strLine += m_nDirection == 0 ? _T(" F") : _T(" C");
        m_lstHistory.InsertString(0, strLine);
    }
    UpdateData(FALSE);
}

void CConvertDlg::OnSelchangeHistory()
{
    int nIndex = m_lstHistory.GetCurSel();
    if (nIndex == LB_ERR)
        return;
    m_lstHistory.GetText(nIndex, m_strResult);
    UpdateData(FALSE);
}

void CConvertDlg::OnDirection(UINT nID)
{
    SetDlgItemText(IDC_UNIT, nID == IDC_TO_FAHRENHEIT ? _T("Celsius") : _T("Fahrenheit"));
}

void CConvertDlg::OnDeltaposDigits(NMHDR* pNMHDR, LRESULT* pResult)
{
    NM_UPDOWN* pNMUpDown = (NM_UPDOWN*)pNMHDR;
    int nDigits = (int)GetDlgItemInt(IDC_DIGITS) + pNMUpDown->iDelta;
    *pResult = nDigits < 0 || nDigits > 6;
    if (*pResult == 0)
        SetDlgItemInt(IDC_DIGITS, (UINT)nDigits);
}

HBRUSH CConvertDlg::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    HBRUSH hbr = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    if (pWnd->GetDlgCtrlID() == IDC_UNIT)
        pDC->SetTextColor(RGB(0, 0, 192));
    return hbr;
}

void CConvertDlg::OnOK()
{
    if (GetFocus() == GetDlgItem(IDC_INPUT))
        OnConvert();
    else
        CDialog::OnOK();
}

class CConvertApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
    virtual int ExitInstance();

private:
    INT_PTR m_nResponse;
};

CConvertApp theApp;

BOOL CConvertApp::InitInstance()
{
    CWinApp::InitInstance();
    CConvertDlg dlg;
    m_pMainWnd = &dlg;
    m_nResponse = dlg.DoModal();
    return FALSE;
}

int CConvertApp::ExitInstance()
{
    CWinApp::ExitInstance();
    return m_nResponse == IDOK ? 10 : 20;
}
