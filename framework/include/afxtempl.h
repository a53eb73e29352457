// Collection templates.
#pragma once

#include "afxcoll.h"
