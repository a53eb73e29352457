// The hook on window creation that gives a CWnd its window.
#include "window/CreationScope.h"
#include "threadstate/ThreadState.h"
#include "FrameworkAccess.h"

CreationScope::CreationScope(CWnd& object) : m_object(&object), m_outer(CurrentThreadState().creation)
{
    ThreadState& state = CurrentThreadState();
    state.creation = this;
    if (state.creationHook == nullptr)
        state.creationHook = ::SetWindowsHookEx(WH_CBT, HookProcedure, nullptr, ::GetCurrentThreadId());
}

CreationScope::~CreationScope()
{
    ThreadState& state = CurrentThreadState();
    state.creation = m_outer;
    if (m_outer == nullptr && state.creationHook != nullptr)
    {
        ::UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
}

namespace
{

// The input method's helper window can be created just before the first window of a thread.
bool IsInputMethodWindow(HWND window)
{
    TCHAR name[8] = {};
    ::GetClassName(window, name, 8);
    return ::lstrcmpi(name, _T("IME")) == 0;
}

void RouteMessagesTo(CWnd& object)
{
    WNDPROC* const super = FrameworkAccess::SuperWndProcAddress(object);
    const LONG_PTR replaced =
        ::SetWindowLongPtr(object.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc()));
    const WNDPROC old = reinterpret_cast<WNDPROC>(replaced);
    if (old != AfxGetAfxWndProc())
        *super = old;
}

} // namespace

bool CreationScope::Adopt(HWND window)
{
    m_adopted = window;
    try
    {
        if (!m_object->Attach(window))
            return false;
        m_object->PreSubclassWindow();
        RouteMessagesTo(*m_object);
        return true;
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    catch (...)
    {
        TRACE(L"An unknown exception was thrown in PreSubclassWindow.\n");
    }
    return false;
}

LRESULT CALLBACK CreationScope::HookProcedure(int code, WPARAM wParam, LPARAM lParam)
{
    ThreadState& state = CurrentThreadState();
    CreationScope* const scope = state.creation;
    if (code == HCBT_CREATEWND && scope != nullptr && scope->m_adopted == nullptr)
    {
        const HWND window = reinterpret_cast<HWND>(wParam);
        if (!IsInputMethodWindow(window) && !scope->Adopt(window))
            return 1;
    }
    return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
}

BOOL CreationScope::Finish(HWND created)
{
    if (created != nullptr && ::IsWindow(created))
        return TRUE;
    // An object that is still in the map missed WM_NCDESTROY; one that is not may have been deleted by it.
    const bool neverAttached = m_adopted == nullptr;
    const bool stillAttached = !neverAttached && CWnd::FromHandlePermanent(m_adopted) == m_object;
    if (stillAttached)
    {
        *m_object->GetSuperWndProcAddr() = nullptr;
        m_object->Detach();
    }
    if (neverAttached || stillAttached)
        m_object->PostNcDestroy();
    return FALSE;
}
