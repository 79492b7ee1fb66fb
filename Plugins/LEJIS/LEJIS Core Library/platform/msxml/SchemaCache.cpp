#include "platform/msxml/SchemaCache.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"
#include "platform/Wine.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace platform::msxml {
namespace {

// Validation reports this for an element without a known schema.
constexpr long kNoSchema = static_cast<long>(0xC00CE224);

}  // namespace

SchemaCache::SchemaCache() {
    Check(CoCreateInstance(__uuidof(XMLSchemaCache60), nullptr, CLSCTX_INPROC_SERVER,
                           IID_PPV_ARGS(schemas_.GetAddressOf())));
}

void SchemaCache::Add(const std::wstring& namespaceUri, const std::wstring& location) {
    const HRESULT result = schemas_->add(ToBstr(namespaceUri), _variant_t(ToBstr(location)));
    if (FAILED(result)) {
        const platform::ComError error = platform::LastError(result);
        throw platform::ComError(result, L"Cannot load the schema '" + location + L"': " + error.Description());
    }
}

std::optional<std::wstring> SchemaCache::FindFault(const std::wstring& xml) const {
    const Document document = CreateDocument();
    Check(document->put_validateOnParse(VARIANT_TRUE));
    Check(document->putref_schemas(_variant_t(static_cast<IDispatch*>(schemas_.Get()))));
    if (!LoadXml(document, xml)) return LastParseError(document).reason;
    return platform::wine::ParsesWithoutValidating() ? FindFaultInBody(document) : std::nullopt;
}

std::optional<std::wstring> SchemaCache::FindFaultInBody(const Document& document) const {
    ComPtr<IXMLDOMDocument3> validator;
    Check(document.As(&validator));
    for (const Element& part : ChildElements(Root(document))) {
        for (const Element& payload : ChildElements(part)) {
            if (!Contains(std::wstring(NamespaceUri(payload)))) continue;
            ComPtr<IXMLDOMParseError> error;
            if (validator->validateNode(payload.Get(), error.GetAddressOf()) != S_FALSE || !error) continue;
            const ParseError fault = Read(error.Get());
            if (fault.code != 0 && fault.code != kNoSchema) return fault.reason;
        }
    }
    return std::nullopt;
}

bool SchemaCache::Contains(const std::wstring& namespaceUri) const {
    long count = 0;
    Check(schemas_->get_length(&count));
    for (long index = 0; index < count; ++index) {
        BSTR known = nullptr;
        Check(schemas_->get_namespaceURI(index, &known));
        if (platform::TakeText(known) == namespaceUri) return true;
    }
    return false;
}

}  // namespace platform::msxml
