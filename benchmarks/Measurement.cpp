#include "Measurement.h"

#include <algorithm>
#include <chrono>

namespace benchmarks {
namespace {

double MeanMicroseconds(const Work& work, int repetitions) {
    const auto start = std::chrono::steady_clock::now();
    for (int repetition = 0; repetition < repetitions; ++repetition) work.run();
    const std::chrono::duration<double, std::micro> elapsed = std::chrono::steady_clock::now() - start;
    return elapsed.count() / repetitions;
}

Measurement Summary(const std::string& name, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return {name, times[times.size() / 2], times.front(), times.back()};
}

}  // namespace

std::vector<Measurement> Measure(const std::vector<Work>& works, int rounds, int repetitions) {
    for (const Work& work : works) work.run();
    std::vector<std::vector<double>> times(works.size());
    for (int round = 0; round < rounds; ++round) {
        for (size_t index = 0; index < works.size(); ++index) {
            times[index].push_back(MeanMicroseconds(works[index], repetitions));
        }
    }
    std::vector<Measurement> measurements;
    for (size_t index = 0; index < works.size(); ++index) {
        measurements.push_back(Summary(works[index].name, std::move(times[index])));
    }
    return measurements;
}

}  // namespace benchmarks
