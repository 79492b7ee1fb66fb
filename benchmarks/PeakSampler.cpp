#include "PeakSampler.h"

#include <psapi.h>
#include <windows.h>

#include <algorithm>
#include <stdexcept>

namespace benchmarks {
namespace {

double BytesHeld() {
    PROCESS_MEMORY_COUNTERS counters{};
    if (!K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters)) {
        throw std::runtime_error("cannot tell the memory of the process");
    }
    return static_cast<double>(counters.WorkingSetSize);
}

}  // namespace

PeakSampler::PeakSampler() : before_(BytesHeld()), peak_(before_), thread_([this] { Look(); }) {}

PeakSampler::~PeakSampler() {
    if (thread_.joinable()) BytesAbove();
}

double PeakSampler::BytesAbove() {
    isLooking_ = false;
    thread_.join();
    return std::max(peak_, BytesHeld()) - before_;
}

void PeakSampler::Look() {
    for (; isLooking_; Sleep(1)) peak_ = std::max(peak_, BytesHeld());
}

}  // namespace benchmarks
