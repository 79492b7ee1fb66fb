// The prefixes of Constants and their namespaces.
#pragma once

#include "foundation/Constants.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace lejis {

// The place of a namespace in Constants; of two places with one namespace, the first.
using NamespaceNumber = uint8_t;

constexpr std::optional<NamespaceNumber> FindNamespace(std::wstring_view uri) {
    for (NamespaceNumber number = 0; number < std::size(Constants::kPrefixes); ++number) {
        if (uri == Constants::kPrefixes[number].uri) return number;
    }
    return std::nullopt;
}

// The namespace of a qualified name as it is written in this library: a prefix of Constants, a colon and a local name.
// Raises for a name without a known prefix, which is a mistake in the library; the compiler refuses it where it asks.
constexpr std::wstring_view NamespaceOf(std::wstring_view qualifiedName) {
    if (const size_t colon = qualifiedName.find(L':'); colon != std::wstring_view::npos) {
        for (const Constants::Prefix& known : Constants::kPrefixes) {
            if (qualifiedName.substr(0, colon) == known.name) return known.uri;
        }
    }
    throw std::logic_error("a name without a known prefix");
}

}  // namespace lejis
