// Why an element or attribute is not read, and what was probably meant.
#pragma once

#include "files/FormatTree.h"
#include "files/WrittenName.h"

#include <string>
#include <vector>

namespace lejis_client {

// How a sentence ends that begins with the name. `expected` are the elements that the library would read in its place.
std::wstring WhyUnread(const WrittenName& name, const std::vector<const FormatNode*>& expected);

}  // namespace lejis_client
