#pragma once

namespace benchmarks {

// The bytes that the process's heaps have given out, the heaps' own overhead included.
double BytesOnHeaps();

}  // namespace benchmarks
