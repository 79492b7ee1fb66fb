#include "services/SchemaUtils.h"

#include "foundation/NetworkErrors.h"
#include "platform/ComError.h"
#include "platform/http/Exchange.h"
#include "platform/http/HttpRequest.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/msxml/SchemaCache.h"
#include "platform/Text.h"

namespace lejis::SchemaUtils {
namespace {

constexpr HRESULT kSchemaError = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_ITF, 0x0301);

[[noreturn]] void Raise(std::wstring description) { throw platform::ComError(kSchemaError, std::move(description)); }

void Await(platform::HttpRequest& request) {
    try {
        platform::WaitUntilComplete(request);
    } catch (...) {
        request.Abandon();
        throw;
    }
}

platform::HttpRequest Fetch(const std::wstring& url) {
    platform::HttpRequest request = platform::HttpRequest::Create();
    request.Open(L"GET", url);
    request.Send();
    Await(request);
    const platform::Exchange exchange(request);
    if (LejisUtils::IsTransientStatus(exchange.Status())) Raise(LejisUtils::GetNetworkErrorMessage(exchange));
    if (exchange.Status() != kHttpOk) Raise(exchange.ResponseText());
    return request;
}

msxml::Document LoadWsdl(const platform::HttpRequest& request) {
    msxml::Document wsdl = msxml::CreateDocument();
    msxml::SetProperty(wsdl, L"SelectionLanguage", L"XPath");
    msxml::SetProperty(wsdl, L"SelectionNamespaces",
                       L"xmlns:wsdl='http://schemas.xmlsoap.org/wsdl/' xmlns:xsd='http://www.w3.org/2001/XMLSchema'");
    if (!msxml::LoadCopy(wsdl, request.ResponseXml())) {
        const msxml::ParseError error = msxml::LastParseError(wsdl);
        Raise(L"The WSDL could not be read: error " + std::to_wstring(error.code) + L" " + error.reason);
    }
    return wsdl;
}

// Schemas are always fetched over plain HTTP, whatever scheme the WSDL states; this is deliberate.
std::wstring OverPlainHttp(std::wstring location) {
    static constexpr std::wstring_view kSecure = L"https://";
    static constexpr std::wstring_view kPlain = L"http://";
    for (size_t at = 0; at + kSecure.size() <= location.size(); ++at) {
        if (!platform::EqualIgnoringCase(std::wstring_view(location).substr(at, kSecure.size()), kSecure)) continue;
        location.replace(at, kSecure.size(), kPlain);
        at += kPlain.size() - 1;
    }
    return location;
}

std::wstring TargetNamespace(const msxml::Element& schema) {
    const auto target = msxml::Attribute(schema, L"targetNamespace");
    if (!target) Raise(L"A schema of the WSDL has no targetNamespace.");
    return *target;
}

// Adds the first include of each schema, and not what stands in the WSDL itself.
msxml::SchemaCache SchemasOf(const msxml::Document& wsdl) {
    msxml::SchemaCache schemas;
    const msxml::Element root = msxml::Root(wsdl);
    if (!root) return schemas;
    for (const msxml::Node& node : msxml::SelectNodes(root, L"wsdl:types/xsd:schema")) {
        msxml::Element schema;
        platform::Check(node.As(&schema));
        const std::wstring target = TargetNamespace(schema);
        const msxml::Node location = msxml::SelectNode(schema, L"xsd:include/@schemaLocation");
        if (!location) Raise(L"A schema of the WSDL includes no schema document.");
        schemas.Add(target, OverPlainHttp(std::wstring(msxml::Text(location))));
    }
    return schemas;
}

}  // namespace

void ValidateSchemaFromWSDL(const msxml::Document& document, const std::wstring& wsdlUrl) {
    if (!document) Raise(L"ValidateSchemaFromWSDL error: doc parameter was Nothing");
    const msxml::SchemaCache schemas = SchemasOf(LoadWsdl(Fetch(wsdlUrl)));
    if (const auto reason = schemas.FindFault(msxml::Xml(document))) Raise(L"Schema validation error: " + *reason);
}

}  // namespace lejis::SchemaUtils
