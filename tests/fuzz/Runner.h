// The steps of a child process.
#pragma once

#include "tests/fuzz/Options.h"

namespace quor::fuzz
{

// Does the steps; returns the exit code. Ends the process at a failure.
int RunSteps(const Options& options);

} // namespace quor::fuzz
