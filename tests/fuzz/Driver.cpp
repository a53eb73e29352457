// Cuts the steps of a control into runs of a process each, because a process keeps records of all its memory.
#include "tests/fuzz/Driver.h"
#include "tests/fuzz/Child.h"
#include "tests/fuzz/Shrink.h"
#include "tests/fuzz/Subject.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <set>

namespace quor::fuzz
{

namespace
{

using Clock = std::chrono::steady_clock;

void PrintReplay(const Options& run, const std::vector<StepRange>& steps)
{
    std::printf("fuzz: again with  --control %s --seed %llu --steps %ld%s%s%s%s\n",
                run.controls.front().c_str(), static_cast<unsigned long long>(run.seed), run.steps,
                run.checksEach ? " --check-each" : "", run.bare ? " --bare" : "",
                steps.empty() ? "" : " --only ", Text(steps).c_str());
}

// The steps of a short list, and what the process wrote when it did them.
void Explain(Options run, const std::vector<long>& steps)
{
    run.kept = ToRanges(steps);
    run.talks = true;
    PrintReplay(run, run.kept);
    std::printf("%s\n", RunChild(run).output.c_str());
    run.bare = true;
    run.talks = false;
    const Outcome bare = RunChild(run);
    std::printf("fuzz: the same with the platform's own control: %s\n",
                bare.failed ? bare.signature.c_str() : "no failure");
}

// States are checked now and then only. Checked after each step, the same steps fail where the fault is, as a
// rule.
Outcome Narrow(Options& run, const Outcome& failure)
{
    run.checksEach = true;
    const Outcome narrowed = RunChild(run);
    if (narrowed.failed)
        return narrowed;
    run.checksEach = false;
    return failure;
}

void Report(Options run, const Outcome& failure, bool shrinks)
{
    std::printf("fuzz: FAILED in step %ld: %s\n", failure.step, failure.signature.c_str());
    // A fault that shows at the end, such as a leak, needs all steps.
    const bool atEnd = failure.done >= run.steps || failure.step < 0;
    if (!atEnd)
        run.steps = failure.step + 1;
    PrintReplay(run, {});
    std::printf("%s\n", failure.output.c_str());
    if (!shrinks || failure.step < 0)
        return;
    Explain(run, Shrink(run, failure));
}

// Two runs of the same steps must pass through the same states.
bool RepeatsItself(const Options& run, const Outcome& first)
{
    const Outcome second = RunChild(run);
    if (!second.failed && second.digest == first.digest)
        return true;
    std::printf("fuzz: FAILED: another run of the same steps went another way (%08lx, %08lx) %s\n",
                first.digest, second.digest, second.signature.c_str());
    PrintReplay(run, {});
    return false;
}

// The innermost place of a crash, from the report of the checked variant or of the plain one; empty when
// there is none or it is not in the system's own code.
std::string SystemPlace(const std::string& output)
{
    for (const std::string mark : {"#0 C:\\windows\\", " at C:\\windows\\"})
        if (const std::size_t begin = output.find(mark); begin != std::string::npos)
            return output.substr(begin, output.find_first_of("\r\n", begin) - begin);
    return "";
}

// Whether the platform's own edit crashes at a place when the same kind of steps is done to it, with nothing
// of the library in the process. Editors have such an edit in them. Each run ends with its first crash, and
// some places are rare.
bool CrashesInPlatform(const Options& options, const std::string& place)
{
    constexpr std::uint64_t Seeds = 64;
    static std::set<std::string> places;
    static std::uint64_t seed = 0;
    Options run = options;
    run.controls = {"select-all"};
    run.bare = true;
    run.steps = 1500;
    while (!places.contains(place) && seed < Seeds)
    {
        run.seed = ++seed;
        places.insert(SystemPlace(RunChild(run).output));
    }
    return places.contains(place);
}

bool IsFaultOfPlatform(const Options& options, const Outcome& failure)
{
    const std::string place = SystemPlace(failure.output);
    return !options.bare && !place.empty() && CrashesInPlatform(options, place);
}

// Memory that the platform has spoilt may fail anywhere later. Checked after each step it fails at once, so
// that what is reported is the narrower failure.
bool IsSteppedAround(Options& run, Outcome& failure)
{
    if (IsFaultOfPlatform(run, failure))
        return true;
    failure = Narrow(run, failure);
    return IsFaultOfPlatform(run, failure);
}

bool DriveControl(const Options& options, const std::string& control)
{
    const Clock::time_point start = Clock::now();
    long done = 0;
    long steppedAround = 0;
    bool passed = true;
    for (std::uint64_t number = 0; done < options.steps && passed; ++number)
    {
        Options run = options;
        run.controls = {control};
        run.seed = options.seed + number;
        run.steps = (std::min)(options.chunk, options.steps - done);
        Outcome outcome = RunChild(run);
        done += outcome.failed ? (std::max)(outcome.done, 1L) : run.steps;
        if (outcome.failed && IsSteppedAround(run, outcome))
        {
            ++steppedAround;
            continue;
        }
        passed = !outcome.failed && (!options.comparesRuns || RepeatsItself(run, outcome));
        if (outcome.failed)
            Report(run, outcome, options.shrinks);
    }
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    std::printf("fuzz: %-12s %9ld steps from seed %llu in %.1f s, %.0f per second: %s", control.c_str(), done,
                static_cast<unsigned long long>(options.seed), seconds, static_cast<double>(done) / seconds,
                passed ? "passed" : "FAILED");
    if (steppedAround > 0)
        std::printf(", after %ld crashes that the platform's own edit has, too", steppedAround);
    std::printf("\n");
    return passed;
}

} // namespace

int Drive(const Options& options)
{
    std::vector<std::string> controls = options.controls;
    if (controls.empty())
        for (const Mode& mode : AllModes())
            controls.emplace_back(mode.name);
    int failures = 0;
    for (const std::string& control : controls)
        failures += DriveControl(options, control) ? 0 : 1;
    return failures == 0 ? 0 : 1;
}

} // namespace quor::fuzz
