#pragma once

#include <optional>

namespace benchmarks {

// What this program does when it is started to measure one answer: its exit code. None when it was started otherwise.
std::optional<int> PeakMemoryCode(int count, char** texts);

// The kilobytes that a process of its own takes at its peak, from the completed request to the event, above the
// answer's bytes, their copy for the library, and the cards.
double PeakKilobytes(int incidents, bool byDocument);

}  // namespace benchmarks
