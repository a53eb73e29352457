// The basic types that programs expect here are those of afx.h.
#pragma once

#include "afx.h"
