#include "foundation/ElementReader.h"

namespace lejis {
namespace {

// The children of one element that have one name.
class NamedChildren {
public:
    NamedChildren(const ElementTree& tree, size_t parent, const ElementName& name)
        : tree_(tree), name_(name), next_(parent + 1), end_(tree.EndOf(parent)) {}

    // The next child of that name, in document order.
    std::optional<size_t> Next() {
        while (next_ < end_) {
            const size_t child = next_;
            next_ = tree_.EndOf(child);
            if (tree_.HasName(child, name_)) return child;
        }
        return std::nullopt;
    }

private:
    const ElementTree& tree_;
    const ElementName& name_;
    size_t next_;
    const size_t end_;
};

std::optional<size_t> Find(const ElementTree& tree, size_t parent, std::span<const ElementName> steps) {
    NamedChildren children(tree, parent, steps.front());
    if (steps.size() == 1) return children.Next();
    while (const auto child = children.Next()) {
        if (const auto found = Find(tree, *child, steps.subspan(1))) return found;
    }
    return std::nullopt;
}

}  // namespace

ElementReader::ElementReader(const msxml::Element& element)
    : tree_(std::make_shared<const ElementTree>(element)), number_(0) {}

std::wstring_view ElementReader::Text(const ElementPath& path) const& {
    return TextIfAny(path).value_or(std::wstring_view());
}

std::optional<std::wstring_view> ElementReader::TextIfAny(const ElementPath& path) const& {
    const auto found = Find(*tree_, number_, path.Steps());
    if (!found) return std::nullopt;
    return tree_->TextOf(*found);
}

std::optional<ElementReader> ElementReader::Child(const ElementPath& path) const& {
    const auto found = Find(*tree_, number_, path.Steps());
    if (!found) return std::nullopt;
    return ElementReader(tree_, *found);
}

std::vector<ElementReader> ElementReader::Children(const ElementName& name) const& {
    std::vector<ElementReader> found;
    NamedChildren children(*tree_, number_, name);
    while (const auto child = children.Next()) found.push_back(ElementReader(tree_, *child));
    return found;
}

}  // namespace lejis
