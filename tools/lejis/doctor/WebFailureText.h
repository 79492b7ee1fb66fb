#pragma once

#include "doctor/WebPage.h"

namespace lejis_client {

struct FailureWords {
    std::wstring reason;
    std::wstring cure;
};

FailureWords WordsFor(const WebFailure& failure);

}  // namespace lejis_client
