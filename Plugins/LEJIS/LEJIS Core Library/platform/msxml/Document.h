// DOM documents: made, loaded, saved, and taken from clients.
#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace platform::msxml {

// Releases the class of documents, which is otherwise kept. Call it while COM is still there.
void ReleaseDocumentClass() noexcept;

// A new, empty document that loads at once and resolves nothing external.
Document CreateDocument();

// Loads text. Returns false, and leaves the document empty, when the text is not well-formed or carries a DOCTYPE.
bool LoadXml(const Document& document, const std::wstring& text);

// Loads a copy of another document. Returns false when that is null, has no root or carries a DOCTYPE.
bool LoadCopy(const Document& document, const Document& original);

// Whether the document carries a DOCTYPE. MSXML 6 refuses a DOCTYPE by itself; other implementations do not.
bool HasDoctype(const Document& document);

// The root element; null for an empty document.
Element Root(const Document& document);

// Makes the element the document's root. Throws when the document has a root, even where MSXML would take a second one.
void AppendRoot(const Document& document, const Element& root);

void SetProperty(const Document& document, const wchar_t* name, const std::wstring& value);

// Writes the document to a file, and replaces an older one. Throws when that fails, with the platform's description
// where there is one.
void Save(const Document& document, const std::wstring& path);

// The document that a client passed. Throws the object error for no object, and the type mismatch for any other object.
Document DocumentFrom(IDispatch* client);

// The same for a document or element that will be read. A DOCTYPE is refused.
Document DocumentToRead(IDispatch* client);
// An element that is nested too deep is refused too.
Element ElementToRead(IDispatch* client);

// A document or element as clients get it.
Microsoft::WRL::ComPtr<IDispatch> ToClient(const Microsoft::WRL::ComPtr<IXMLDOMNode>& node);

// Why a text did not parse or is not valid. The reason is empty where MSXML gives none.
struct ParseError {
    long code;
    std::wstring reason;
};

ParseError Read(IXMLDOMParseError* error);

// The outcome of the document's last load.
ParseError LastParseError(const Document& document);

}  // namespace platform::msxml
