// What the window core needs to know about the tool tips of the thread.
#pragma once

class CWnd;

// The window is going away or turns its tool tips off: hides its tip and drops what is remembered about it.
void ForgetToolTips(const CWnd* window);

// At the end of a thread: destroys the control that shows its tips.
void DestroyToolTipControl();
