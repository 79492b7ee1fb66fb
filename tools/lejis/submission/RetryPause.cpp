#include "submission/RetryPause.h"

#include <algorithm>
#include <random>

namespace lejis_client {
namespace {

constexpr double kFirst = 1000;
// The longest jitter turns this into a minute.
constexpr double kLongest = 40000;
constexpr long kMostDoublings = 10;

}  // namespace

ULONGLONG RetryPause(long attempts) {
    static std::minstd_rand random(GetTickCount());
    std::uniform_real_distribution<double> jitter(0.5, 1.5);
    const double doubled = kFirst * static_cast<double>(1L << std::min(attempts - 1, kMostDoublings));
    return static_cast<ULONGLONG>(std::min(doubled, kLongest) * jitter(random));
}

}  // namespace lejis_client
