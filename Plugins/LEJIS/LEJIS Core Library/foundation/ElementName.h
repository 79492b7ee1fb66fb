// Names of elements as cards look for them, made ready by the compiler: a prefix that Constants does not know does not
// compile.
#pragma once

#include "foundation/Constants.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
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
        const size_t colon = qualifiedName.find(L':');
        for (const Constants::Prefix& known : Constants::kPrefixes) {
            if (qualifiedName.substr(0, colon) != known.name) continue;
            return {*FindNamespace(known.uri), qualifiedName.substr(colon + 1)};
        }
        throw "a name without a known prefix";
    }

    constexpr std::wstring_view NamespaceUri() const { return Constants::kPrefixes[key_ & 0xf].uri; }
    constexpr std::wstring_view LocalName() const { return localName_; }
    // The same for the same name, and seldom the same for two names: most are told apart by one comparison.
    constexpr uint32_t Key() const { return key_; }

private:
    std::wstring_view localName_;
    uint32_t key_ = 0;
};

static_assert(std::size(Constants::kPrefixes) <= 0x10);

// Names with slashes between them.
class ElementPath {
public:
    template <size_t kSize>
    consteval ElementPath(const wchar_t (&path)[kSize]) {
        const std::wstring_view all(path, kSize - 1);
        for (size_t begin = 0, end = 0; begin <= all.size(); begin = end + 1) {
            end = std::min(all.find(L'/', begin), all.size());
            steps_[count_++] = ElementName::Parse(all.substr(begin, end - begin));
        }
    }

    constexpr std::span<const ElementName> Steps() const { return {steps_.data(), count_}; }

private:
    static constexpr size_t kMost = 3;

    std::array<ElementName, kMost> steps_;
    size_t count_ = 0;
};

}  // namespace lejis
