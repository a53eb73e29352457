// Nothing of its own: carries the precompiled headers of the test programs.
#include <gtest/gtest.h>
