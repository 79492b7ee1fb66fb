// What the registry says of COM classes, to be compared before and after.
#pragma once

#include <map>
#include <string>

namespace client {

// Maps key paths (with the view they were read in) and value names to the values as text. It holds everything that this
// library registers, and only the names of the keys of other classes, interfaces and type libraries.
using RegistrySnapshot = std::map<std::wstring, std::wstring>;

RegistrySnapshot TakeSnapshot();

// What is in one of them only or differs, a line each; empty for two that are equal.
std::string Differences(const RegistrySnapshot& before, const RegistrySnapshot& after);

// The entries that name this library's classes, interfaces or type library, in the view of this program's bitness, of
// the other, or in both.
enum class View { kOwn, kOther };
RegistrySnapshot EntriesOfLibrary(const RegistrySnapshot& snapshot, View view);

}  // namespace client
