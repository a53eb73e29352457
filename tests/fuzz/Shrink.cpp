// Leaves out halves, quarters, eighths ... of the steps, by running child processes.
#include "tests/fuzz/Shrink.h"

#include <algorithm>
#include <cstdio>

namespace quor::fuzz
{

namespace
{

constexpr int MaxRuns = 400;

class Shrinker
{
public:
    Shrinker(const Options& given, const Outcome& wanted) : options(given), failure(wanted)
    {
        for (long step = 0; step <= failure.step; ++step)
            steps.push_back(step);
    }

    std::vector<long> Run()
    {
        // The end of what failed is what matters as a rule.
        for (std::size_t kept = 16; kept < steps.size(); kept *= 4)
            if (Try({steps.end() - static_cast<std::ptrdiff_t>(kept), steps.end()}))
                break;
        for (std::size_t size = (steps.size() + 1) / 2;
             size > 0 && runs<MaxRuns; size = size> 1 ? (size + 1) / 2 : Again())
            LeaveOutChunks(size);
        return steps;
    }

private:
    // One more round with single steps, as long as they get fewer.
    std::size_t Again()
    {
        const std::size_t before = lastSize;
        lastSize = steps.size();
        return lastSize < before ? 1 : 0;
    }

    void LeaveOutChunks(std::size_t size)
    {
        for (std::size_t end = steps.size(); end > 0 && runs < MaxRuns;)
        {
            const std::size_t first = end > size ? end - size : 0;
            std::vector<long> fewer(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(first));
            fewer.insert(fewer.end(), steps.begin() + static_cast<std::ptrdiff_t>(end), steps.end());
            if (!fewer.empty())
                Try(std::move(fewer));
            end = first;
        }
    }

    bool Try(std::vector<long> fewer)
    {
        ++runs;
        Options shorter = options;
        shorter.kept = ToRanges(fewer);
        const Outcome outcome = RunChild(shorter);
        if (!outcome.failed || outcome.signature != failure.signature)
            return false;
        // What would have come later does not matter.
        fewer.erase(std::upper_bound(fewer.begin(), fewer.end(), outcome.step), fewer.end());
        steps = std::move(fewer);
        std::printf("fuzz: %zu steps are enough\n", steps.size());
        return true;
    }

    const Options& options;
    const Outcome& failure;
    std::vector<long> steps;
    std::size_t lastSize = static_cast<std::size_t>(-1);
    int runs = 0;
};

} // namespace

std::vector<long> Shrink(const Options& options, const Outcome& failure)
{
    return Shrinker(options, failure).Run();
}

} // namespace quor::fuzz
