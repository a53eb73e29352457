// Messages that the framework sends between its own windows.
#pragma once

#include "afxwin.h"

// Asks a control bar along the edge to take its place: lParam is an AFX_SIZEPARENTPARAMS*.
#define WM_SIZEPARENT 0x0361
// Asks a frame to show a text in its message line: the string resource wParam, or the text lParam; the result
// is the resource shown before.
#define WM_SETMESSAGESTRING 0x0362
// Sent to the main window and its descendants at idle time so that they update their user interface; wParam
// is TRUE when elements without a handler are to be disabled.
#define WM_IDLEUPDATECMDUI 0x0363
// Sent to the children of a new dialog or frame after it is complete.
#define WM_INITIALUPDATE 0x0364
// Asks a frame to go back to the string resource wParam in its message line.
#define WM_POPMESSAGESTRING 0x0375
// Asks a window to show help about itself: lParam is the context that is known, 0 for none. A window that
// does so returns TRUE.
#define WM_COMMANDHELP 0x0365
// Asks a window for the context of help at the client point in lParam; 0 for none.
#define WM_HELPHITTEST 0x0366
// Ends the mode in which a click asks for help.
#define WM_EXITHELPMODE 0x0367
// Sent to the window of a modal loop while the queue is empty: wParam is MSGF_DIALOGBOX, lParam counts the
// calls. A result of 0 stops the calls until the next message.
#define WM_KICKIDLE 0x036A

// The state of one pass over the control bars.
struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP;      // collects the moves; NULL when only the space is asked for
    RECT rect;      // the client area that is left
    SIZE sizeTotal; // the size used by all bars, when they do not stretch
    BOOL bStretch;  // whether bars fill the whole side
};
