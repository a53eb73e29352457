// What the public headers of QuorUiCtrl.dll share: the mark of its exported classes, and a check of the
// variant.
//
// Every public header with an exported class includes this one, so a host needs nothing of it. Whoever adds a
// class to the library writes QUOR_EXT_CLASS between `class` and its name; templates are not marked, they
// live in their headers.
#pragma once

#include <cstddef>

// Stands where a class of an extension DLL has AFX_EXT_CLASS, but belongs to this DLL alone: AFX_EXT_CLASS
// exports in every extension DLL, so a host that is one itself would export our classes, not import them.
// QUOR_UI_CTRL_BUILD is defined by the build of the DLL alone.
#ifdef QUOR_UI_CTRL_BUILD
#define QUOR_EXT_CLASS __declspec(dllexport)
#else
#define QUOR_EXT_CLASS __declspec(dllimport)
#endif

#ifdef _MSC_VER
// Exported classes have members of library and standard types, and bases of MFC. The DLL and its host share
// one run time, which is what these warnings ask for. They stay off for the classes that a host derives.
#pragma warning(disable : 4251 4275)
#endif

// The package names its variant: QUOR_CHECKED_LIBRARY is 1 for the checked one, 0 for the plain one, and
// undefined where library and host are built together. A host that says otherwise would disagree with the DLL
// about the layout of objects: checked containers are larger than plain ones, and lists take their nodes from
// other places. Such a host would link, and crash at its first row; it is better told here.
#ifdef QUOR_CHECKED_LIBRARY
#if !QUOR_CHECKED_LIBRARY && defined(_GLIBCXX_DEBUG)
#error "QuorUiCtrl was built without _GLIBCXX_DEBUG: remove _GLIBCXX_DEBUG from this program's definitions"
#elif !QUOR_CHECKED_LIBRARY && defined(_DEBUG)
#error "QuorUiCtrl was built without _DEBUG: remove _DEBUG from this program's definitions"
#elif QUOR_CHECKED_LIBRARY && !(defined(_GLIBCXX_DEBUG) && defined(_DEBUG))
#error "QuorUiCtrl was built with _GLIBCXX_DEBUG and _DEBUG: define both, or build it with QUOR_CHECKED=OFF"
#endif
// The standard library is a part of that layout as well.
#ifdef _LIBCPP_VERSION
#error "QuorUiCtrl was built with libstdc++: compile this program with it, too, not with libc++"
#endif
#endif
