// Form views, creation contexts and the bars of frames.
#pragma once

#define __AFXEXT_H__

#include "afxwin.h"
#include "fx/formview.h"
#include "fx/controlbar.h"
#include "fx/toolbar.h"
#include "fx/statusbar.h"
#include "fx/dialogbar.h"
#include "fx/splitterwnd.h"
#include "fx/printinfo.h"
