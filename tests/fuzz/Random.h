// The fuzzer's own random numbers: the same on every machine, and cheap to begin anew for every step.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace quor::fuzz
{

// SplitMix64. A step's numbers depend on the seed and the step's number only, so leaving out steps changes
// nothing in those that remain.
class Random
{
public:
    explicit Random(std::uint64_t start) : state(start) {}
    Random(std::uint64_t seed, std::uint64_t number) : state(seed * 0x9E3779B97F4A7C15u)
    {
        state = Next() + number * 0xD1B54A32D192ED03u;
        Next();
    }

    std::uint64_t Next()
    {
        state += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    // 0 to limit - 1; 0 when there is no such number.
    long Below(long limit)
    {
        return limit < 1 ? 0 : static_cast<long>(Next() % static_cast<std::uint64_t>(limit));
    }
    // Both ends included.
    long Between(long first, long last) { return first + Below(last - first + 1); }
    bool OneIn(long number) { return Below(number) == 0; }

    template <class List> decltype(auto) Pick(List&& list)
    {
        return list[static_cast<std::size_t>(Below(static_cast<long>(std::size(list))))];
    }

private:
    std::uint64_t state;
};

} // namespace quor::fuzz
