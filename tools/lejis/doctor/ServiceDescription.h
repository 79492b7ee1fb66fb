// What the WSDL of a service tells of it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lejis_client {

struct ServiceDescription {
    std::vector<std::wstring> operations;
    std::vector<std::wstring> soapActions;
    // Target namespaces, of the description itself and of its schemas.
    std::vector<std::wstring> namespaces;
};

// Nothing when the content is no WSDL.
std::optional<ServiceDescription> ReadDescription(const std::string& content);

}  // namespace lejis_client
