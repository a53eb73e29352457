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

// One line of the result table: our figure and a peer's for the same work. Figures are milliseconds unless
// the workload's name says otherwise.
struct Result
{
    std::string workload;
    long n;
    double ours;
    std::string peer;
    double peerFigure;

    double Ratio() const { return peerFigure > 0 ? ours / peerFigure : 0; }
};

// Collects results, printing each as a table line at once.
class Report
{
public:
    Report();
    void Add(const Result& result);
    // Writes all results as CSV; returns false when the file cannot be written.
    bool WriteCsv(const std::string& path) const;

private:
    std::vector<Result> results;
};

// The physical memory that the process occupies.
double WorkingSetBytes();

// Lets a top-level window process what is pending, so that nothing of it is timed later.
void DrainMessages();

} // namespace bench
