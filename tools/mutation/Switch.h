// What the sources with built-in changes ask: whether a change is on. QUOR_MUTANT names the one that is; that
// a change was reached is noted for the recorder. Included only by the copies that tools/mutate.py makes.
#pragma once

#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#endif

namespace quor_mutation
{

constexpr int Capacity = 16384;

struct State
{
    int chosen;
    bool reached[Capacity];
};

inline State* state = nullptr;

// Program and DLLs share one state: the first that asks makes it and leaves its address in the environment. A
// child process finds the address of its parent there and makes its own.
inline State* FindState()
{
#ifdef _WIN32
    const int process = _getpid();
#else
    const int process = getpid();
#endif
    int owner = 0;
    void* address = nullptr;
    const char* known = std::getenv("QUOR_MUTATION_STATE");
    if (known != nullptr && std::sscanf(known, "%d:%p", &owner, &address) == 2 && owner == process)
        return static_cast<State*>(address);
    auto* made = static_cast<State*>(std::calloc(1, sizeof(State)));
    const char* chosen = std::getenv("QUOR_MUTANT");
    made->chosen = chosen != nullptr ? std::atoi(chosen) : -1;
    char entry[80];
    std::snprintf(entry, sizeof entry, "%d:%p", process, static_cast<void*>(made));
#ifdef _WIN32
    _putenv_s("QUOR_MUTATION_STATE", entry);
#else
    setenv("QUOR_MUTATION_STATE", entry, 1);
#endif
    return made;
}

inline bool On(int number)
{
    if (state == nullptr)
        state = FindState();
    state->reached[number] = true;
    return state->chosen == number;
}

} // namespace quor_mutation
