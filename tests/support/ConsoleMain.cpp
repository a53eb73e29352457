// The entry point of test programs that need neither windows nor the framework.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <io.h>
#include <cstdio>

int main(int argumentCount, char** arguments)
{
    // Plain line ends, as the log of the build machine expects them.
    _setmode(_fileno(stdout), _O_BINARY);
    ::testing::InitGoogleTest(&argumentCount, arguments);
    return RUN_ALL_TESTS();
}
