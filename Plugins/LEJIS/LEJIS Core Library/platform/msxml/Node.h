// Elements and other nodes: built, found and read.
#pragma once

#include "platform/msxml/MsXml.h"
#include "platform/OutText.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace msxml {

// A new, unattached element; `qualifiedName` is written as it stands.
Element CreateElement(const Document& document, std::wstring_view qualifiedName, std::wstring_view namespaceUri);

// Sets an attribute that has a namespace.
void SetAttribute(const Document& document, const Element& element, std::wstring_view qualifiedName,
                  std::wstring_view namespaceUri, std::wstring_view value);

void SetText(const Element& element, std::wstring_view text);

// Puts `child` behind the last child of `parent`, taking it out of where it was.
void Append(const Node& parent, const Node& child);

// The text of a node and its descendants.
platform::OutText Text(const Node& node);

// The value of an attribute without a namespace; none when there is no such attribute.
std::optional<std::wstring> Attribute(const Element& element, const wchar_t* name);

// The first node, or all, that the expression selects relative to `node`; the document's selection namespaces hold.
Node SelectNode(const Node& node, const std::wstring& xpath);
std::vector<Node> SelectNodes(const Node& node, const std::wstring& xpath);

// A copy of an element with all that it holds, unattached.
Element Copy(const Element& element);

// The node, or null, as the element that it is. Raises for a node of another kind.
Element AsElement(const Node& node);

// Null when there is none.
Node FirstChild(const Node& node);
Node NextSibling(const Node& node);

DOMNodeType TypeOf(const Node& node);

// The element children, in document order.
std::vector<Element> ChildElements(const Node& node);

// Empty for a node that has none.
platform::OutText LocalName(const Node& node);
platform::OutText NamespaceUri(const Node& node);

Document OwnerDocument(const Node& node);

// The node as XML text.
std::wstring Xml(const Node& node);

}  // namespace msxml
