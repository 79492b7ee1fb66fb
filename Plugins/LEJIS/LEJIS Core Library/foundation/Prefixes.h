// Qualified names as they are written in this library: a prefix of Constants, a colon and a local name.
#pragma once

#include <string>
#include <string_view>

namespace lejis {

struct ExpandedName {
    std::wstring_view namespaceUri;
    std::wstring_view localName;
};

// Raises for a name without a known prefix, which is a mistake in the library.
ExpandedName Expand(std::wstring_view qualifiedName);

std::wstring NamespaceOf(std::wstring_view qualifiedName);

}  // namespace lejis
