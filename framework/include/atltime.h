// Times.
#pragma once

#include "fx/time.h"
