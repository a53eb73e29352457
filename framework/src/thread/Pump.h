// The pump's defaults, which also serve a thread without a CWinThread object.
#pragma once

#include "afxwin.h"

BOOL PumpOneMessage();
BOOL IsIdleMessageOfThread(const MSG& message);
BOOL PreTranslateForWindows(MSG* message);
