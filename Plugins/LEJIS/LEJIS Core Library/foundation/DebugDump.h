// Dumps of requests and answers, for support.
#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace lejis::LejisUtils {

// Whether the user's flag "DebugLejis" is on. Each call reads the flag anew, so that it can be switched while the suite
// runs.
bool DebugFlagIsOn();

// Writes the document into the suite's diagnostics folder when the user's flag "DebugLejis" is on. Throws when the
// document cannot be written.
void SaveDebugDocument(const msxml::Document& document, const std::wstring& fileName);

}  // namespace lejis::LejisUtils
