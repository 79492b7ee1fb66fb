#pragma once

#include "submission/BacklogSettings.h"
#include "submission/JobSettings.h"

namespace lejis_client {

// What is to be done with which incidents, and how.
struct IncidentSettings {
    JobSettings job;
    BacklogSettings backlog;
    // Names, patterns, folders and lists; empty where the job names the incident.
    std::vector<std::wstring> files;
    bool recurse = false;
    std::optional<std::wstring> ledger;
    bool quiet = false;
    bool verbose = false;
};

}  // namespace lejis_client
