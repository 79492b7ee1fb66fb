#pragma once

#include "library/Library.h"
#include "platform/msxml/MsXml.h"

namespace lejis_client {

// The request that the library sends for an incident, as it is: a SOAP envelope around the submission document that the
// registered library makes. Raises a LibraryError.
msxml::Document SubmissionRequest(ILejisIncidentIndexCard* incident);

}  // namespace lejis_client
