// The two services of LEJIS, and what tells one from the other.
#pragma once

#include "platform/msxml/MsXml.h"

namespace lejis_client {

enum class ServiceKind { kSubmission, kSearch };

struct Service {
    // "submission service".
    const wchar_t* name;
    // The option that gives its address.
    const wchar_t* option;
    // The name of the operation in the service's WSDL.
    const wchar_t* operation;
    // The path of the SOAP action, on the LEJIS host.
    const wchar_t* actionPath;
    // A request with little in it. Raises a LibraryError.
    msxml::Document (*sample)();
    // The subjects of the findings.
    const wchar_t* server;
    const wchar_t* description;
    const wchar_t* host;
    const wchar_t* schemas;
};

const Service& ServiceOf(ServiceKind kind);
const Service& OtherService(ServiceKind kind);

}  // namespace lejis_client
