// The part of an extension module that is compiled into the module itself: include it once, in the file with
// DllMain.
#pragma once

#include "afxwin.h"
