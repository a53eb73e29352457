// How commands leave a dialog that has no handler for them.
#include "dialog/CommandRoute.h"

namespace quorfx
{

BOOL RouteCommandOut(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    // Identifiers of controls mean something in their own dialog only.
    const bool isCommand = code == CN_COMMAND || code == static_cast<int>(CN_UPDATE_COMMAND_UI);
    if (!isCommand || id < 0x8000 || id >= 0xf000)
        return FALSE;
    CWnd* owner = dialog.GetParent();
    if (owner != nullptr && owner->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    CWinApp* application = AfxGetApp();
    return application != nullptr && application->OnCmdMsg(id, code, extra, handlerInfo);
}

} // namespace quorfx
