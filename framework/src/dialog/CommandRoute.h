// How commands leave a dialog that has no handler for them.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// Offers a command to the dialog's owner, then to the application.
BOOL RouteCommandOut(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo);

} // namespace quorfx
