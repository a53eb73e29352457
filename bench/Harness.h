// The benchmark's frame: timing, medians, and the table of results.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench
{

// Milliseconds that `work` takes, by the performance counter.
double TimeMs(const std::function<void()>& work);

// The median of `runs` timings of `work`; `prepare` runs untimed before each (it may be empty).
double MedianMs(const std::function<void()>& work, const std::function<void()>& prepare = {}, int runs = 5);

// The shortest of `runs` timings, which other programs on the machine disturb least: for figures that have a
// limit.
double ShortestMs(const std::function<void()>& work, const std::function<void()>& prepare = {}, int runs = 5);

// Something to time, with what is done untimed before each run (it may be empty).
struct Timed
{
    std::function<void()> work;
    std::function<void()> prepare;
};

// The shortest of `runs` timings of each. All have their turn before the next run of any, so that a time in
// which the machine is slow falls on all of them.
std::vector<double> ShortestInTurns(const std::vector<Timed>& all, int runs = 5);

// One line of the result table: our figure and a peer's for the same work. Figures are milliseconds unless
// the workload's name says otherwise.
struct Result
{
    std::string workload;
    long n;
    double ours;
    std::string peer;
    double peerFigure;
    // What the ratio is meant not to exceed; 0: any will do.
    double limit = 0;

    double Ratio() const { return peerFigure > 0 ? ours / peerFigure : 0; }
    // The limit is exceeded by more than the noise of a measurement explains.
    bool IsMissed() const { return limit > 0 && Ratio() > limit * 1.25; }
};

// Collects results, printing each as a table line at once.
class Report
{
public:
    Report();
    void Add(const Result& result);
    // Writes all results as CSV; returns false when the file cannot be written.
    bool WriteCsv(const std::string& path) const;
    // Names the results that miss their limit; returns how many there are.
    int PrintMisses() const;

private:
    std::vector<Result> results;
};

// How the time of a workload may grow with its size.
enum class Growth
{
    Constant,
    Linear
};

// Measures `timeMs`, which sets a workload of the given size up and times it, at two sizes, alternately and
// three times each, and adds a line: the shortest time at `large` against the one at `small`, to which it has
// grown as `growth` says. The limit leaves room for caches that the larger size outgrows.
void AddGrowth(Report& report, const std::string& workload, long small, long large, Growth growth,
               const std::function<double(long)>& timeMs, double limit = 2);

// The physical memory that the process occupies.
double WorkingSetBytes();

// Lets a top-level window process what is pending, so that nothing of it is timed later.
void DrainMessages();

} // namespace bench
