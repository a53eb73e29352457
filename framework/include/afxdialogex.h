// Dialogs with a background of their own.
#pragma once

#include "afxwin.h"
#include "fx/dialogex.h"
