// CCommonDialog: the hook that attaches objects to the dialogs of the system.
#include "commondialog/HookScope.h"
#include "threadstate/PerThread.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

namespace
{

// The object whose dialog the system is about to create on this thread.
struct PendingDialog
{
    CCommonDialog* dialog = nullptr;
};

} // namespace

CCommonDialog::HookScope::HookScope(CCommonDialog* dialog) : m_outer(PerThread<PendingDialog>::Get().dialog)
{
    PerThread<PendingDialog>::Get().dialog = dialog;
}

CCommonDialog::HookScope::~HookScope()
{
    PerThread<PendingDialog>::Get().dialog = m_outer;
}

CCommonDialog::CCommonDialog(CWnd* pParentWnd) : CDialog(static_cast<LPCTSTR>(nullptr), pParentWnd) {}

void CCommonDialog::OnOK()
{
    if (UpdateData(TRUE))
        Default();
}

void CCommonDialog::OnCancel()
{
    Default();
}

BOOL CCommonDialog::HandleDialogMessage(UINT, WPARAM, LPARAM, UINT_PTR&)
{
    return FALSE;
}

HWND CCommonDialog::FindOwner() const
{
    return CWnd::GetSafeOwner(m_pParentWnd)->GetSafeHwnd();
}

INT_PTR CCommonDialog::RunHooked(BOOL(WINAPI* run)(void*), void* data)
{
    ASSERT(m_hWnd == nullptr);
    const HookScope scope(this);
    ::ReleaseCapture();
    const INT_PTR result = run(data) ? IDOK : IDCANCEL;
    // A dialog that could not be shown may leave its window attached.
    if (m_hWnd != nullptr)
        Detach();
    return result;
}

UINT_PTR CALLBACK CCommonDialog::HookProcedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    CCommonDialog*& pending = PerThread<PendingDialog>::Get().dialog;
    if (message == WM_INITDIALOG && pending != nullptr)
    {
        CCommonDialog* const dialog = pending;
        pending = nullptr;
        return dialog->SubclassWindow(hWnd) ? static_cast<UINT_PTR>(dialog->InitDialog()) : 0;
    }
    CCommonDialog* const dialog = DYNAMIC_DOWNCAST(CCommonDialog, CWnd::FromHandlePermanent(hWnd));
    UINT_PTR result = 0;
    if (dialog != nullptr && dialog->HandleDialogMessage(message, wParam, lParam, result))
        return result;
    return 0;
}
