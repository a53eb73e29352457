// Nothing may wait for somebody: menus, message boxes and the platform's own loops are ended, and no message
// depends on the time.
#pragma once

#include "tests/support/ThreadHook.h"

#include <windows.h>

namespace quor::fuzz
{

// As long as it lives, menus get a few keys and are ended, message boxes are answered at random, and timers
// that have really run out are ignored: the fuzzer sends the messages of timers itself.
class ModalEnder
{
public:
    ModalEnder();

private:
    static LRESULT CALLBACK OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnMessageFilter(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnGetMessage(int code, WPARAM wParam, LPARAM lParam);

    test::ThreadHook training;
    test::ThreadHook filter;
    test::ThreadHook queue;
};

// Messages that end the loop which the platform runs when a mouse button goes down in such a window.
void PostEndOfMouseLoop(HWND window, LPARAM point);

// Handles what is posted, as the application's loop does.
void Pump();

} // namespace quor::fuzz
