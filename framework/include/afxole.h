// OLE documents are not part of the framework; what programs call to start OLE is in afxdisp.h.
#pragma once

#include "afxdisp.h"
