// The step that is being done: its random numbers, what it says, how it fails, how far hosts may go.
#pragma once

#include "tests/fuzz/Random.h"

namespace quor::fuzz
{

struct Step
{
    Random random{0};
    int depth = 0;      // how deep hosts are inside each other's mischief
    int mischiefs = 0;  // how often hosts may still do something in this step
    bool talks = false; // whether Say writes
};

Step& CurrentStep();
inline Random& Dice()
{
    return CurrentStep().random;
}

// Begins a step.
void BeginStep(const Random& random);

// Writes what is being done, in runs that are to be read.
__attribute__((format(gnu_printf, 1, 2))) void Say(const char* format, ...);

// Ends the process: something is not as it should be.
[[noreturn]] __attribute__((format(gnu_printf, 1, 2))) void Fail(const char* format, ...);

// Whether a host is to do something now, once in so many times. Never too deep inside of what it did before,
// and not without end in one step.
bool WantsMischief(long oneIn);

// Covers the mischief of a host.
class Mischief
{
public:
    explicit Mischief(const char* where);
    ~Mischief();
    Mischief(const Mischief&) = delete;
    Mischief& operator=(const Mischief&) = delete;
};

} // namespace quor::fuzz
