// Checks a request against the schemas that its service publishes.
#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace lejis::SchemaUtils {

// Returns when the document is valid by the schemas of the WSDL at this address, and throws otherwise. Waits for the
// WSDL without a time limit, and lets the host work meanwhile.
void ValidateSchemaFromWSDL(const msxml::Document& document, const std::wstring& wsdlUrl);

}  // namespace lejis::SchemaUtils
