#pragma once

#include <functional>

namespace apartments {

// Runs the work, which says whether all is well, in a process of its own: a crash, a hang of two minutes, a broken heap
// or an answer of no fails the test. What the work leaves behind troubles no other test.
void InChildProcess(const std::function<bool()>& work);

}  // namespace apartments
