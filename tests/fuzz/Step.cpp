// What is going on in this process; there is one step at a time.
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Progress.h"

#include <windows.h>

#include <cstdarg>
#include <cstdio>

namespace quor::fuzz
{

namespace
{

constexpr int MaxDepth = 3;
constexpr int MaxMischiefs = 6;

Step currentStep;

} // namespace

Step& CurrentStep()
{
    return currentStep;
}

void BeginStep(const Random& random)
{
    currentStep.random = random;
    currentStep.depth = 0;
    currentStep.mischiefs = MaxMischiefs;
}

void Say(const char* format, ...)
{
    if (!currentStep.talks)
        return;
    std::printf("%*s", 10 + 4 * currentStep.depth, "");
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    std::printf("\n");
}

void Fail(const char* format, ...)
{
    char text[400];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    std::printf("FUZZ: %s\n", text);
    std::fflush(stdout);
    for (;;)
        TerminateProcess(GetCurrentProcess(), FailureExitCode);
}

bool WantsMischief(long oneIn)
{
    return currentStep.depth < MaxDepth && currentStep.mischiefs > 0 && Dice().OneIn(oneIn);
}

Mischief::Mischief(const char* where)
{
    Say("in %s the host does:", where);
    ++currentStep.depth;
    --currentStep.mischiefs;
}

Mischief::~Mischief()
{
    --currentStep.depth;
}

} // namespace quor::fuzz
