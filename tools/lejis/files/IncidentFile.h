// Incident cards that are kept as files: XML documents whose root is lejis:RMSIncidentIndexCard.
#pragma once

#include "library/Library.h"

#include <string>

namespace lejis_client {

// Raises a FileError with the reason when the file is no incident card.
Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> ReadIncidentFile(const std::wstring& path);

}  // namespace lejis_client
