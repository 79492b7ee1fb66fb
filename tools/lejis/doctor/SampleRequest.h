#pragma once

#include "platform/msxml/MsXml.h"

namespace lejis_client {

// Requests as the library sends them, with little in them. Raise a LibraryError.
msxml::Document SampleSubmission();
msxml::Document SampleSearch();

}  // namespace lejis_client
