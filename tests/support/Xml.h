// XML in tests: written as text with the library's prefixes, compared as nodes.
#pragma once

#include <gtest/gtest.h>

#include <msxml6.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>

namespace support {

using Document = Microsoft::WRL::ComPtr<IXMLDOMDocument2>;
using Element = Microsoft::WRL::ComPtr<IXMLDOMElement>;

Document NewDocument();

// A document of this text. The prefixes soap, wsse, lejis, inq, card, ext and j need no declaration in it.
Document Parse(const std::wstring& text);
Element ParseElement(const std::wstring& text);

// What the XML text of a node says. A tree that was built need not know the namespaces of its attributes yet.
Document Reparsed(IXMLDOMNode* node);

// Element names (namespace and local name), attributes, order, and texts exactly; white space between elements is
// passed over, for the platforms lay out differently.
testing::AssertionResult SameXml(IUnknown* actual, const std::wstring& expected);

}  // namespace support
