// What the entry points of all test programs do around the tests themselves.
#pragma once

#include "tests/guard/Guard.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <io.h>
#include <cstdio>

namespace quor::test
{

// GoogleTest keeps a register of thread-local values until the process ends.
inline void CreateGoogleTestCaches()
{
    QuorGuardIgnoreLeaks(true);
    {
        testing::internal::ThreadLocal<int> value;
        value.set(0);
    }
    QuorGuardIgnoreLeaks(false);
}

inline void InitTests(int argumentCount, char** arguments)
{
    // Plain line ends, as the log of the build machine expects them; and a crash loses nothing.
    _setmode(_fileno(stdout), _O_BINARY);
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    testing::InitGoogleTest(&argumentCount, arguments);
    CreateGoogleTestCaches();
}

} // namespace quor::test
