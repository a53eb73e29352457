// Reads the input of a fuzz target as numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace quor::fuzz
{

class Bytes
{
public:
    Bytes(const std::uint8_t* first, std::size_t size) : next(first), end(first + size) {}

    bool IsEmpty() const { return next == end; }
    // 0 at the end.
    std::uint8_t Byte() { return IsEmpty() ? std::uint8_t{0} : *next++; }
    // -128 to 127.
    long Small() { return static_cast<std::int8_t>(Byte()); }
    std::uint32_t Word()
    {
        std::uint32_t word = 0;
        for (int i = 0; i < 4; ++i)
            word = word << 8 | Byte();
        return word;
    }
    // 0 to limit - 1; 0 when there is no such number.
    long Below(long limit) { return limit > 0 ? static_cast<long>((Byte() << 8 | Byte()) % limit) : 0; }

private:
    const std::uint8_t* next;
    const std::uint8_t* end;
};

// Ends the target with a sentence, and the fuzzer keeps the input.
[[noreturn]] inline void Fail(const char* what)
{
    std::fprintf(stderr, "FUZZ: %s\n", what);
    std::abort();
}

inline void Require(bool holds, const char* what)
{
    if (!holds)
        Fail(what);
}

} // namespace quor::fuzz
