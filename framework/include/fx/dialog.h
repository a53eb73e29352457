// .
#pragma once

#include "fx/config.h"
