#pragma once

#include <string>

namespace benchmarks {

// The exit code of another process of this program. A figure as exit code needs no pipe.
int ExitCodeOfSelf(const std::wstring& arguments);

}  // namespace benchmarks
