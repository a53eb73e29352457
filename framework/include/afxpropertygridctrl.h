// The property grid.
#pragma once

#include "fx/propertygridproperty.h"
#include "fx/propertygridctrl.h"
