#include "foundation/Prefixes.h"

#include "foundation/Constants.h"

#include <stdexcept>

namespace lejis {

ExpandedName Expand(std::wstring_view qualifiedName) {
    const size_t colon = qualifiedName.find(L':');
    if (colon != std::wstring_view::npos) {
        const std::wstring_view prefix = qualifiedName.substr(0, colon);
        for (const Constants::Prefix& known : Constants::kPrefixes) {
            if (prefix == known.name) return {known.uri, qualifiedName.substr(colon + 1)};
        }
    }
    throw std::logic_error("a name without a known prefix");
}

std::wstring_view KnownNamespace(std::wstring_view uri) {
    for (const Constants::Prefix& known : Constants::kPrefixes) {
        if (uri == known.uri) return known.uri;
    }
    return {};
}

std::wstring_view NamespaceOf(std::wstring_view qualifiedName) { return Expand(qualifiedName).namespaceUri; }

}  // namespace lejis
