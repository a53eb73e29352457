// The process that the user starts: runs the controls in child processes, and explains failures.
#pragma once

#include "tests/fuzz/Options.h"

namespace quor::fuzz
{

// Returns the exit code: 0 when nothing failed.
int Drive(const Options& options);

} // namespace quor::fuzz
