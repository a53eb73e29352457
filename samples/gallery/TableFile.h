// Where the gallery's table files are.
#pragma once

#include "CsvReader.h"

#include <afxwin.h>

// The path of a data file that is shipped beside the program.
CString DataFilePath(const wchar_t* fileName);
