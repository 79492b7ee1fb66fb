#pragma once

#include <string>

namespace lejis_client {

// The command line makes no sense; the reason is a sentence without its full stop.
struct UsageError {
    std::wstring reason;
    // The command whose help explains it, or an empty text.
    std::wstring command;
};

}  // namespace lejis_client
