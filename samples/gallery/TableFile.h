// Where the gallery's table files are.
#pragma once

#include "CsvReader.h"

#include <afxwin.h>

// The path of a table that is shipped beside the program, "elements" or "countries", in the language in use.
CString ShippedTablePath(const wchar_t* name);
