// The command line of the fuzzer.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quor::fuzz
{

// Step numbers from first to last, both included.
using StepRange = std::pair<long, long>;

struct Options
{
    std::vector<std::string> controls; // empty: all
    std::uint64_t seed = 1;
    long steps = 20000;
    long chunk = 20000; // steps of one child process
    bool bare = false;  // the platform's own control in place of the library's
    bool talks = false;
    bool shrinks = true;
    bool comparesRuns = false;
    bool checksEach = false; // the state after each step, not now and then

    // Of a child only.
    bool isChild = false;
    std::wstring progress;
    std::vector<StepRange> kept; // the steps to do; empty: all
};

// Writes what is wrong to stderr and returns false when the line makes no sense.
bool ReadOptions(int count, char** arguments, Options& options);

std::string Text(const std::vector<StepRange>& ranges);
std::vector<StepRange> ReadRanges(const std::string& text);
// The numbers, ascending, as ranges and back.
std::vector<StepRange> ToRanges(const std::vector<long>& steps);
std::vector<long> ToSteps(const std::vector<StepRange>& ranges);

} // namespace quor::fuzz
