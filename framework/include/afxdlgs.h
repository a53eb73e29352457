// The common dialogs of the system, and property sheets.
#pragma once

#include "afxwin.h"
#include "fx/filedialog.h"
#include "fx/colordialog.h"
#include "fx/fontdialog.h"
#include "fx/findreplacedialog.h"
#include "fx/propertysheet.h"
