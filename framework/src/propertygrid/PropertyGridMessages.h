// The messages that a property grid posts to itself: what cannot be done inside a control's notification.
#pragma once

#include "afxwin.h"

// The drop-down list was closed: takes the chosen option and deletes the combo box.
constexpr UINT FinishComboMessage = WM_USER + 701;
// An editor that is not the grid's own class lost the focus.
constexpr UINT FinishEditMessage = WM_USER + 702;
