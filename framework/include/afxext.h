// Form and edit views, creation contexts, bitmap buttons and the bars of frames.
#pragma once

#define __AFXEXT_H__

#include "afxwin.h"
#include "fx/bitmapbutton.h"
#include "fx/ctrlview.h"
#include "fx/formview.h"
#include "fx/controlbar.h"
#include "fx/toolbar.h"
#include "fx/statusbar.h"
#include "fx/dialogbar.h"
#include "fx/splitterwnd.h"
#include "fx/printinfo.h"
