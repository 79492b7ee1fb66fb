// What the doctor found out about one subject.
#pragma once

#include <string>
#include <vector>

namespace lejis_client {

// Skipped: it could not be looked at because of something that has failed before.
enum class Health { kOk, kWarning, kFailed, kSkipped };

struct Finding {
    const wchar_t* subject;
    Health health;
    std::wstring text;
    // What to do about it, in a sentence; empty where nothing has to be done.
    std::wstring cure;
    // Whether a failure may be over by itself later.
    bool mayPass = false;
};

using Findings = std::vector<Finding>;

}  // namespace lejis_client
