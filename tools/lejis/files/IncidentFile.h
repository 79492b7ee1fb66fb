// Incident cards that are kept as files: XML documents whose root is lejis:RMSIncidentIndexCard.
#pragma once

#include "library/Library.h"

#include <string>

namespace lejis_client {

// The card in the bytes of a file. Raises a FileError with the reason when there is none.
Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> ReadIncident(const std::string& content);

}  // namespace lejis_client
