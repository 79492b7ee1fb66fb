#pragma once

namespace lejis {

// Thrown where markup is not plain. It is deliberately no ComError: readers that forgive errors must not forgive it.
struct NotPlain {};

[[noreturn]] inline void GiveUp() { throw NotPlain(); }

}  // namespace lejis
