#pragma once

#include "unit_support/ScriptedRequest.h"

#include <string>
#include <vector>

namespace support {

// What a client learns of a search.
struct SearchSeen {
    std::vector<std::wstring> events;
    // The results of the service afterwards, described.
    std::wstring results;
    // MSXML's document was not asked for.
    bool isReadPlainly = false;

    bool SameAs(const SearchSeen& other) const { return events == other.events && results == other.results; }
};

// For the client of a search with this answer, read from its bytes where that is possible, or from MSXML's document.
SearchSeen SearchSeenWith(const Script& script, bool isPlainReadingOn);
}  // namespace support
