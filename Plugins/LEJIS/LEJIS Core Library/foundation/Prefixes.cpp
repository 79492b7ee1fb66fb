#include "foundation/Prefixes.h"

#include <stdexcept>

namespace lejis {

std::wstring_view NamespaceOf(std::wstring_view qualifiedName) {
    const size_t colon = qualifiedName.find(L':');
    if (colon != std::wstring_view::npos) {
        const std::wstring_view prefix = qualifiedName.substr(0, colon);
        for (const Constants::Prefix& known : Constants::kPrefixes) {
            if (prefix == known.name) return known.uri;
        }
    }
    throw std::logic_error("a name without a known prefix");
}

}  // namespace lejis
