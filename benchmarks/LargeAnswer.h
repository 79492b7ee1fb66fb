#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace benchmarks {

// An answer to a search with this many typical incidents, as a server sends it.
std::wstring LargeAnswer(int incidents);
msxml::Document LoadedAnswer(int incidents);

}  // namespace benchmarks
