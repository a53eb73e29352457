// Window classes made from a style, a cursor, a brush and an icon.
#include "afxwin.h"
#include "threadstate/ThreadState.h"

#include <iterator>

namespace
{

UINT_PTR NumberOf(const void* handle)
{
    return reinterpret_cast<UINT_PTR>(handle);
}

bool IsRegistered(HINSTANCE instance, LPCTSTR name)
{
    WNDCLASS existing = {};
    return ::GetClassInfo(instance, name, &existing) != FALSE;
}

} // namespace

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass)
{
    if (IsRegistered(lpWndClass->hInstance, lpWndClass->lpszClassName))
        return TRUE;
    return ::RegisterClass(lpWndClass) != 0;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    ThreadState& state = CurrentThreadState();
    const HINSTANCE instance = AfxGetInstanceHandle();
    const size_t size = std::size(state.className);
    if (hCursor == nullptr && hbrBackground == nullptr && hIcon == nullptr)
    {
        _snwprintf(state.className, size, L"Afx:%Ix:%x", NumberOf(instance), nClassStyle);
    }
    else
    {
        _snwprintf(state.className, size, L"Afx:%Ix:%x:%Ix:%Ix:%Ix", NumberOf(instance), nClassStyle,
                   NumberOf(hCursor), NumberOf(hbrBackground), NumberOf(hIcon));
    }
    state.className[size - 1] = 0;

    WNDCLASS info = {};
    info.style = nClassStyle != 0 ? nClassStyle : static_cast<UINT>(CS_DBLCLKS);
    info.lpfnWndProc = ::DefWindowProc;
    info.hInstance = instance;
    info.hCursor = hCursor != nullptr ? hCursor : ::LoadCursor(nullptr, IDC_ARROW);
    info.hbrBackground = hbrBackground;
    info.hIcon = hIcon != nullptr ? hIcon : ::LoadIcon(nullptr, IDI_WINLOGO);
    info.lpszClassName = state.className;
    if (!AfxRegisterClass(&info))
        AfxThrowResourceException();
    return state.className;
}
