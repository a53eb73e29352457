// The ready-made collections: arrays, lists and maps of fixed element types.
#pragma once

#include "fx/arrays.h"
#include "fx/lists.h"
#include "fx/maps.h"
