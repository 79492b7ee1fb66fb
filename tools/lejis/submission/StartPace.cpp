#include "submission/StartPace.h"

#include "text/Duration.h"

#include <algorithm>
#include <cmath>

namespace lejis_client {
namespace {

// The clock is coarse. Starts that a late look has missed are made up for, up to this many milliseconds.
constexpr double kCatchUp = 20;

}  // namespace

StartPace::StartPace(long rate) : interval_(rate > 0 ? static_cast<double>(kSecond) / static_cast<double>(rate) : 0) {}

void StartPace::Started(ULONGLONG now) { next_ = std::max(next_, static_cast<double>(now) - kCatchUp) + interval_; }

ULONGLONG StartPace::Next() const { return static_cast<ULONGLONG>(std::max(0.0, std::ceil(next_))); }

}  // namespace lejis_client
