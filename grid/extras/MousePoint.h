// MousePoint: where a mouse message says that the mouse is.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// In client coordinates of the window that gets the message; negative beside a second screen.
inline CPoint MousePoint(LPARAM lParam)
{
    return CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
}

} // namespace QuorUiCtr
