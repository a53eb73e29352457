// The configuration every framework header starts from: platform headers, calling conventions, export macros.
#pragma once

// Standard headers come first: windows.h defines min and max as macros, which programs of this API expect.
#include <algorithm>
#include <cassert>
#include <climits>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <new>
#include <string>
#include <type_traits>
#include <utility>

#ifndef STRICT
#define STRICT
#endif
#include <windows.h>
#include <windowsx.h>
#include <commctrl.h>
#include <htmlhelp.h>
#include <tchar.h>
#include <malloc.h>

// windowsx.h and winuser.h define macros with the names of member functions of this API.
#undef SubclassWindow
#undef SubclassDialog
#undef GetNextWindow
#undef CopyRgn

#define _MFC_VER 0x0C00

// Marks what QuorFx.dll exports. The AFX_EXT_* macros below are for extension modules, not for the framework.
#ifdef QUORFX_BUILD
#define QFX_API __declspec(dllexport)
#else
#define QFX_API __declspec(dllimport)
#endif

#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif
#define AFX_EXT_DATADEF

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_DATA
#define AFX_DATADEF
#define AFX_API
#define AFX_MSG_CALL
#define AFX_STATIC static
#define AFX_INLINE inline
#define AFX_NOVTABLE
#define AFX_COMDAT
#define AFX_CORE_DATA
#define AFX_CORE_DATADEF
#define AFXAPI_DATA
#define BASED_CODE
#define afx_msg
#ifndef PASCAL
#define PASCAL __stdcall
#endif
#ifndef _T
#define _T(x) L##x
#endif
#define UNUSED_ALWAYS(x) ((void)(x))
#ifdef _DEBUG
#define UNUSED(x)
#else
#define UNUSED(x) ((void)(x))
#endif
