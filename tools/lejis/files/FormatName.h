#pragma once

#include "foundation/ElementName.h"

#include <cstddef>
#include <string_view>

namespace lejis_client {

// The name of an element or attribute of incident files: a prefix of the library's, a colon and a local name.
struct FormatName {
    constexpr explicit FormatName(std::wstring_view qualifiedName)
        : qualified(qualifiedName),
          space(lejis::NamespaceOf(qualifiedName)),
          local(qualifiedName.substr(qualifiedName.find(L':') + 1)) {}

    constexpr bool Is(std::wstring_view otherSpace, std::wstring_view otherLocal) const {
        return local == otherLocal && space == otherSpace;
    }

    std::wstring_view qualified;
    std::wstring_view space;
    std::wstring_view local;
};

}  // namespace lejis_client
