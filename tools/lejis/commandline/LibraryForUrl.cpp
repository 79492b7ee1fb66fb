#include "commandline/LibraryForUrl.h"

#include "commandline/UsageError.h"
#include "library/Library.h"
#include "library/PlaceholderHost.h"

namespace lejis_client {

void RequireLibraryForUrl(const CommandLine& commandLine) {
    LibraryVersion();
    if (!commandLine.url || commandLine.force) return;
    const std::wstring complaint = PlaceholderComplaint(*commandLine.url);
    if (!complaint.empty()) throw UsageError{complaint, commandLine.command->name};
}

}  // namespace lejis_client
