// CreationScope: attaches a CWnd to the window that is created while the scope exists, before the first
// message.
#pragma once

#include "afxwin.h"

// Scopes nest: a window that is created in the OnCreate of another has a scope of its own. The first window
// that the thread creates inside a scope is the object's; later ones are nobody's.
class CreationScope
{
public:
    explicit CreationScope(CWnd& object);
    ~CreationScope();
    CreationScope(const CreationScope&) = delete;
    CreationScope& operator=(const CreationScope&) = delete;

    // To be called with the result of the creation. On failure sees to it that the object is detached and its
    // PostNcDestroy has been called, once. Returns whether the window exists; the object may be gone when it
    // does not.
    BOOL Finish(HWND created);

private:
    static LRESULT CALLBACK HookProcedure(int code, WPARAM wParam, LPARAM lParam);
    bool Adopt(HWND window);

    CWnd* m_object;
    HWND m_adopted = nullptr;
    CreationScope* m_outer;
};
