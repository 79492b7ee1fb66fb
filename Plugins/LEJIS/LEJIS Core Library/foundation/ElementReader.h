#pragma once

#include "foundation/ElementName.h"
#include "foundation/ElementTree.h"
#include "platform/msxml/MsXml.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace lejis {

// Finds what an element holds by name. Paths have the meaning of XPath: "a/b" is the first b, in document order, below
// any child a. Names are compared by namespace and local name.
class ElementReader {
public:
    // Takes the whole element from MSXML; the readers of its children share the result.
    explicit ElementReader(const msxml::Element& element);
    // Reads the root of a tree.
    explicit ElementReader(std::shared_ptr<const ElementTree> tree) : tree_(std::move(tree)), number_(0) {}

    // A text is valid as long as a reader of the same tree lives, so a temporary reader gives neither texts nor
    // readers.

    // The text of the first element that the path selects, or an empty text. An empty element has an empty text too.
    std::wstring_view Text(const ElementPath& path) const&;
    std::wstring_view Text(const ElementPath& path) const&& = delete;
    // The same, but nothing for a missing element.
    std::optional<std::wstring_view> TextIfAny(const ElementPath& path) const&;
    std::optional<std::wstring_view> TextIfAny(const ElementPath& path) const&& = delete;

    // The first element that the path selects, and all children of a name.
    std::optional<ElementReader> Child(const ElementPath& path) const&;
    std::optional<ElementReader> Child(const ElementPath& path) const&& = delete;
    std::vector<ElementReader> Children(const ElementName& name) const&;
    std::vector<ElementReader> Children(const ElementName& name) const&& = delete;

    // The text of the element itself.
    std::wstring_view Text() const& { return tree_->TextOf(number_); }
    std::wstring_view Text() const&& = delete;

private:
    ElementReader(const std::shared_ptr<const ElementTree>& tree, size_t number) : tree_(tree), number_(number) {}

    std::shared_ptr<const ElementTree> tree_;
    size_t number_;
};

}  // namespace lejis
