// POSITION: where an element is in a list or map.
#pragma once

#include "afx.h"

struct __POSITION
{
};

// A position in a collection; NULL when there is none.
typedef __POSITION* POSITION;
