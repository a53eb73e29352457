// A random user changes several controls; undoing everything gives the first state, redoing everything the
// last.
#include "tests/undo/GridSubject.h"
#include "tests/undo/UndoWorld.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

constexpr int StepsPerRound = 400;

constexpr long UsualSteps = 50000;
// The checked variant runs all tests once more, to see what is left behind; few steps tell that.
constexpr long StepsOfSecondRun = 4000;

long WantedSteps()
{
    static int runs = 0;
    const char* const wanted = std::getenv("QUOR_UNDO_STEPS");
    const long steps = wanted != nullptr ? std::atol(wanted) : UsualSteps;
    return ++runs == 1 ? steps : (std::min)(steps, StepsOfSecondRun);
}

// The tree takes most of the time of a step: it has one in so many.
UndoSubject& Any(UndoWorld& world, fuzz::Random& random)
{
    static const char* const wanted = std::getenv("QUOR_UNDO_TREES");
    static const long treesOneIn = wanted != nullptr ? std::atol(wanted) : 25;
    const long grids = static_cast<long>(world.subjects.size()) - 1;
    return *world.subjects[static_cast<size_t>(random.OneIn(treesOneIn) ? grids : random.Below(grids))];
}

// What hooks change after the last step that is undone stays until the next one.
void GoAll(UndoWorld& world, bool back, fuzz::Random* mutating)
{
    while (back ? world.stack.CanUndo() : world.stack.CanRedo())
    {
        const long left = back ? world.stack.GetUndoNum() : world.stack.GetRedoNum();
        world.SetMutating(left > 1 ? mutating : nullptr);
        back ? world.stack.Undo() : world.stack.Redo();
    }
    world.SetMutating(nullptr);
}

void RunRound(std::uint64_t seed, bool mutates)
{
    fuzz::Random random(seed);
    fuzz::Random hooks(seed + 1);
    UndoWorld world;
    AddGrids(world);
    AddTree(world);
    for (const auto& subject : world.subjects)
        subject->Watch(world.stack);
    world.stack.SetLimits(0, 0);
    world.stack.refusing = &hooks;
    fuzz::Random* const mutating = mutates ? &hooks : nullptr;
    // What only changes the view before there is a step is not kept.
    std::string first;
    while (world.stack.GetUndoNum() == 0)
    {
        first = world.Snapshot();
        Any(world, random).Step(random);
    }
    for (int i = 0; i < StepsPerRound; ++i)
    {
        world.SetMutating(mutating);
        if (random.OneIn(8))
            world.stack.Undo();
        else if (random.OneIn(8))
            world.stack.Redo();
        else
            Any(world, random).Step(random);
    }
    world.SetMutating(nullptr);
    ASSERT_EQ(world.stack.ended, 0) << "seed " << seed;
    // What has drifted away from the last step is in none.
    GoAll(world, true, mutating);
    GoAll(world, false, mutating);
    const std::string last = world.Snapshot();
    GoAll(world, true, mutating);
    ASSERT_EQ(world.stack.ended, 0) << "seed " << seed;
    ASSERT_EQ(world.stack.GetUndoNum(), 0) << "seed " << seed;
    ASSERT_EQ(world.Snapshot(), first) << "seed " << seed;
    GoAll(world, false, mutating);
    ASSERT_EQ(world.stack.ended, 0) << "seed " << seed;
    ASSERT_EQ(world.Snapshot(), last) << "seed " << seed;
}

TEST(RandomUndo, BringsTheFirstAndTheLastStateBack)
{
    const long rounds = WantedSteps() / StepsPerRound;
    const char* const start = std::getenv("QUOR_UNDO_SEED");
    const auto seed = static_cast<std::uint64_t>(start != nullptr ? std::atoll(start) : 1);
    for (long round = 0; round < rounds && !HasFatalFailure(); ++round)
        RunRound(seed + static_cast<std::uint64_t>(round),
                 (seed + static_cast<std::uint64_t>(round)) % 2 == 0);
    EXPECT_EQ(NumberedData::alive, 0);
}

} // namespace
} // namespace quor::test
