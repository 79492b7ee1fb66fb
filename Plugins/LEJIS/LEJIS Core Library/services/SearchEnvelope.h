#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace lejis {

// A new SOAP request document with the user in its security header and the inquiry, which is moved out of its own
// document, in its body. The user name is taken as it stands; raises the object error when it breaks the markup.
msxml::Document WrapInSearchEnvelope(const msxml::Element& inquiry, const std::wstring& username);

}  // namespace lejis
