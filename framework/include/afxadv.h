// The positions of bars.
#pragma once

#include "afxwin.h"
#include "fx/dockstate.h"
