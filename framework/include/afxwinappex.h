// The application object.
#pragma once

#include "afxwin.h"
