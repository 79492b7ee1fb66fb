// What a careful client of LEJIS believes of the index, incident by incident.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace endurance {

// The version of an incident that is held; none: the incident is not held.
using Version = std::optional<int>;

// What the client was told last, and what it cannot rule out: an exchange whose end told nothing about the index.
struct Entry {
    Version told = {};
    bool isInDoubt = false;
    Version intended = {};
};

using Ledger = std::map<std::wstring, Entry>;

}  // namespace endurance
