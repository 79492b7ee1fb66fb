// Do requests of the library pass the schemas that a service publishes?
#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace lejis_client {

// Requests as the library sends them, with little in them. Raise a LibraryError.
msxml::Document SampleSubmission();
msxml::Document SampleSearch();

// What is wrong; empty when nothing is.
std::wstring SchemaFault(const msxml::Document& request, const std::wstring& wsdlUrl);

}  // namespace lejis_client
