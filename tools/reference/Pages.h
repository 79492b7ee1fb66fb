// The reference as Markdown: an index, a page for each class, each interface that clients implement, each enumeration.
#pragma once

#include "Library.h"

namespace reference {

// The pages' texts by their file names.
std::map<std::wstring, std::wstring> WritePages(const Library& library);

}  // namespace reference
