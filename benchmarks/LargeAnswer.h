#pragma once

#include <string>

namespace benchmarks {

// An answer to a search with this many typical incidents, as a server sends it.
std::wstring LargeAnswer(int incidents);

}  // namespace benchmarks
