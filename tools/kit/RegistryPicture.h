// What the registry says of COM classes, interfaces and type libraries, in both of its views.
#pragma once

#include <set>
#include <string>

namespace kit {

// Each key and each value as one text: all of CLSID, Interface and TypeLib, and of the keys beside them the names, and
// what is below this library's.
using RegistryPicture = std::set<std::wstring>;

RegistryPicture TakePicture();

// What came ("+") and went ("-"), a line each; empty for two that are equal.
std::string Differences(const RegistryPicture& before, const RegistryPicture& after);

}  // namespace kit
