// Elements and other nodes: built, found, read, and measured for their depth.
#pragma once

#include "platform/msxml/MsXml.h"
#include "platform/Text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::msxml {

// A new, unattached element; `qualifiedName` is written as it stands.
Element CreateElement(const Document& document, std::wstring_view qualifiedName, std::wstring_view namespaceUri);

// Sets an attribute that has a namespace.
void SetAttribute(const Document& document, const Element& element, std::wstring_view qualifiedName,
                  std::wstring_view namespaceUri, std::wstring_view value);

void SetText(const Element& element, std::wstring_view text);

// Puts `child` after the last child of `parent`, and takes it out of its old place.
void Append(const Node& parent, const Node& child);

// The text of a node and its descendants.
platform::OutText Text(const Node& node);

// The value of an attribute without a namespace; nothing when the element has no such attribute.
std::optional<std::wstring> Attribute(const Element& element, const wchar_t* name);

// The first node, or all, that the expression selects relative to `node`; the document's selection namespaces hold.
Node SelectNode(const Node& node, const std::wstring& xpath);
std::vector<Node> SelectNodes(const Node& node, const std::wstring& xpath);

// A copy of an element with all that it holds, unattached.
Element Copy(const Element& element);

// The node, or null, as the element that it is. Throws for a node of another kind.
Element AsElement(const Node& node);

// Null when the node has no child or no sibling after it.
Node FirstChild(const Node& node);
Node NextSibling(const Node& node);

DOMNodeType TypeOf(const Node& node);

// The element children, in document order.
std::vector<Element> ChildElements(const Node& node);

// Empty for a node without a name or without a namespace.
platform::OutText LocalName(const Node& node);
platform::OutText NamespaceUri(const Node& node);

Document OwnerDocument(const Node& node);

// The node as XML text.
std::wstring Xml(const Node& node);

// How deep the elements that a client hands in may be nested. MSXML parses a little less (some 256), so that nothing
// that it has parsed is refused for its depth. A tree that a client builds by itself can be deeper. MSXML runs out of
// stack when it reads the text of such a tree, copies it or moves it.
inline constexpr int kMaximumDepth = 260;

// Throws the error of elements that are nested too deep, for callers that count the levels themselves.
[[noreturn]] void RaiseTooDeep();

// Throws when elements are nested kMaximumDepth levels deep in the node, or deeper.
void RequireBoundedDepth(const Node& node);

}  // namespace platform::msxml
