#include "commandline/LibraryForUrl.h"

#include "commandline/UsageError.h"
#include "library/Library.h"
#include "library/PlaceholderHost.h"

namespace lejis_client {
namespace {

// Null where nothing is sent.
const std::wstring* AddressToSendTo(const CommandLine& commandLine) {
    const Command& command = *commandLine.command;
    if (command.action == kSearchIndex) return &commandLine.search.url;
    return command.operation && command.operation->sends ? &commandLine.incidents.job.service.url : nullptr;
}

}  // namespace

void RequireLibraryForUrl(const CommandLine& commandLine) {
    LibraryVersion();
    const std::wstring* const url = AddressToSendTo(commandLine);
    if (!url || commandLine.force) return;
    const std::wstring complaint = PlaceholderComplaint(*url);
    if (!complaint.empty()) throw UsageError{complaint, commandLine.command->name};
}

}  // namespace lejis_client
