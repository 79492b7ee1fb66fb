#pragma once

#include "platform/msxml/MsXml.h"

namespace lejis {

// A new SOAP request document with the submission, which is moved out of its own, in its body.
msxml::Document WrapInEnvelope(const msxml::Element& submission);

}  // namespace lejis
