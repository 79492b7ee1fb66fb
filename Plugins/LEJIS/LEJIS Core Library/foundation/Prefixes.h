// Qualified names as they are written in this library: a prefix of Constants, a colon and a local name.
#pragma once

#include <string_view>

namespace lejis {

struct ExpandedName {
    // One of the texts in Constants: two are of the same namespace when they are the same text in the same place.
    std::wstring_view namespaceUri;
    std::wstring_view localName;
};

// Raises for a name without a known prefix, which is a mistake in the library.
ExpandedName Expand(std::wstring_view qualifiedName);

// The text of Constants that is the same namespace; empty when there is none.
std::wstring_view KnownNamespace(std::wstring_view uri);

std::wstring_view NamespaceOf(std::wstring_view qualifiedName);

}  // namespace lejis
