#pragma once

#include "foundation/Prefixes.h"

#include <cstddef>
#include <string_view>

namespace lejis {

// The name of an element or attribute as it is written, prefix included, made ready by the compiler: a prefix that
// Constants does not know does not compile, and neither does a text that is made at run time.
class QualifiedName {
public:
    template <size_t kSize>
    consteval QualifiedName(const wchar_t (&name)[kSize])
        : text_(name, kSize - 1), namespaceUri_(NamespaceOf({name, kSize - 1})) {}

    constexpr std::wstring_view Text() const { return text_; }
    constexpr std::wstring_view NamespaceUri() const { return namespaceUri_; }

private:
    std::wstring_view text_;
    std::wstring_view namespaceUri_;
};

}  // namespace lejis
