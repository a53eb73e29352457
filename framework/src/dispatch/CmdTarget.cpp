// CCmdTarget: the search for a command's handler and its call; the hourglass.
#include "dispatch/MessageMap.h"
#include "FrameworkAccess.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

namespace
{

struct Command
{
    CCmdTarget& target;
    AFX_PMSG handler;
    UINT id;
    void* extra;

    template <typename TResult, typename... TArguments> TResult As(TArguments... arguments) const
    {
        return (target.*reinterpret_cast<TResult (CCmdTarget::*)(TArguments...)>(handler))(arguments...);
    }
    AFX_NOTIFY& Notification() const { return *static_cast<AFX_NOTIFY*>(extra); }
};

BOOL CallNotifyHandler(const Command& command, UINT_PTR kind)
{
    const AFX_NOTIFY& notification = command.Notification();
    LRESULT ignored = 0;
    LRESULT* const result = notification.pResult != nullptr ? notification.pResult : &ignored;
    NMHDR* const header = notification.pNMHDR;
    switch (kind)
    {
    case AfxSig_notify:
        command.As<void, NMHDR*, LRESULT*>(header, result);
        return TRUE;
    case AfxSig_notifyBool:
        return command.As<BOOL, NMHDR*, LRESULT*>(header, result);
    case AfxSig_notifyRange:
        command.As<void, UINT, NMHDR*, LRESULT*>(command.id, header, result);
        return TRUE;
    default:
        return command.As<BOOL, UINT, NMHDR*, LRESULT*>(command.id, header, result);
    }
}

BOOL CallUpdateHandler(const Command& command)
{
    CCmdUI* const state = static_cast<CCmdUI*>(command.extra);
    BOOL& continueRouting = FrameworkAccess::ContinueRouting(*state);
    continueRouting = FALSE;
    command.As<void, CCmdUI*>(state);
    const BOOL handled = !continueRouting;
    continueRouting = FALSE;
    return handled;
}

BOOL CallCommandHandler(const Command& command, UINT_PTR kind)
{
    switch (kind)
    {
    case AfxSig_command:
        command.As<void>();
        return TRUE;
    case AfxSig_commandBool:
        return command.As<BOOL>();
    case AfxSig_commandRange:
        command.As<void, UINT>(command.id);
        return TRUE;
    case AfxSig_commandRangeBool:
        return command.As<BOOL, UINT>(command.id);
    case AfxSig_updateUI:
        return CallUpdateHandler(command);
    case AfxSig_notify:
    case AfxSig_notifyBool:
    case AfxSig_notifyRange:
    case AfxSig_notifyRangeBool:
        return CallNotifyHandler(command, kind);
    default:
        return FALSE;
    }
}

} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    UINT message = WM_COMMAND;
    UINT code = static_cast<UINT>(nCode);
    if (code != CN_UPDATE_COMMAND_UI)
    {
        if (HIWORD(code) != 0)
            message = HIWORD(code);
        code = LOWORD(code);
    }
    const AFX_MSGMAP_ENTRY* const entry = FindCommandEntry(GetMessageMap(), message, code, nID);
    if (entry == nullptr)
        return FALSE;
    if (pHandlerInfo != nullptr)
    {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pmf = entry->pfn;
        return TRUE;
    }
    return CallCommandHandler({*this, entry->pfn, nID, pExtra}, entry->nSig);
}

void CCmdTarget::BeginWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CWaitCursor::Restore()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(0);
}
