#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace lejis {

// A new SOAP request document with the payload in its body. The payload is moved out of its own document.
msxml::Document WrapInEnvelope(const msxml::Element& payload);

// The same with the user in the security header. The user name is taken as it stands; throws the object error when it
// breaks the markup.
msxml::Document WrapInEnvelope(const msxml::Element& payload, const std::wstring& username);

}  // namespace lejis
