// What stands in the process's heaps. Needs the heap checking that fuzz.sh turns on for the program.
#pragma once

#include <cstddef>

namespace fuzzing {

// Overruns a block by one byte on purpose, and tells whether the heap check sees that.
bool HeapIsChecked();

// Whether no block was overrun and no freed one written to.
bool HeapIsSound();

// All blocks in use, of the library and of the platform.
size_t BlocksInUse();

}  // namespace fuzzing
