// AfxMessageBox.
#include "afxwin.h"
#include "FrameworkAccess.h"

namespace
{

// A box without an icon of its own gets one, except where the buttons say enough.
UINT WithDefaultIcon(UINT type)
{
    if ((type & MB_ICONMASK) != 0)
        return type;
    switch (type & MB_TYPEMASK)
    {
    case MB_OK:
    case MB_OKCANCEL:
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return type | MB_ICONEXCLAMATION;
    default:
        return type;
    }
}

int ShowMessageBox(LPCTSTR text, UINT type)
{
    HWND top = nullptr;
    const HWND owner = FrameworkAccess::SafeOwner(&top);
    const int answer = ::MessageBox(owner, text, AfxGetAppName(), WithDefaultIcon(type));
    if (top != nullptr)
        ::EnableWindow(top, TRUE);
    return answer;
}

} // namespace

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    return ShowMessageBox(lpszPrompt, nType);
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    CWinApp* const app = AfxGetApp();
    return app != nullptr ? app->DoMessageBox(lpszText, nType, nIDHelp) : ShowMessageBox(lpszText, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    if (!text.LoadString(nIDPrompt))
        TRACE(L"There is no string %u for a message box.\n", nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
