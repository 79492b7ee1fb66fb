// The type library as C#: interfaces in the order of their function tables, classes, enumerations. A C# program that
// compiles this file needs no tool that imports type libraries.
#pragma once

#include "Library.h"

namespace reference {

std::wstring WriteCSharp(const Library& library);

}  // namespace reference
