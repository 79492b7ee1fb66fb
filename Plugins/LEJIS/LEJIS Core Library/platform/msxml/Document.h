// DOM documents: made, loaded, saved, and taken from clients.
#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace msxml {

// A new, empty document that loads at once and resolves nothing external.
Document CreateDocument();

// Loads text. False when it is not well-formed or carries a DOCTYPE; the document is empty then.
bool LoadXml(const Document& document, const std::wstring& text);

// Loads a copy of another document, which may be null. False when that has no root or carries a DOCTYPE.
bool LoadCopy(const Document& document, const Document& original);

// Whether the document carries a DOCTYPE. MSXML 6 refuses one by itself; other implementations do not.
bool HasDoctype(const Document& document);

// The root element; null for an empty document.
Element Root(const Document& document);

// Makes the element the document's root. Raises when the document has one, also where MSXML would take a second.
void AppendRoot(const Document& document, const Element& root);

void SetProperty(const Document& document, const wchar_t* name, const std::wstring& value);

// Writes the document to a file, replacing it. Raises when that fails, with the platform's description where there is
// one.
void Save(const Document& document, const std::wstring& path);

// The document behind what a client passed. Raises the object error for no object, and the type mismatch for something
// else.
Document DocumentFrom(IDispatch* client);

// The same for what is going to be read: it is refused with a DOCTYPE.
Document DocumentToRead(IDispatch* client);
// An element is refused also when it is nested too deep.
Element ElementToRead(IDispatch* client);

// What clients get of a document or element.
Microsoft::WRL::ComPtr<IDispatch> ToClient(const Microsoft::WRL::ComPtr<IXMLDOMNode>& node);

}  // namespace msxml
