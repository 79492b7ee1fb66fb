// Incident cards that are kept as files: XML documents whose root is lejis:RMSIncidentIndexCard.
#pragma once

#include "library/Library.h"

#include <string>
#include <vector>

namespace lejis_client {

struct IncidentFile {
    Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> card;
    // What stands in the file and does not get into the card: sentences, in the order of the file.
    std::vector<std::wstring> losses;
};

// The incident in the bytes of a file. Raises a FileError with the reason when there is none.
IncidentFile ReadIncident(const std::string& content);

// The same with nothing but what a withdrawal sends, and wants of it: the rest of the file may be as it likes.
IncidentFile ReadIdentifiers(const std::string& content);

}  // namespace lejis_client
