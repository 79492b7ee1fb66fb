#pragma once

#include <string_view>

namespace lejis {

// The namespace of a qualified name as it is written in this library: a prefix of Constants, a colon and a local name.
// Raises for a name without a known prefix, which is a mistake in the library.
std::wstring_view NamespaceOf(std::wstring_view qualifiedName);

}  // namespace lejis
