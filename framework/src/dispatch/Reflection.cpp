// Commands and notifications: which of parent and child sees them, and in which order.
#include "dispatch/MessageMap.h"
#include "threadstate/ThreadState.h"
#include "FrameworkAccess.h"

namespace
{

// Answers an update request only to learn whether a command is enabled.
class EnabledProbe : public CCmdUI
{
public:
    explicit EnabledProbe(UINT id) { m_nID = id; }
    void Enable(BOOL bOn) override
    {
        m_enabled = bOn;
        FrameworkAccess::EnableChanged(*this) = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
    BOOL IsEnabled() const { return m_enabled; }

private:
    BOOL m_enabled = TRUE;
};

} // namespace

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    int code = HIWORD(wParam);
    if (control == nullptr)
    {
        if (id == 0)
            return FALSE;
        // An accelerator is sent without asking whether its command is enabled.
        EnabledProbe probe(id);
        OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &probe, nullptr);
        if (!probe.IsEnabled())
            return TRUE;
        code = CN_COMMAND;
    }
    else
    {
        if (CurrentThreadState().silencedWindow == m_hWnd)
            return TRUE;
        if (ReflectLastMsg(control))
            return TRUE;
        if (id == 0)
            return FALSE;
    }
    return OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    NMHDR* const header = reinterpret_cast<NMHDR*>(lParam);
    const HWND control = header->hwndFrom;
    if (CurrentThreadState().silencedWindow == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(control, pResult))
        return TRUE;
    // Tool tips put a window handle into idFrom; the maps know them by their control id, 0.
    const UINT id = LOWORD(::GetDlgCtrlID(control));
    AFX_NOTIFY notification = {pResult, header};
    return OnCmdMsg(id, MAKELONG(LOWORD(header->code), WM_NOTIFY), &notification, nullptr);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MessageFrame* const current = CurrentThreadState().currentMessage;
    if (current == nullptr)
        return FALSE;
    const MSG message = current->message;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

namespace
{

bool IsReflectedByNumber(UINT message)
{
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
        return true;
    default:
        return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    }
}

} // namespace

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message == WM_COMMAND)
    {
        const BOOL handled =
            OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_COMMAND + WM_REFLECT_BASE), nullptr, nullptr);
        if (handled && pResult != nullptr)
            *pResult = 1;
        return handled;
    }
    if (message == WM_NOTIFY)
    {
        NMHDR* const header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notification = {pResult, header};
        return OnCmdMsg(0, MAKELONG(LOWORD(header->code), WM_NOTIFY + WM_REFLECT_BASE), &notification,
                        nullptr);
    }
    if (!IsReflectedByNumber(message))
        return FALSE;
    const bool isColor = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    const UINT mapped = WM_REFLECT_BASE + (isColor ? static_cast<UINT>(WM_CTLCOLOR) : message);
    const AFX_MSGMAP_ENTRY* const entry = FindMessageEntry(GetMessageMap(), mapped);
    LRESULT result = 0;
    if (entry == nullptr ||
        !CallMessageHandler(*this, *entry, WM_REFLECT_BASE + message, wParam, lParam, result))
        return FALSE;
    // No brush means that the control leaves its colours to the parent.
    if (isColor && result == 0)
        return FALSE;
    if (pResult != nullptr)
        *pResult = result;
    return TRUE;
}
