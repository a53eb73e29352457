// The common controls.
#pragma once

#include "afxwin.h"
#include "fx/imagelist.h"
#include "fx/listctrl.h"
#include "fx/treectrl.h"
#include "fx/headerctrl.h"
#include "fx/spinbuttonctrl.h"
#include "fx/tooltipctrl.h"
#include "fx/tabctrl.h"
#include "fx/toolbarctrl.h"
#include "fx/statusbarctrl.h"
#include "fx/progressctrl.h"
#include "fx/sliderctrl.h"
