#include "Figure.h"

#include <algorithm>

namespace benchmarks {

Figure Ratio(const Series& work, const Series& floor, std::optional<double> target, double times) {
    std::vector<double> ratios;
    for (size_t round = 0; round < work.rounds.size(); ++round) {
        ratios.push_back(work.rounds[round] / (floor.rounds[round] * times));
    }
    const auto [lowest, highest] = std::ranges::minmax(ratios);
    return {work.name, floor.name, Median(work.rounds), Median(floor.rounds), Median(ratios), lowest, highest, target};
}

Figure PerIncident(const Series& larger, const Series& thousand, double thousands) {
    constexpr double kNoStepWorseThanLinear = 1.15;
    return Ratio(larger, thousand, kNoStepWorseThanLinear, thousands);
}

}  // namespace benchmarks
