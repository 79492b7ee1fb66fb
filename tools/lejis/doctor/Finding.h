// What the doctor found out about one subject.
#pragma once

#include <string>

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

inline Finding Unseen(const wchar_t* subject) {
    return {subject, Health::kSkipped, L"not looked at, because of what is said above", {}};
}

// What has not been found out in time; the text is written where the time is known.
inline Finding Late(const wchar_t* subject) {
    return {subject, Health::kFailed, {}, L"Look again with a longer --timeout.", true};
}

}  // namespace lejis_client
