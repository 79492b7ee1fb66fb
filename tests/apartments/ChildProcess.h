#pragma once

#include <functional>

namespace apartments {

// Runs the work, which says whether all is well, in a process of its own: a crash, a hang of two minutes, a broken heap
// or the result false fails the test. Nothing that the work leaves reaches another test.
void InChildProcess(const std::function<bool()>& work);

}  // namespace apartments
