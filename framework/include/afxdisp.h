// Variants, dates and OLE.
#pragma once

#include "afxwin.h"
#include "fx/ole.h"
#include "fx/variant.h"
#include "ATLComTime.h"
