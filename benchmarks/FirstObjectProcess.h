// A first object is first only once a process; so each measurement has a process of its own.
#pragma once

#include <optional>
#include <string>

namespace benchmarks {

// What this program, started as the process of one measurement, ends with; none when it was not.
std::optional<int> FirstObjectCode(int count, char** texts);

// Microseconds to create the object of this ProgID as the first in a new process.
double FirstObjectMicroseconds(const std::wstring& progId);

}  // namespace benchmarks
