#include "platform/msxml/Document.h"

#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"
#include "platform/InText.h"
#include "platform/msxml/Depth.h"
#include "platform/msxml/DocumentClass.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;
using platform::Check;
using platform::InText;
using platform::ToBstr;

namespace msxml {
namespace {

template <typename Interface>
ComPtr<Interface> From(IDispatch* client) {
    if (!client) throw platform::ObjectRequired();
    ComPtr<Interface> object;
    if (FAILED(client->QueryInterface(IID_PPV_ARGS(object.GetAddressOf())))) throw platform::TypeMismatch();
    return object;
}

}  // namespace

Document CreateDocument() {
    Document document = NewDocument();
    Check(document->put_async(VARIANT_FALSE));
    Check(document->put_resolveExternals(VARIANT_FALSE));
    Check(document->put_validateOnParse(VARIANT_FALSE));
    return document;
}

bool LoadXml(const Document& document, const std::wstring& text) {
    VARIANT_BOOL loaded = VARIANT_FALSE;
    Check(document->loadXML(ToBstr(text), &loaded));
    if (loaded == VARIANT_FALSE) return false;
    if (!HasDoctype(document)) return true;
    // Text that does not parse empties the document.
    Check(document->loadXML(InText(L""), &loaded));
    return false;
}

bool LoadCopy(const Document& document, const Document& original) {
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (!original || HasDoctype(original)) return false;
    // As unknown object: passed as automation object, some implementations do not see the document in it.
    Check(document->load(_variant_t(static_cast<IUnknown*>(original.Get())), &loaded));
    // Not every MSXML calls a copy of nothing a failure.
    return loaded != VARIANT_FALSE && Root(document);
}

bool HasDoctype(const Document& document) {
    ComPtr<IXMLDOMDocumentType> doctype;
    Check(document->get_doctype(doctype.GetAddressOf()));
    return doctype != nullptr;
}

Element Root(const Document& document) {
    Element root;
    Check(document->get_documentElement(root.GetAddressOf()));
    return root;
}

void AppendRoot(const Document& document, const Element& root) {
    if (Root(document)) throw platform::ComError(E_FAIL, L"Only one top level element is allowed in an XML document.");
    Append(document, root);
}

void SetProperty(const Document& document, const wchar_t* name, const std::wstring& value) {
    Check(document->setProperty(InText(name), _variant_t(ToBstr(value))));
}

void Save(const Document& document, const std::wstring& path) {
    const HRESULT result = document->save(_variant_t(ToBstr(path)));
    if (FAILED(result)) throw platform::LastError(result, L"Cannot write '" + path + L"': ");
}

Document DocumentFrom(IDispatch* client) { return From<IXMLDOMDocument2>(client); }

Document DocumentToRead(IDispatch* client) {
    Document document = DocumentFrom(client);
    // As if it had not been loaded at all, which is what MSXML 6 makes of it.
    if (HasDoctype(document)) throw platform::ObjectRequired();
    return document;
}

Element ElementToRead(IDispatch* client) {
    Element element = From<IXMLDOMElement>(client);
    if (HasDoctype(OwnerDocument(element))) {
        throw platform::host::InvalidArgument(L"XML of a document with a DOCTYPE is not read");
    }
    RequireBoundedDepth(element);
    return element;
}

ComPtr<IDispatch> ToClient(const Node& node) { return ComPtr<IDispatch>(node.Get()); }

}  // namespace msxml
