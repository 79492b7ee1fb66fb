// What stands in the process's heaps. Needs the heap checking that fuzz.sh turns on for the program.
#pragma once

#include <cstddef>

namespace fuzzing {

// Whether an overrun by one byte is seen, which is tried.
bool HeapIsChecked();

// Whether no block was overrun and no freed one written to.
bool HeapIsSound();

// All blocks in use, of the library and of the platform.
size_t BlocksInUse();

}  // namespace fuzzing
