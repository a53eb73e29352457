// Pictures of a window, written as 24-bit BMP files.
#pragma once

#include <afxwin.h>

// Copies the window's rectangle from the screen and writes it to `path`. Returns false when the file cannot
// be written.
bool WriteWindowPicture(CWnd& window, const CString& path);
