#pragma once

#include "library/Library.h"

namespace lejis_client {

// The cards as one XML document, each as the library writes it.
std::wstring FoundXml(const std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>& cards);

}  // namespace lejis_client
