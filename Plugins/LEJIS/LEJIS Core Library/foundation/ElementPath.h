#pragma once

#include "foundation/ElementName.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace lejis {

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
    static constexpr size_t kMost = 3;

    std::array<ElementName, kMost> steps_;
    size_t count_ = 0;
};

}  // namespace lejis
