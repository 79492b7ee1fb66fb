// What the registry says of COM classes, interfaces and type libraries, in both of its views.
#pragma once

#include <set>
#include <string>

namespace kit {

// One text for each key and value: everything in CLSID, Interface and TypeLib; of the other keys only the names,
// and everything below those that belong to this library.
using RegistryPicture = std::set<std::wstring>;

RegistryPicture TakePicture();

// What came ("+") and went ("-"), a line each; empty for two that are equal.
std::string Differences(const RegistryPicture& before, const RegistryPicture& after);

}  // namespace kit
