#pragma once

#include "text/Json.h"

namespace lejis_client {

// Both print plain ASCII, whatever is in it, so that no code page can spoil it: a document of many lines, or one line.
void Print(const Json& document);
void PrintLine(const Json& object);

}  // namespace lejis_client
