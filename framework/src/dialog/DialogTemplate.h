// Dialog templates in memory and the windows made from them.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// The template of this name in the chain of modules; NULL if there is none. Resources need no release.
LPCDLGTEMPLATE FindDialogTemplate(LPCTSTR name);

// The size of the client area that the template asks for, in pixels.
CSize DialogTemplateSize(HWND dialog, LPCDLGTEMPLATE dialogTemplate);

// Whether the template says where the dialog is to be: by coordinates, or by a style that does.
bool HasPlace(LPCDLGTEMPLATE dialogTemplate);

// Creates the template's window and attaches it to the object before its first message. If no window comes to
// life the object gets PostNcDestroy. FALSE on failure, or if the window did not survive WM_INITDIALOG, which
// brings the template in its lParam.
BOOL CreateFromTemplate(CWnd* window, LPCDLGTEMPLATE dialogTemplate, CWnd* parent, DLGPROC procedure);

} // namespace quorfx
