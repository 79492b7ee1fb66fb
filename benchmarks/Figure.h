// What is reported: a work as a ratio to its floor, and whether that keeps within its target.
#pragma once

#include "Measurement.h"

#include <optional>
#include <string>
#include <vector>

namespace benchmarks {

struct Figure {
    std::string work;
    std::string floor;
    // Medians of the rounds, in the unit of the series.
    double workMedian;
    double floorMedian;
    // Median, lowest and highest of the ratios of the rounds. Each ratio is taken within its round.
    double ratio;
    double lowest;
    double highest;
    // None: told for information.
    std::optional<double> target;

    bool Holds() const { return !target || ratio <= *target; }
};

// `times` is how often the floor counts: twenty, where the work is to be compared with twenty runs of it.
Figure Ratio(const Series& work, const Series& floor, std::optional<double> target, double times = 1);

// So many thousand incidents, with the target that no step is worse than linear.
Figure PerIncident(const Series& larger, const Series& thousand, double thousands);

}  // namespace benchmarks
