// What the framework keeps per thread beside the handle maps.
#pragma once

#include "afxwin.h"

class CreationScope;

// The message that is being handled, linked to those it is nested in.
struct MessageFrame
{
    MSG message;
    bool passedToDefault; // whether a handler has called CWnd::Default for it
    MessageFrame* outer;
};

// A running CWnd::RunModalLoop, linked to the loops it is nested in.
struct ModalFrame
{
    const CWnd* window;
    bool windowIsGone;
    ModalFrame* outer;
};

// The tool tip control of the thread and the tool it shows.
struct ToolTipState
{
    HWND control;
    const CWnd* window; // where the last hit was, NULL when there is none
    INT_PTR hit;
    TOOLINFO tool; // the tool that the control knows; cbSize is 0 when there is none
};

// Constant-initialised and without a destructor, so that it can be used at any time of the thread's life.
struct ThreadState
{
    CWinThread* thread;
    AFX_MODULE_STATE* moduleState;
    MessageFrame* currentMessage;
    MessageFrame*
        loopMessage; // the message whose handler runs the present loop; NULL for the thread's own loop
    MSG noMessage;
    MSG pumpedMessage;
    UINT lastIdleMessage;
    POINT lastIdleCursor;
    HWND silencedWindow; // its controls' notifications are dropped while UpdateData runs
    CreationScope* creation;
    HHOOK creationHook;
    ModalFrame* modalLoop;
    ToolTipState toolTip;
    TCHAR className[96];
};

ThreadState& CurrentThreadState();

// Makes a message the current one for the lifetime of the object.
class CurrentMessageScope
{
public:
    CurrentMessageScope(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    ~CurrentMessageScope();
    CurrentMessageScope(const CurrentMessageScope&) = delete;
    CurrentMessageScope& operator=(const CurrentMessageScope&) = delete;

    const MSG& Message() const { return m_frame.message; }

private:
    ThreadState& m_state;
    MessageFrame m_frame;
};
