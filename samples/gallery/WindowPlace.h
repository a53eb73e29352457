// What the gallery remembers from one run to the next.
#pragma once

#include <afxwin.h>

// Brings a window to where SaveWindowPlace has left it, if that is still on a screen; returns false when
// nothing was remembered, or nothing of use.
bool RestoreWindowPlace(CWnd& window);
void SaveWindowPlace(CWnd& window);

// The index of the page that was shown last; 0 when nothing is remembered.
size_t RememberedPage();
void RememberPage(size_t index);
