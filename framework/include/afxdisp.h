// Variants.
#pragma once

#include "afxwin.h"
#include "fx/variant.h"
