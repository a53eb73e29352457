// The modules whose resources are searched.
#pragma once

#include <vector>

#include "afxwin.h"

// The default module, the extension DLLs from the newest to the oldest, the framework.
std::vector<HINSTANCE> ResourceModules();
