// CDialog: templates, the modal loop, and what the dialog procedure answers.
#include "afxpriv.h"
#include "dialog/CommandRoute.h"
#include "dialog/DialogTemplate.h"
#include "dialog/DisabledWindows.h"
#include "thread/HelpContext.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    ON_WM_HELPINFO()
    ON_MESSAGE(WM_COMMANDHELP, &CDialog::OnCommandHelp)
END_MESSAGE_MAP()

CDialog::CDialog() : CDialog(static_cast<LPCTSTR>(nullptr), nullptr) {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName),
      m_hDialogTemplate(nullptr),
      m_lpDialogTemplate(nullptr),
      m_lpDialogInit(nullptr),
      m_pParentWnd(pParentWnd)
{
}

CDialog::~CDialog()
{
    if (m_hWnd != nullptr)
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
    if (lpTemplate == nullptr)
        return FALSE;
    CWnd* parent = pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd();
    m_pParentWnd = parent;
    return quorfx::CreateFromTemplate(this, lpTemplate, parent, &CDialog::DialogProc);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    if (m_pParentWnd == nullptr)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    m_hDialogTemplate = hDialogTemplate;
    if (m_pParentWnd == nullptr)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

INT_PTR CDialog::DoModal()
{
    ASSERT(m_hWnd == nullptr);
    LPCDLGTEMPLATE dialogTemplate = m_lpDialogTemplate;
    if (m_hDialogTemplate != nullptr)
        dialogTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(m_hDialogTemplate));
    else if (dialogTemplate == nullptr)
        dialogTemplate = quorfx::FindDialogTemplate(m_lpszTemplateName);
    m_nModalResult = -1;
    if (dialogTemplate != nullptr)
        RunDialog(dialogTemplate);
    if (m_hDialogTemplate != nullptr)
        ::GlobalUnlock(m_hDialogTemplate);
    return m_nModalResult;
}

void CDialog::RunDialog(LPCDLGTEMPLATE lpTemplate)
{
    HWND topLevel = nullptr;
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
    if (m_hWnd != nullptr)
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    // The owner must be enabled before the dialog dies, or another program's window would become active.
    blocked.Enable();
    if (m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd)
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
INT_PTR CALLBACK CDialog::DialogProc(HWND hWnd, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CDialog* dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(hWnd));
    return dialog != nullptr ? dialog->InitDialog(reinterpret_cast<LPCDLGTEMPLATE>(lParam)) : TRUE;
}

namespace
{

// Centres a dialog whose template does not say where it is to be, unless its host has placed or shown it.
void CentreWhereItWasCreated(CWnd& dialog, LPCDLGTEMPLATE dialogTemplate, const CRect& created)
{
    if (dialog.IsWindowVisible() || (dialog.GetStyle() & WS_CHILD) || quorfx::HasPlace(dialogTemplate))
        return;
    CRect now;
    dialog.GetWindowRect(&now);
    if (now.left == created.left && now.top == created.top)
        dialog.CenterWindow();
}

} // namespace

INT_PTR CDialog::InitDialog(LPCDLGTEMPLATE lpTemplate)
{
    try
    {
        const HWND window = m_hWnd;
        CRect created;
        GetWindowRect(&created);
        PreInitDialog();
        const BOOL setsFocus = OnInitDialog();
        // A modeless dialog that gave up may have deleted itself.
        if (lpTemplate != nullptr && FromHandlePermanent(window) == this)
            CentreWhereItWasCreated(*this, lpTemplate, created);
        return setsFocus;
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
        m_lpDialogInit != nullptr ? ExecuteDlgInit(m_lpDialogInit) : ExecuteDlgInit(m_lpszTemplateName);
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

BOOL CDialog::OnHelpInfo(HELPINFO*)
{
    CWnd* const main = AfxGetMainWnd();
    if ((GetStyle() & WS_CHILD) || main == nullptr || ::GetKeyState(VK_SHIFT) < 0)
        return static_cast<BOOL>(Default());
    main->SendMessage(WM_COMMAND, ID_HELP);
    return TRUE;
}

// The help on a dialog has the number of its template.
LRESULT CDialog::OnCommandHelp(WPARAM, LPARAM lParam)
{
    if (lParam == 0 && m_lpszTemplateName != nullptr && IS_INTRESOURCE(m_lpszTemplateName))
        lParam = HID_BASE_RESOURCE + static_cast<LPARAM>(reinterpret_cast<UINT_PTR>(m_lpszTemplateName));
    return ShowHelpContext(static_cast<DWORD_PTR>(lParam));
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
