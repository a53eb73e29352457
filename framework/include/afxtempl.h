// Collection templates.
#pragma once

#include "afxcoll.h"
#include "fx/array.h"
#include "fx/list.h"
#include "fx/map.h"
#include "fx/typedptr.h"
