// What the programs that speak to the registered library from outside share.
#pragma once

#include <functional>

namespace wire_client {

// Runs `body` in a single-threaded apartment. A call that fails where it must not ends the program with a message, by
// the assertions that the tests' support makes. Returns the program's exit code.
int Run(int count, char** arguments, const std::function<int()>& body);

}  // namespace wire_client
