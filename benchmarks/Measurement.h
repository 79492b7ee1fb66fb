// Times of pieces of work, taken in turn in one process run, so that what slows the machine slows them all.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace benchmarks {

struct Work {
    std::string name;
    std::function<void()> run;
};

// Microseconds for one run of the work.
struct Measurement {
    std::string name;
    double median;
    double fastest;
    double slowest;
};

// Runs every work once to warm up, then all of them in turn, `rounds` times; in each turn a work runs `repetitions`
// times and counts with the mean.
std::vector<Measurement> Measure(const std::vector<Work>& works, int rounds, int repetitions);

}  // namespace benchmarks
