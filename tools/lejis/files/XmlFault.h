// Finds out what is wrong with an XML text, and in which line.
#pragma once

#include <string>

namespace lejis_client {

// A sentence about the first fault in bytes that MSXML could not load as a document. Under Wine the document itself
// knows neither line nor reason; a SAX reader does.
std::wstring DescribeXmlFault(const std::string& content);

}  // namespace lejis_client
