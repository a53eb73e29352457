// The standard controls.
#pragma once

#include "fx/static.h"
#include "fx/button.h"
#include "fx/edit.h"
#include "fx/listbox.h"
#include "fx/combobox.h"
#include "fx/scrollbar.h"
