// The handle map of windows.
#pragma once

#include "afxwin.h"
#include "handlemap/HandleMap.h"
#include "FrameworkAccess.h"

template <> struct HandleTraits<CWnd>
{
    static CWnd* Wrap(HWND window) { return FrameworkAccess::NewTemporaryWindow(window); }
    static void Unwrap(CWnd& object) { object.m_hWnd = nullptr; }
};

using WindowMap = HandleMap<HWND, CWnd>;
