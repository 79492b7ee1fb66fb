// Reads the children of one element by name, in one pass over them: a query for each field costs sixty times as much.
#pragma once

#include "platform/msxml/MsXml.h"
#include "platform/OutText.h"

#include <array>
#include <cstddef>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lejis {

// Paths have the meaning of XPath: "a/b" is the first b, in document order, below any child a. Names are compared by
// namespace and local name.
class ElementReader {
public:
    explicit ElementReader(const msxml::Node& element);

    // The text of what the path selects, or an empty text. An empty element has an empty text too.
    platform::OutText Text(std::wstring_view path) const;
    // The same, telling an empty element from a missing one.
    std::optional<platform::OutText> TextIfAny(std::wstring_view path) const;

    // The first child, or all children, of this name; null and none when there is none.
    msxml::Element Child(std::wstring_view name) const;
    std::vector<msxml::Element> Children(std::wstring_view name) const;

private:
    struct NamedChild {
        msxml::Node node;
        // That of Constants.
        const wchar_t* namespaceUri;
        // Where its local name stands in names_.
        size_t nameBegin;
        size_t nameLength;
    };

    // The first child of this name, behind `previous` if there is one; null when there is none.
    const NamedChild* Next(std::wstring_view name, const NamedChild* previous = nullptr) const;
    std::wstring_view NameOf(const NamedChild& child) const;

    // Enough for most elements, so that reading one takes nothing from the heap.
    std::array<std::byte, 1536> memory_;
    std::pmr::monotonic_buffer_resource resource_{memory_.data(), memory_.size()};
    // Those in a namespace of Constants.
    std::pmr::vector<NamedChild> children_{&resource_};
    // Copied, so that MSXML gets its texts back at once and uses their memory for the next ones.
    std::pmr::wstring names_{&resource_};
};

// What a path selects, for an element of which no more is asked; null when it selects nothing.
msxml::Node FindBelow(const msxml::Node& element, std::wstring_view path);

}  // namespace lejis
