#include "doctor/SchemaCheck.h"

#include "doctor/RegistrationCheck.h"
#include "foundation/QueryPrefixes.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "services/SchemaUtils.h"

namespace lejis_client {
namespace {

// The request with an element in it that no request has.
msxml::Document Spoilt(const msxml::Document& request) {
    lejis::LejisUtils::SetSelectionNamespaces(request);
    const msxml::Node payload = msxml::SelectNode(msxml::Root(request), L"soap:Body/*");
    const platform::OutText space = msxml::NamespaceUri(payload);
    msxml::Append(payload, msxml::CreateElement(request, L"doctor:NotOfAnyRequest", space.View()));
    return request;
}

// What is wrong; empty when nothing is.
std::wstring FaultOf(const msxml::Document& request, const std::wstring& wsdlUrl) {
    try {
        lejis::SchemaUtils::ValidateSchemaFromWSDL(request, wsdlUrl);
        return {};
    } catch (const platform::ComError& error) {
        return error.Description().empty() ? L"no reason was given" : error.Description();
    }
}

}  // namespace

Finding CheckSchemas(const Service& service, const std::wstring& wsdlUrl) {
    try {
        const std::wstring fault = FaultOf(service.sample(), wsdlUrl);
        if (!fault.empty()) {
            return {service.schemas, Health::kWarning, fault,
                    L"Leave ValidateSchema off, and see that the LEJIS Interface publishes all its schemas."};
        }
        if (FaultOf(Spoilt(service.sample()), wsdlUrl).empty()) {
            return {service.schemas, Health::kWarning,
                    L"a spoilt request passes them too: they do not describe requests",
                    L"Do not rely on ValidateSchema, and see that the LEJIS Interface publishes all its schemas."};
        }
        return {
            service.schemas, Health::kOk, L"a sample request passes them, a spoilt one does not; nothing was sent", {}};
    } catch (const NotRegistered&) {
        return Unseen(service.schemas);
    } catch (const LibraryError& error) {
        return {service.schemas, Health::kFailed, error.description, InstallAgain(kOwnBitness)};
    }
}

Finding LateSchemas(const Service& service) {
    return {service.schemas,
            Health::kWarning,
            {},
            L"Leave ValidateSchema off: a request would wait for the schemas without an end."};
}

}  // namespace lejis_client
