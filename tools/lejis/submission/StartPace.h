// How fast incidents are begun.
#pragma once

#include <windows.h>

namespace lejis_client {

// Times are ticks in milliseconds, as GetTickCount64 gives them.
class StartPace {
public:
    // So many a second; 0 is no limit.
    explicit StartPace(long rate);

    bool MayStart(ULONGLONG now) const { return static_cast<double>(now) >= next_; }
    void Started(ULONGLONG now);
    // Undoes one Started, for a task that turned out not to call LEJIS.
    void TakeBack() { next_ -= interval_; }
    // The first tick at which the next one may start.
    ULONGLONG Next() const;

private:
    // A pace of 300 a second needs fractions of a millisecond.
    double interval_;
    double next_ = 0;
};

}  // namespace lejis_client
