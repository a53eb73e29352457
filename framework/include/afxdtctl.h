// The controls for dates and times.
#pragma once

#include "afxwin.h"
#include "fx/datetimectrl.h"
#include "fx/monthcalctrl.h"
