// What is searched for, where, and how it is shown.
#pragma once

#include "search/SearchCriterion.h"

#include <string>
#include <vector>

namespace lejis_client {

struct SearchSettings {
    std::wstring url;
    std::wstring user;
    bool validateSchema = false;
    std::vector<SearchCriterion> criteria;
    // No more incidents than this; nothing leaves it to LEJIS.
    std::optional<long> most;
    std::vector<std::wstring> excludedOris;
    // How long to wait for the answer.
    long seconds = 120;
    bool xml = false;
    bool csv = false;
};

}  // namespace lejis_client
