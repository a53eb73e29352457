// CDialog: templates, the modal loop, and what the dialog procedure answers.
#include "dialog/CommandRoute.h"
#include "dialog/DialogTemplate.h"
#include "dialog/DisabledWindows.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)
IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()

CDialog::CDialog() : CDialog(static_cast<LPCTSTR>(NULL), NULL) {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName),
      m_hDialogTemplate(NULL),
      m_lpDialogTemplate(NULL),
      m_lpDialogInit(NULL),
      m_pParentWnd(pParentWnd)
{
}

CDialog::~CDialog()
{
    if (m_hWnd != NULL)
        DestroyWindow();
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    m_lpszTemplateName = lpszTemplateName;
    return CreateFrom(quorfx::FindDialogTemplate(lpszTemplateName), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    m_lpDialogInit = lpDialogInit;
    return CreateFrom(lpDialogTemplate, pParentWnd);
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    const BOOL created =
        CreateIndirect(static_cast<LPCDLGTEMPLATE>(::GlobalLock(hDialogTemplate)), pParentWnd);
    ::GlobalUnlock(hDialogTemplate);
    return created;
}

BOOL CDialog::CreateFrom(LPCDLGTEMPLATE lpTemplate, CWnd* pParentWnd)
{
    if (lpTemplate == NULL)
        return FALSE;
    CWnd* parent = pParentWnd != NULL ? pParentWnd : AfxGetMainWnd();
    m_pParentWnd = parent;
    return quorfx::CreateFromTemplate(this, lpTemplate, parent, &CDialog::DialogProc);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    if (m_pParentWnd == NULL)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    m_hDialogTemplate = hDialogTemplate;
    if (m_pParentWnd == NULL)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

INT_PTR CDialog::DoModal()
{
    ASSERT(m_hWnd == NULL);
    LPCDLGTEMPLATE dialogTemplate = m_lpDialogTemplate;
    if (m_hDialogTemplate != NULL)
        dialogTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(m_hDialogTemplate));
    else if (dialogTemplate == NULL)
        dialogTemplate = quorfx::FindDialogTemplate(m_lpszTemplateName);
    m_nModalResult = -1;
    if (dialogTemplate != NULL)
        RunDialog(dialogTemplate);
    if (m_hDialogTemplate != NULL)
        ::GlobalUnlock(m_hDialogTemplate);
    return m_nModalResult;
}

void CDialog::RunDialog(LPCDLGTEMPLATE lpTemplate)
{
    HWND topLevel = NULL;
    CWnd* owner = CWnd::GetSafeOwner(m_pParentWnd, &topLevel);
    const HWND ownerHandle = owner->GetSafeHwnd();
    ::ReleaseCapture();
    quorfx::DisabledWindows blocked(ownerHandle, topLevel);
    // EndDialog may be called while the dialog is still being created.
    m_nFlags |= WF_CONTINUEMODAL;
    const BOOL created = quorfx::CreateFromTemplate(this, lpTemplate, owner, &CDialog::DialogProc);
    if (created && ContinueModal())
        RunModalLoop(GetStyle() & DS_NOIDLEMSG ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
    m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL);
    if (m_hWnd != NULL)
        ::SetWindowPos(m_hWnd, NULL, 0, 0, 0, 0,
                       SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    // The owner must be enabled before the dialog dies, or another program's window would become active.
    blocked.Enable();
    if (m_hWnd != NULL && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(ownerHandle);
    DestroyWindow();
}

void CDialog::EndDialog(int nResult)
{
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL))
        EndModalLoop(nResult);
    else
        ::EndDialog(m_hWnd, nResult);
}

// Runs inside the platform's dialog procedure, which exceptions must not cross.
INT_PTR CALLBACK CDialog::DialogProc(HWND hWnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CDialog* dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(hWnd));
    return dialog != NULL ? dialog->InitDialog() : TRUE;
}

INT_PTR CDialog::InitDialog()
{
    try
    {
        PreInitDialog();
        return OnInitDialog();
    }
    catch (CException* exception)
    {
        if (CWinThread* thread = AfxGetThread())
            thread->ProcessWndProcException(exception, GetCurrentMessage());
        exception->Delete();
        EndDialog(-1);
        return FALSE;
    }
}

BOOL CDialog::OnInitDialog()
{
    const BOOL initialised =
        m_lpDialogInit != NULL ? ExecuteDlgInit(m_lpDialogInit) : ExecuteDlgInit(m_lpszTemplateName);
    if (!initialised || !UpdateData(FALSE))
    {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::PreInitDialog() {}

void CDialog::OnSetFont(CFont*) {}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return quorfx::RouteCommandOut(*this, nID, nCode, pExtra, pHandlerInfo);
}

void CDialog::MapDialogRect(LPRECT lpRect) const
{
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::NextDlgCtrl() const
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
}

void CDialog::PrevDlgCtrl() const
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, FALSE);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

void CDialog::SetDefID(UINT nID)
{
    ::SendMessage(m_hWnd, DM_SETDEFID, nID, 0);
}

DWORD CDialog::GetDefID() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0));
}

CDialogEx::CDialogEx() {}

CDialogEx::CDialogEx(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(nIDTemplate, pParentWnd) {}

CDialogEx::CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : CDialog(lpszTemplateName, pParentWnd) {}
