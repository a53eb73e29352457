// Colours that a host may set.
#pragma once

#include "fx/config.h"

// Stands for the system's colour where the host has set none.
constexpr COLORREF SystemColor = static_cast<COLORREF>(-1);
