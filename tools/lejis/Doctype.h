#pragma once

#include <comutil.h>

namespace lejis_client {

// Raises a FileError when the XML in an array of bytes has a DOCTYPE. It has to be seen before the text is loaded: not
// every MSXML refuses the entities that it can declare, which may be huge.
void RefuseDoctype(const _variant_t& content);

}  // namespace lejis_client
