// Tells whether a window object is still there after others were given the chance to destroy it.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// Whether `object` is still the object of the window `handle`. The object may have been deleted meanwhile:
// only its address is used.
inline bool IsStillWindow(const CWnd* object, HWND handle)
{
    return ::IsWindow(handle) && CWnd::FromHandlePermanent(handle) == object;
}

} // namespace QuorUiCtr
