// The common dialogs of the system.
#pragma once

#include "afxwin.h"
#include "fx/filedialog.h"
#include "fx/colordialog.h"
#include "fx/fontdialog.h"
#include "fx/findreplacedialog.h"
