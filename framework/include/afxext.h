// Form views and creation contexts.
#pragma once

#define __AFXEXT_H__

#include "afxwin.h"
#include "fx/formview.h"
