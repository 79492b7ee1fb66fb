// A type library as text, a line for each thing that clients depend on.
#pragma once

#include <oaidl.h>

#include <string>

namespace client {

// Kinds, names, identifiers, members with their numbers, parameters and types, values of enumerations, interfaces of
// classes; "[no help]" where a help string is missing. The same for both bitnesses.
std::wstring List(ITypeLib* library);

}  // namespace client
