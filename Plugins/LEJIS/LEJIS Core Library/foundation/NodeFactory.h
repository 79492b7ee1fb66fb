// Builders of the elements that the library writes. The new elements are unattached.
#pragma once

#include "platform/msxml/MsXml.h"

#include <comutil.h>

#include <string_view>

namespace lejis::NodeFactory {

// An element in a namespace; its prefix is the one in the qualified name.
msxml::Element CreateQualifiedElement(const msxml::Document& document, std::wstring_view qualifiedName,
                                      std::wstring_view namespaceUri);

// An element with a text, written as it stands. An empty text and a null value give an empty element.
msxml::Element CreateTextElement(const msxml::Document& document, std::wstring_view qualifiedName,
                                 std::wstring_view value, std::wstring_view namespaceUri);
msxml::Element CreateTextElement(const msxml::Document& document, std::wstring_view qualifiedName,
                                 const _variant_t& value, std::wstring_view namespaceUri);

// An element with the text "true" or "false".
msxml::Element CreateBooleanElement(const msxml::Document& document, std::wstring_view qualifiedName, bool flag,
                                    std::wstring_view namespaceUri);

// An element that holds j:ID. Both are in the GJXDM namespace, whatever prefix the name carries.
msxml::Element CreateIdElement(const msxml::Document& document, std::wstring_view qualifiedName,
                               std::wstring_view identifier);

// The same with j:IDJurisdictionCode.ncicLSTA after j:ID.
msxml::Element CreateJurisdictionIdElement(const msxml::Document& document, std::wstring_view qualifiedName,
                                           std::wstring_view identifier, std::wstring_view jurisdictionCode);

}  // namespace lejis::NodeFactory
