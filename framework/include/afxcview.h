// Views that are a list or a tree.
#pragma once

#include "afxwin.h"
#include "afxcmn.h"
#include "fx/commonviews.h"
