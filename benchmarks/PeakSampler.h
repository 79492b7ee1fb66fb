#pragma once

#include <atomic>
#include <thread>

namespace benchmarks {

// Looks at the memory of this process all the time, because the system's own peak includes what was freed before.
class PeakSampler {
public:
    PeakSampler();
    ~PeakSampler();
    PeakSampler(const PeakSampler&) = delete;
    PeakSampler& operator=(const PeakSampler&) = delete;

    // Stops sampling. Returns the most bytes that the process held above those at the beginning.
    double BytesAbove();

private:
    void Look();

    const double before_;
    double peak_;
    std::atomic<bool> isLooking_{true};
    std::thread thread_;
};

}  // namespace benchmarks
