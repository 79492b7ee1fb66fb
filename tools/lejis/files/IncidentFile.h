// Incident cards that are kept as files: XML documents whose root is lejis:RMSIncidentIndexCard.
#pragma once

#include "library/Library.h"

#include <string>
#include <vector>

namespace lejis_client {

struct IncidentFile {
    Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> card;
    // What the file holds and the card does not take: sentences, in the order of the file.
    std::vector<std::wstring> losses;
};

// Reads the incident in the bytes of a file. Throws FileError with the reason when they hold no incident.
IncidentFile ReadIncident(const std::string& content);

// Reads only the elements that a withdrawal sends, and checks nothing else in the file.
IncidentFile ReadIdentifiers(const std::string& content);

}  // namespace lejis_client
