// Writes down which test reaches which of the built-in changes, and how long it takes: one line for each test
// into the file that QUOR_MUTATION_RECORD names. tools/mutate.py adds this to one source of each test program
// of its copy.
#pragma once

#include "tools/mutation/Switch.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace quor_mutation
{

class Recorder : public testing::EmptyTestEventListener
{
public:
    explicit Recorder(const char* path) : file(std::fopen(path, "wb")) {}

    // What was reached before the first test may matter to any of them.
    void OnTestProgramStart(const testing::UnitTest&) override { Write("*", 0, true); }

    void OnTestEnd(const testing::TestInfo& test) override
    {
        char name[512];
        std::snprintf(name, sizeof name, "%s.%s", test.test_suite_name(), test.name());
        Write(name, test.result()->elapsed_time(), !test.result()->Failed());
    }

private:
    void Write(const char* test, long long milliseconds, bool passed)
    {
        On(0);
        std::fprintf(file, "%s\t%lld\t%s\t", test, milliseconds, passed ? "passed" : "failed");
        for (int number = 1; number < Capacity; ++number)
        {
            if (state->reached[number])
                std::fprintf(file, "%d ", number);
            state->reached[number] = false;
        }
        std::fprintf(file, "\n");
        std::fflush(file);
    }

    std::FILE* file;
};

inline const bool recording = [] {
    const char* path = std::getenv("QUOR_MUTATION_RECORD");
    if (path != nullptr)
        testing::UnitTest::GetInstance()->listeners().Append(new Recorder(path));
    return true;
}();

} // namespace quor_mutation
