#include "files/XmlFault.h"

#include "files/XmlFaultHandler.h"
#include "files/XmlSource.h"

#include <wrl/client.h>

namespace lejis_client {

std::wstring DescribeXmlFault(const std::string& content) {
    Microsoft::WRL::ComPtr<ISAXXMLReader> reader;
    XmlFaultHandler handler;
    HRESULT result = CoCreateInstance(__uuidof(SAXXMLReader60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&reader));
    if (SUCCEEDED(result)) result = reader->putErrorHandler(&handler);
    if (SUCCEEDED(result)) result = reader->putContentHandler(&handler);
    if (SUCCEEDED(result)) {
        const _variant_t lexicalHandler(static_cast<ISAXLexicalHandler*>(&handler));
        result = reader->putProperty(L"http://xml.org/sax/properties/lexical-handler", lexicalHandler);
    }
    if (SUCCEEDED(result)) result = reader->parse(XmlSource(content));
    if (FAILED(result) && !handler.Fault().empty()) return handler.Fault();
    return L"The XML cannot be loaded.";
}

}  // namespace lejis_client
