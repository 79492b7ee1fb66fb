// Counts the ticks of a timer of this thread's, as a client's own timer would tick.
#pragma once

namespace kit_tests {

class Ticks {
public:
    Ticks();
    ~Ticks();
    Ticks(const Ticks&) = delete;
    Ticks& operator=(const Ticks&) = delete;

    int Seen() const;
};

}  // namespace kit_tests
