#pragma once

#include <comutil.h>

#include <string>

namespace lejis_client {

// A stream of these bytes, which MSXML loads and a SAX reader parses, once. Wine 10 takes an array of bytes for UTF-8,
// whatever the bytes say; every MSXML reads a stream in the encoding that it names.
_variant_t XmlSource(const std::string& content);

}  // namespace lejis_client
