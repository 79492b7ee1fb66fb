#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace benchmarks {

// An answer to a search with this many typical incidents, as a server sends it, and the same as text.
// In each incident this many texts end with a blank.
std::string LargeAnswer(int incidents, int textsWithBlank = 0);
std::wstring LargeAnswerText(int incidents);
msxml::Document LoadedAnswer(int incidents);

}  // namespace benchmarks
