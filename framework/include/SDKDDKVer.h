// The versions of Windows, under the name that programs include them by.
#pragma once

#include <sdkddkver.h>
