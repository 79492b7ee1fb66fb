// XML that a server or a client might send by mistake or in malice.
#pragma once

#include "engine/Case.h"

#include <string>

namespace fuzzing {

// One of the documents that were loaded, changed in its structure, then perhaps in its characters.
std::wstring AnyXml(Case& input);
// The same of an answer to a search.
std::wstring AnyAnswer(Case& input);

}  // namespace fuzzing
