// What clients hand in to be queried: elements, with the prefixes of Constants declared on their documents.
#pragma once

#include "platform/msxml/MsXml.h"

#include <comutil.h>

#include <string>

namespace lejis::LejisUtils {

// Declares the prefixes of Constants for the document's queries.
void SetSelectionNamespaces(const msxml::Document& document);

// The text of the first node that the expression selects relative to the element; `otherwise` when it selects no node.
// Throws "elem cannot be Nothing" without an element.
_variant_t GetChildText(const msxml::Element& element, const std::wstring& xpath, const _variant_t& otherwise);

// Throws "elem cannot be Nothing" without an element.
void RequireElement(const msxml::Element& element);

// The element that a client passed, ready to be read: its document has the prefixes declared for queries. Throws "elem
// cannot be Nothing" without an element.
msxml::Element ElementToRead(IDispatch* client);

}  // namespace lejis::LejisUtils
