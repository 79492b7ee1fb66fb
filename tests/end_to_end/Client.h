// A client of the registered library, as the suite is one: it knows the type library and nothing else.
#pragma once

#include <TVLejisCore.h>
#include <wrl/client.h>

#include <string>
#include <vector>

namespace end_to_end {

Microsoft::WRL::ComPtr<ILejisSubmissionWebService> NewService(const std::wstring& url);

// An incident that LEJIS takes as it is, with this number.
Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> NewIncident(const std::wstring& id = L"2007-000123");

// Adds two persons, a vehicle and an item of property, a charge and a location.
void Fill(ILejisIncidentIndexCard* incident);

std::vector<std::wstring> Texts(ICollection* collection);

}  // namespace end_to_end
