// How often a test repeats what it does.
#pragma once

namespace quor::test
{

// Repetitions in the plain variant. In the checked one each step costs many times more, and each test runs
// twice.
constexpr int Rounds(int plain)
{
#ifdef _DEBUG
    return (plain + 4) / 5;
#else
    return plain;
#endif
}

} // namespace quor::test
