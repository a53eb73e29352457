// The list of recently used files, and the positions of bars.
#pragma once

#include "afxwin.h"
#include "fx/dockstate.h"
#include "fx/recentfilelist.h"
