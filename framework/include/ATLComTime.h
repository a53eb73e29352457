// Dates of automation.
#pragma once

#include "fx/oledatetime.h"
