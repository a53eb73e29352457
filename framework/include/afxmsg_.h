// Message map macros.
#pragma once

#include "fx/cmdtarget.h"
