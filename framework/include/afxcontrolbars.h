// The extended controls.
#pragma once

#include "afxwin.h"
#include "afxcmn.h"
#include "afxdialogex.h"
#include "afxdisp.h"
#include "afxpropertygridctrl.h"
