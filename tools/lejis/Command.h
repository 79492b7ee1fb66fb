// The commands of the program, one row each.
#pragma once

#include "CommandLine.h"
#include "Library.h"
#include "Outcome.h"

#include <string>
#include <string_view>

namespace lejis_client {

struct Command {
    const wchar_t* name;
    const wchar_t* help;
    // Whether it talks to LEJIS, so that it needs an address.
    bool needsUrl;
    bool canValidateSchema;
    // Whether an incident may be named by its identifiers instead of a file.
    bool canNameIncident;
    // Whether it asks for incidents; it has no success and is not run on an incident then.
    bool searches;
    // How a success is called in a result line and in the summary.
    const wchar_t* success;
    Outcome (*run)(const CommandLine& commandLine, ILejisIncidentIndexCard* incident);
};

// Null when there is no such command.
const Command* FindCommand(std::wstring_view name);

}  // namespace lejis_client
