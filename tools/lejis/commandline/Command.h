// The commands of the program, one row each.
#pragma once

#include "commandline/CommandLine.h"
#include "library/Library.h"
#include "submission/Outcome.h"

#include <string>
#include <string_view>

namespace lejis_client {

struct Command {
    const wchar_t* name;
    const wchar_t* help;
    bool takesUrl = false;
    // Whether it talks to LEJIS, so that it needs an address.
    bool needsUrl = false;
    bool canValidateSchema = false;
    // Whether an incident may be named by its identifiers instead of a file.
    bool canNameIncident = false;
    // Whether it asks for incidents; it has no success and is not run on an incident then.
    bool searches = false;
    // Whether it looks after the road to LEJIS; it is not run on an incident either.
    bool diagnoses = false;
    // How a success is called in a result line and in the summary.
    const wchar_t* success = L"";
    Outcome (*run)(const CommandLine& commandLine, ILejisIncidentIndexCard* incident) = nullptr;
};

// Null when there is no such command.
const Command* FindCommand(std::wstring_view name);

}  // namespace lejis_client
