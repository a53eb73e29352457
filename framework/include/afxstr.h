// CString.
#pragma once

#include "afx.h"
