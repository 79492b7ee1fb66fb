#pragma once

#include "library/Library.h"

namespace lejis_client {

// The incidents for people to read: a line each, with its persons and vehicles below.
std::wstring FoundTable(const std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>& cards);

}  // namespace lejis_client
