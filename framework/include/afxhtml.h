// Views of HTML pages are not part of the framework; programs include this beside afxwin.h.
#pragma once

#include "afxwin.h"
