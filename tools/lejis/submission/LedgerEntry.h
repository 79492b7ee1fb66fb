// One line of a ledger: a try to do something with an incident.
#pragma once

#include "submission/Task.h"

#include <string>
#include <string_view>

namespace lejis_client {

struct LedgerEntry {
    // The name of the command.
    std::wstring command;
    // The address of the service; empty when no service was called.
    std::wstring url;
    // The whole path, or the name on the command line for an incident without a file.
    std::wstring file;
    std::string digest;
    Identity identity;
    // The report's word for the outcome: "submitted", "not sent".
    std::wstring outcome;
    bool canTryAgain = false;
    HRESULT number = S_OK;
    std::vector<std::wstring> errors;
    std::vector<std::wstring> warnings;
    std::string start;
    double seconds = 0;
};

// A JSON object in one line of ASCII, with its line feed.
std::string LineOf(const LedgerEntry& entry);

// Nothing where the line is no entry, such as one that was cut short when its writer was killed.
std::optional<LedgerEntry> ParseLedgerLine(std::string_view line);

}  // namespace lejis_client
