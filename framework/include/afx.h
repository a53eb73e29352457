// The base of the framework: root object and run-time classes, strings, exceptions, diagnostics.
#pragma once

#include "fx/config.h"
#include "fx/object.h"
#include "fx/diagnostics.h"
#include "fx/exception.h"
#include "fx/string.h"
