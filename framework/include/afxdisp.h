// Variants and dates.
#pragma once

#include "afxwin.h"
#include "fx/variant.h"
#include "ATLComTime.h"
