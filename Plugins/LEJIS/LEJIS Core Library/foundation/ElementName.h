// The names of elements, made ready by the compiler from the prefixes of Constants.
#pragma once

#include "foundation/Constants.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>
#include <stdexcept>
#include <string_view>

namespace lejis {

// The position of a namespace in Constants. A namespace with two positions has the first one.
using NamespaceNumber = uint8_t;

constexpr std::optional<NamespaceNumber> FindNamespace(std::wstring_view uri) {
    for (NamespaceNumber number = 0; number < std::size(Constants::kPrefixes); ++number) {
        if (uri == Constants::kPrefixes[number].uri) return number;
    }
    return std::nullopt;
}

// The namespace of a qualified name as it is written in this library: a prefix of Constants, a colon and a local name.
// Throws for a name without a known prefix, which is a mistake in the library; in a constant the compiler refuses it.
constexpr std::wstring_view NamespaceOf(std::wstring_view qualifiedName) {
    if (const size_t colon = qualifiedName.find(L':'); colon != std::wstring_view::npos) {
        for (const Constants::Prefix& known : Constants::kPrefixes) {
            if (qualifiedName.substr(0, colon) == known.name) return known.uri;
        }
    }
    throw std::logic_error("a name without a known prefix");
}

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
    // The name is a prefix of Constants, a colon and a local name.
    template <size_t kSize>
    consteval ElementName(const wchar_t (&qualifiedName)[kSize]) : ElementName(Parse({qualifiedName, kSize - 1})) {}

    static consteval ElementName Parse(std::wstring_view qualifiedName) {
        return {*FindNamespace(NamespaceOf(qualifiedName)), qualifiedName.substr(qualifiedName.find(L':') + 1)};
    }

    constexpr NamespaceNumber Namespace() const { return key_ & 0xf; }
    constexpr std::wstring_view NamespaceUri() const { return Constants::kPrefixes[Namespace()].uri; }
    constexpr std::wstring_view LocalName() const { return localName_; }
    // Equal for equal names, and seldom equal for two different ones: one comparison tells most names apart.
    constexpr uint32_t Key() const { return key_; }

private:
    std::wstring_view localName_;
    uint32_t key_ = 0;
};

static_assert(std::size(Constants::kPrefixes) <= 0x10);

// The way to an element as cards look for it: names with slashes between them, made ready by the compiler.
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
    static constexpr size_t kLongest = 3;

    std::array<ElementName, kLongest> steps_;
    size_t count_ = 0;
};

}  // namespace lejis
