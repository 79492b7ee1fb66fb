#pragma once

#include "services/PlainReading.h"

namespace support {

// While it lives, answers to searches are read from MSXML's documents, or from their bytes where that is possible.
class PlainReadingSwitch {
public:
    explicit PlainReadingSwitch(bool on) { lejis::SwitchPlainReading(on); }
    ~PlainReadingSwitch() { lejis::SwitchPlainReading(before_); }
    PlainReadingSwitch(const PlainReadingSwitch&) = delete;
    PlainReadingSwitch& operator=(const PlainReadingSwitch&) = delete;

private:
    const bool before_ = lejis::PlainReadingIsOn();
};

}  // namespace support
