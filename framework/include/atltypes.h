// CPoint, CSize and CRect.
#pragma once

#include "fx/config.h"
