#include "platform/msxml/Document.h"

#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

#include <comutil.h>

#include <mutex>

using Microsoft::WRL::ComPtr;

namespace platform::msxml {
namespace {

// The class may be called from any thread. It stays valid when the client leaves COM and comes back, because this holds
// its module too.
struct DocumentClass {
    std::mutex mutex;
    ComPtr<IClassFactory> factory;
    HMODULE module = nullptr;
};

DocumentClass& TheClass() {
    // This is never destroyed: at the end of the process MSXML may be gone already.
    static DocumentClass& instance = *new DocumentClass;
    return instance;
}

ComPtr<IClassFactory> LookUp(HMODULE& module) {
    ComPtr<IClassFactory> factory;
    Check(
        CoGetClassObject(__uuidof(DOMDocument60), CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.GetAddressOf())));
    const void* const anythingInModule = *reinterpret_cast<void**>(factory.Get());
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, static_cast<LPCWSTR>(anythingInModule), &module);
    return factory;
}

// The class, looked up once: a look-up costs as much as the writing of a hundred elements.
ComPtr<IClassFactory> Factory() {
    DocumentClass& documents = TheClass();
    const std::lock_guard lock(documents.mutex);
    if (!documents.factory) documents.factory = LookUp(documents.module);
    return documents.factory;
}

template <typename Interface>
ComPtr<Interface> From(IDispatch* client) {
    if (!client) throw platform::ObjectRequired();
    ComPtr<Interface> object;
    if (FAILED(client->QueryInterface(IID_PPV_ARGS(object.GetAddressOf())))) throw platform::TypeMismatch();
    return object;
}

}  // namespace

void ReleaseDocumentClass() noexcept {
    DocumentClass& documents = TheClass();
    const std::lock_guard lock(documents.mutex);
    documents.factory.Reset();
    if (documents.module) FreeLibrary(documents.module);
    documents.module = nullptr;
}

Document CreateDocument() {
    Document document;
    Check(Factory()->CreateInstance(nullptr, IID_PPV_ARGS(document.GetAddressOf())));
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
    // A text that does not parse empties the document.
    Check(document->loadXML(InText(L""), &loaded));
    return false;
}

bool LoadCopy(const Document& document, const Document& original) {
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (!original || HasDoctype(original)) return false;
    // The original goes as IUnknown: some implementations do not see the document in an IDispatch.
    Check(document->load(_variant_t(static_cast<IUnknown*>(original.Get())), &loaded));
    // Not every MSXML reports a copy without a root as a failure.
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
    // MSXML 6 does not load such a document at all; elsewhere the outcome is the same.
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

ParseError Read(IXMLDOMParseError* error) {
    long code = 0;
    BSTR reason = nullptr;
    Check(error->get_errorCode(&code));
    Check(error->get_reason(&reason));
    return {code, platform::TakeText(reason)};
}

ParseError LastParseError(const Document& document) {
    Microsoft::WRL::ComPtr<IXMLDOMParseError> error;
    Check(document->get_parseError(error.GetAddressOf()));
    return Read(error.Get());
}

}  // namespace platform::msxml
