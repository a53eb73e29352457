// Random messages for one window.
#pragma once

#include <windows.h>

namespace quor::fuzz
{

// Sends or posts a message to `target`, a descendant of `host` that may be gone afterwards.
void SendAnyMessage(HWND host, HWND target);

// Points in client coordinates: mostly inside of the window, at times at its edges or far away.
POINT AnyPoint(HWND window);

// Objects that messages refer to; made once, and alive as long as the process.
HFONT AnyFont();

// The kinds of messages; each sends one.
void SendMouse(HWND host, HWND target);
void SendKeys(HWND host, HWND target);
void SendScroll(HWND host, HWND target);
void ChangeState(HWND host, HWND target);
void SendPaint(HWND host, HWND target);
void SendText(HWND host, HWND target);
void SendOdd(HWND host, HWND target);

} // namespace quor::fuzz
