// Finds the few steps that a failure needs.
#pragma once

#include "tests/fuzz/Child.h"

#include <vector>

namespace quor::fuzz
{

// Leaves out as many as possible of the steps 0 to `failure.step` of `options` while the same failure stays.
std::vector<long> Shrink(const Options& options, const Outcome& failure);

} // namespace quor::fuzz
