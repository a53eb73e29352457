// The base of the framework: root object and run-time classes, strings, exceptions, diagnostics, files,
// archives.
#pragma once

#include "fx/config.h"
#include "fx/object.h"
#include "fx/diagnostics.h"
#include "fx/exception.h"
#include "fx/string.h"
#include "atltime.h"
#include "fx/fileexception.h"
#include "fx/file.h"
#include "fx/stdiofile.h"
#include "fx/memfile.h"
#include "fx/archive.h"
