#include "Measurement.h"

#include <algorithm>
#include <chrono>

namespace benchmarks {
namespace {

double MeanMicroseconds(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    for (int repetition = 0; repetition < work.repetitions; ++repetition) work.run();
    const std::chrono::duration<double, std::micro> elapsed = std::chrono::steady_clock::now() - start;
    return elapsed.count() / work.repetitions;
}

}  // namespace

std::vector<Series> Measure(const std::vector<Work>& works, int rounds) {
    std::vector<Series> series;
    for (const Work& work : works) {
        work.run();
        series.push_back({work.name, {}});
    }
    for (int round = 0; round < rounds; ++round) {
        for (size_t index = 0; index < works.size(); ++index) {
            series[index].rounds.push_back(MeanMicroseconds(works[index]));
        }
    }
    return series;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace benchmarks
