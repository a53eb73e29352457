// CWnd: messages on their way from the queue to the window.
#include "afxwin.h"

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    FilterToolTipMessage(pMsg);
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    const UINT message = lpMsg->message;
    const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
    const bool isMouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    return (isKey || isMouse) && IsDialogMessage(lpMsg);
}
