// Times of pieces of work, taken in turn in one process run, so that what slows the machine slows them all.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace benchmarks {

struct Work {
    std::string name;
    std::function<void()> run;
    // How often a round runs it; the round's time is the mean.
    int repetitions = 1;
};

// What a work took in each round: microseconds for one run of it, unless the name of the series says otherwise.
struct Series {
    std::string name;
    std::vector<double> rounds;
};

inline constexpr int kRounds = 9;

// Runs every work once to warm up, then all of them in turn in every round.
std::vector<Series> Measure(const std::vector<Work>& works, int rounds = kRounds);

double Median(std::vector<double> values);

}  // namespace benchmarks
