// The LEJIS Interface simulator beside the tests, by its control calls. LEJIS_SIMULATOR_URL says where it is.
#pragma once

#include <string>

namespace end_to_end {

std::wstring SubmissionUrl();
std::wstring SearchUrl();

// Forgets faults, incidents and exchanges.
void Reset();

// Orders a fault: its kind and parameters as JSON, for the next submission unless they say otherwise.
void Play(const std::string& fault);
void StopFaults();

// What the simulator answers to GET, as text: "/control/index", "/control/exchanges", ...
std::string Get(const std::string& path);

// How often a text stands in another.
size_t Occurrences(const std::string& text, const std::string& part);

// How many requests of this kind it has answered since the reset.
size_t Posts();
size_t WsdlRequests();

// How many incidents it holds.
size_t IncidentsHeld();

// The card of an incident as it was stored.
std::string CardHeld(const std::string& ori, const std::string& id);

}  // namespace end_to_end
