// Windows, drawing, menus, threads, dialogs, frames and the standard controls.
#pragma once

#define __AFXWIN_H__

#include "afx.h"
#include "atltypes.h"
#include "fx/gdi.h"
#include "fx/dc.h"
#include "fx/menu.h"
#include "fx/cmdtarget.h"
#include "fx/wnd.h"
#include "fx/module.h"
#include "fx/thread.h"
#include "fx/resourcetext.h"
#include "fx/dialog.h"
#include "fx/frame.h"
#include "fx/miniframe.h"
#include "fx/mdiframe.h"
#include "fx/commandlineinfo.h"
#include "fx/view.h"
#include "fx/doctemplate.h"
#include "fx/stdcontrols.h"
#include "fx/dataexchange.h"
#include "afxmsg_.h"
#include "afxres.h"
