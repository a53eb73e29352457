// CWnd: dialog items: text, radio groups, data exchange, initial contents and user interface updates.
#include "afxpriv.h"
#include "threadstate/ThreadState.h"

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    const HWND item = ::GetDlgItem(m_hWnd, nID);
    if (item != nullptr)
    {
        const int length = ::GetWindowTextLength(item);
        ::GetWindowText(item, rString.GetBuffer(length), length + 1);
        rString.ReleaseBuffer();
    }
    return rString.GetLength();
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton)
{
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
    {
        if (IsDlgButtonChecked(id))
            return id;
    }
    return 0;
}

void CWnd::DoDataExchange(CDataExchange*) {}

namespace
{

// Changes that UpdateData makes in the controls are not the user's: the window hears nothing of them.
class SilencedNotifications
{
public:
    explicit SilencedNotifications(HWND window) : m_outer(CurrentThreadState().silencedWindow)
    {
        CurrentThreadState().silencedWindow = window;
    }
    ~SilencedNotifications() { CurrentThreadState().silencedWindow = m_outer; }
    SilencedNotifications(const SilencedNotifications&) = delete;
    SilencedNotifications& operator=(const SilencedNotifications&) = delete;

private:
    HWND m_outer;
};

} // namespace

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    CDataExchange exchange(this, bSaveAndValidate);
    const SilencedNotifications silenced(m_hWnd);
    try
    {
        DoDataExchange(&exchange);
        return TRUE;
    }
    catch (CUserException* exception)
    {
        // The user has been told already.
        exception->Delete();
    }
    catch (CException* exception)
    {
        exception->ReportError(MB_ICONEXCLAMATION);
        exception->Delete();
    }
    return FALSE;
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    if (lpszResourceName == nullptr)
        return TRUE;
    const LPCTSTR type = MAKEINTRESOURCE(240); // RT_DLGINIT
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, type);
    const HRSRC found = ::FindResource(module, lpszResourceName, type);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    // A dialog without initial contents has no such resource.
    return loaded == nullptr || ExecuteDlgInit(::LockResource(loaded));
}

namespace
{

// One record of a DLGINIT resource, in front of its text. The records end with a zero id.
#pragma pack(push, 1)
struct DialogInitRecord
{
    WORD controlId;
    WORD message;
    DWORD textLength;
};
#pragma pack(pop)

// The resource compiler writes the 16-bit numbers of these messages.
UINT MessageOfRecord(WORD message)
{
    switch (message)
    {
    case 0x0401:
        return LB_ADDSTRING;
    case 0x0403:
        return CB_ADDSTRING;
    default:
        return message;
    }
}

} // namespace

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource)
{
    const BYTE* position = static_cast<const BYTE*>(lpResource);
    while (position != nullptr)
    {
        DialogInitRecord record = {};
        std::memcpy(&record.controlId, position, sizeof(record.controlId));
        if (record.controlId == 0)
            break;
        std::memcpy(&record, position, sizeof(record));
        position += sizeof(record);
        // The texts are narrow characters in every program.
        const LRESULT added = ::SendDlgItemMessageA(m_hWnd, record.controlId, MessageOfRecord(record.message),
                                                    0, reinterpret_cast<LPARAM>(position));
        if (added == CB_ERR || added == CB_ERRSPACE)
            return FALSE;
        position += record.textLength;
    }
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    return TRUE;
}

namespace
{

// Only push buttons are disabled for want of a handler: other controls work without one.
bool IsPushButton(HWND control)
{
    const LRESULT code = ::SendMessage(control, WM_GETDLGCODE, 0, 0);
    return (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

} // namespace

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CCmdUI state;
        state.m_pOther = FromHandle(child);
        state.m_nID = LOWORD(::GetDlgCtrlID(child));
        CWnd* const attached = FromHandlePermanent(child);
        const int reflectedCode = MAKELONG(LOWORD(CN_UPDATE_COMMAND_UI), WM_COMMAND + WM_REFLECT_BASE);
        if (attached != nullptr && attached->OnCmdMsg(0, reflectedCode, &state, nullptr))
            continue;
        if (CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr))
            continue;
        state.DoUpdate(pTarget, bDisableIfNoHndler && IsPushButton(child));
    }
}
