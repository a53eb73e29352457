// What frames and views share inside the framework.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// Asks the views of a frame for their first update.
constexpr UINT initialUpdateMessage = 0x0364;

// The style of a view that a frame creates.
constexpr DWORD defaultViewStyle = WS_CHILD | WS_VISIBLE | WS_BORDER;

// The icon of this number in the modules; NULL if there is none.
HICON FrameIcon(UINT id);

// The window class of frames and views: the window colour, the arrow, and the icon.
LPCTSTR RegisterFrameClass(HICON icon);

} // namespace quorfx
