// Non-template collections.
#pragma once

#include "afx.h"
