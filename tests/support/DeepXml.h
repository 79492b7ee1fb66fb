// Elements that are nested deeper than a parser accepts.
#pragma once

#include "support/Xml.h"

#include <string>

namespace support {

inline constexpr int kVeryDeep = 100000;

// Nests this many elements in the node, each in the one before, and a text in the last: as a client can build a tree
// that no parser gives it. The elements are called "a", with the prefix j in a namespace.
void NestIn(IXMLDOMNode* node, int depth, const std::wstring& namespaceUri = {});

// The same as text: elements "a" around the content.
std::wstring Nested(int depth, const std::wstring& content = L"x");

}  // namespace support
