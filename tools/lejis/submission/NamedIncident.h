// An incident of which only the identifiers are known, as the command line gives them.
#pragma once

#include "commandline/CommandLine.h"
#include "library/Library.h"

namespace lejis_client {

Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> NamedIncident(const CommandLine& commandLine);

}  // namespace lejis_client
