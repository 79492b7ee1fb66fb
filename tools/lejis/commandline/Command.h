// The commands of the program, one row each.
#pragma once

#include <string_view>
#include <vector>

namespace lejis_client {

enum class Action { Check, Show, Submit, Delete, Search, Doctor, Ledger };

struct Command {
    const wchar_t* name;
    Action action;
    const wchar_t* help;
    bool takesUrl = false;
    // Whether it talks to LEJIS, so that it needs an address.
    bool needsUrl = false;
    bool canValidateSchema = false;
    // Whether it works on incidents, one after the other.
    bool takesIncidents = false;
    // Whether it sends what it makes of them.
    bool submits = false;
    // Whether an incident may be named by its identifiers instead of a file.
    bool canNameIncident = false;
    bool searches = false;
    bool diagnoses = false;
    // Whether it uses all of a file, so that it warns of what is not read.
    bool tellsLosses = false;
    // How a success is called in a result line and in the summary.
    const wchar_t* success = L"";
};

// Null when there is no such command.
const Command* FindCommand(std::wstring_view name);

std::vector<std::wstring_view> CommandNames();

}  // namespace lejis_client
