// The guard allocator of the checked build: what tests can ask it.
//
// QuorGuard.dll replaces new and delete in the whole process. Every block ends at an inaccessible page and
// becomes inaccessible when it is deleted; addresses are never used again. So reading or writing past the
// end, and using a deleted block, fault on the guilty instruction. Writes before the block, double,
// mismatched and wrong-size deletes are found by delete. At the end of the process the blocks that are still
// live are reported. A report goes to stderr, with the stacks of the fault, of the allocation and of the
// delete, and ends the process with GuardExitCode. tools/guard-symbols.py turns the addresses into functions
// and lines.
//
// Not covered: malloc and the Windows heap, the stack, globals, uninitialised values.
//
// Environment variables:
//   QUOR_GUARD_LEAKS=0    do not report live blocks at the end
//   QUOR_GUARD_UNDER=1    put blocks behind the inaccessible page: finds reads before the block instead of
//   past its end QUOR_GUARD_FRAMES=n   how many stack frames to keep for each block, 0 to 12 (default 8)
//   QUOR_GUARD_ALIGN=n    align blocks to n at least; by default a block is aligned as its size allows, to
//   fit tightly QUOR_GUARD_LIMIT=n    how many blocks may have pages of their own at a time (default 30000:
//   Linux limits the
//                         mappings of a process); more are packed, with checks at delete only
#pragma once

#include <cstddef>

// The exit code of a process that the guard has ended.
constexpr int GuardExitCode = 86;

#ifdef QUOR_GUARD

#ifdef QUOR_GUARD_BUILD
#define QUOR_GUARD_API __declspec(dllexport)
#else
#define QUOR_GUARD_API __declspec(dllimport)
#endif

extern "C" {
// A point in time, for QuorGuardLeaksSince: the number of blocks made so far.
QUOR_GUARD_API std::size_t QuorGuardMark();

// How many of the blocks made since the mark are live. Describes the first ten on stderr.
QUOR_GUARD_API std::size_t QuorGuardLeaksSince(std::size_t mark);

// The number of live blocks.
QUOR_GUARD_API std::size_t QuorGuardLiveBlocks();

// Blocks made between a call with true and one with false are never reported as leaks: for caches of others
// that live as long as the process.
QUOR_GUARD_API void QuorGuardIgnoreLeaks(bool ignore);

// Makes the n-th allocation from now fail with std::bad_alloc; 0 calls that off.
QUOR_GUARD_API void QuorGuardFailAt(long n);
}

#else

// The plain build has no guard: nothing is counted.
inline std::size_t QuorGuardMark()
{
    return 0;
}
inline std::size_t QuorGuardLeaksSince(std::size_t)
{
    return 0;
}
inline std::size_t QuorGuardLiveBlocks()
{
    return 0;
}
inline void QuorGuardIgnoreLeaks(bool) {}

#endif
