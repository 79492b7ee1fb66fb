#pragma once

#include "unit_support/ScriptedRequest.h"

#include <string>
#include <vector>

namespace support {

// What a client learns of a search.
struct ObservedSearch {
    std::vector<std::wstring> events;
    // The results of the service afterwards, described.
    std::wstring results;
    // MSXML's document was not asked for.
    bool isReadPlainly = false;

    bool SameAs(const ObservedSearch& other) const { return events == other.events && results == other.results; }
};

// Runs a search whose answer is read from its bytes where that is possible, or from MSXML's document.
ObservedSearch ObserveSearchWith(const Script& script, bool isPlainReadingOn);

}  // namespace support
