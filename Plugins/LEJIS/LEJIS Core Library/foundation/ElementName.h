#pragma once

#include "foundation/Prefixes.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lejis {

// The name of an element as cards look for it, made ready by the compiler: a prefix that Constants does not know does
// not compile.
class ElementName {
public:
    constexpr ElementName() = default;
    constexpr ElementName(NamespaceNumber namespaceNumber, std::wstring_view localName)
        : localName_(localName), key_(namespaceNumber | static_cast<uint32_t>(localName.size() & 0xff) << 4) {
        if (localName.empty()) return;
        key_ |= static_cast<uint32_t>(localName.back() & 0xff) << 12;
        key_ |= static_cast<uint32_t>(localName[localName.size() / 2] & 0xff) << 20;
    }
    // From a prefix of Constants, a colon and a local name.
    template <size_t kSize>
    consteval ElementName(const wchar_t (&qualifiedName)[kSize]) : ElementName(Parse({qualifiedName, kSize - 1})) {}

    static consteval ElementName Parse(std::wstring_view qualifiedName) {
        return {*FindNamespace(NamespaceOf(qualifiedName)), qualifiedName.substr(qualifiedName.find(L':') + 1)};
    }

    constexpr NamespaceNumber Namespace() const { return key_ & 0xf; }
    constexpr std::wstring_view NamespaceUri() const { return Constants::kPrefixes[Namespace()].uri; }
    constexpr std::wstring_view LocalName() const { return localName_; }
    // The same for the same name, and seldom the same for two names: most are told apart by one comparison.
    constexpr uint32_t Key() const { return key_; }

private:
    std::wstring_view localName_;
    uint32_t key_ = 0;
};

static_assert(std::size(Constants::kPrefixes) <= 0x10);

}  // namespace lejis
