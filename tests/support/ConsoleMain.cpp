// The entry point of test programs that need neither windows nor the framework.
#include "tests/support/RunTests.h"

int main(int argumentCount, char** arguments)
{
    quor::test::InitTests(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
