// Form views and creation contexts.
#pragma once

#include "afxwin.h"
#include "fx/formview.h"
