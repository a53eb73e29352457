// Synchronisation of threads.
#pragma once

#include "afx.h"
#include "fx/sync.h"
