// The per-thread state of the framework.
#include "threadstate/ThreadState.h"

static_assert(std::is_trivially_destructible_v<ThreadState>);

ThreadState& CurrentThreadState()
{
    static thread_local ThreadState state;
    return state;
}

CurrentMessageScope::CurrentMessageScope(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    : m_state(CurrentThreadState()), m_frame()
{
    m_frame.message.hwnd = window;
    m_frame.message.message = message;
    m_frame.message.wParam = wParam;
    m_frame.message.lParam = lParam;
    m_frame.outer = m_state.currentMessage;
    m_state.currentMessage = &m_frame;
}

CurrentMessageScope::~CurrentMessageScope()
{
    m_state.currentMessage = m_frame.outer;
}
