#pragma once

#include <string>

namespace lejis_client {

// Raises a FileError when the XML in these bytes has a DOCTYPE. It has to be seen before the text is loaded: not
// every MSXML refuses the entities that it can declare, which may be huge.
void RefuseDoctype(const std::string& content);

}  // namespace lejis_client
