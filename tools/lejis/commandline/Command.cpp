#include "commandline/Command.h"

#include "commandline/Help.h"

namespace lejis_client {
namespace {

constexpr Command kCommands[] = {
    {.name = L"check",
     .action = Action::Check,
     .help = kCheckHelp,
     .takesIncidents = true,
     .tellsLosses = true,
     .success = L"fit for submission"},
    {.name = L"show", .action = Action::Show, .help = kShowHelp},
    {.name = L"submit",
     .action = Action::Submit,
     .help = kSubmitHelp,
     .takesUrl = true,
     .needsUrl = true,
     .canValidateSchema = true,
     .takesIncidents = true,
     .submits = true,
     .tellsLosses = true,
     .success = L"submitted"},
    {.name = L"delete",
     .action = Action::Delete,
     .help = kDeleteHelp,
     .takesUrl = true,
     .needsUrl = true,
     .takesIncidents = true,
     .submits = true,
     .canNameIncident = true,
     .success = L"withdrawn"},
    {.name = L"ledger", .action = Action::Ledger, .help = kLedgerHelp},
    {.name = L"search",
     .action = Action::Search,
     .help = kSearchHelp,
     .takesUrl = true,
     .needsUrl = true,
     .canValidateSchema = true,
     .searches = true},
    {.name = L"doctor", .action = Action::Doctor, .help = kDoctorHelp, .takesUrl = true, .diagnoses = true},
};

}  // namespace

const Command* FindCommand(std::wstring_view name) {
    for (const Command& command : kCommands) {
        if (command.name == name) return &command;
    }
    return nullptr;
}

std::vector<std::wstring_view> CommandNames() {
    std::vector<std::wstring_view> names;
    for (const Command& command : kCommands) names.push_back(command.name);
    return names;
}

}  // namespace lejis_client
