// Help on something that has a number.
#pragma once

#include "fx/config.h"

// Shows the help of this number in the way the application has chosen; FALSE when there is nothing to show
// it.
LRESULT ShowHelpContext(DWORD_PTR context);
