// One incident to be worked on, and what has become of it.
#pragma once

#include "submission/Outcome.h"

#include <optional>

namespace lejis_client {

struct Task {
    // What the user is told it is.
    std::wstring name;
    // The file, whole; empty where the command line itself names the incident.
    std::wstring path;
    // How often it has been tried.
    long attempts = 0;
};

// Agency and number: LEJIS knows an incident by both.
struct Identity {
    std::wstring ori;
    std::wstring number;

    auto operator<=>(const Identity&) const = default;
};

struct Attempt {
    Outcome outcome;
    // Nothing where it could not be read.
    std::optional<Identity> identity;
    // The digest of the file's bytes; empty without a file.
    std::string digest;
    // When it began, in UTC, and how long it took.
    std::string start;
    ULONGLONG milliseconds = 0;
};

}  // namespace lejis_client
