// Runs steps in a process of their own, which may crash or hang.
#pragma once

#include "tests/fuzz/Options.h"

#include <string>

namespace quor::fuzz
{

struct Outcome
{
    bool failed = false;
    long step = -1; // the step that failed, or the last one
    long done = 0;
    unsigned long digest = 0;
    // What tells this failure from others; empty when there is none.
    std::string signature;
    // What the process wrote.
    std::string output;
};

// Does the steps that `options` names, of its first control.
Outcome RunChild(const Options& options);

} // namespace quor::fuzz
