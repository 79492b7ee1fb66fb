#include "foundation/ElementReader.h"

#include "foundation/Prefixes.h"
#include "platform/msxml/Node.h"

using msxml::Element;

namespace lejis {

ElementReader::ElementReader(const Element& element) {
    for (Element& child : msxml::ChildElements(element)) {
        children_.push_back({msxml::NamespaceUri(child), msxml::LocalName(child), child});
    }
}

std::wstring ElementReader::Text(std::wstring_view path) const { return TextIfAny(path).value_or(std::wstring()); }

std::optional<std::wstring> ElementReader::TextIfAny(std::wstring_view path) const {
    const Element found = Find(path);
    if (!found) return std::nullopt;
    return msxml::Text(found);
}

Element ElementReader::Child(std::wstring_view name) const {
    const ExpandedName wanted = Expand(name);
    for (const NamedChild& child : children_) {
        if (child.localName == wanted.localName && child.namespaceUri == wanted.namespaceUri) return child.element;
    }
    return nullptr;
}

std::vector<Element> ElementReader::Children(std::wstring_view name) const {
    const ExpandedName wanted = Expand(name);
    std::vector<Element> found;
    for (const NamedChild& child : children_) {
        if (child.localName == wanted.localName && child.namespaceUri == wanted.namespaceUri) {
            found.push_back(child.element);
        }
    }
    return found;
}

Element ElementReader::Find(std::wstring_view path) const {
    const size_t slash = path.find(L'/');
    if (slash == std::wstring_view::npos) return Child(path);
    for (const Element& parent : Children(path.substr(0, slash))) {
        if (Element found = ElementReader(parent).Find(path.substr(slash + 1))) return found;
    }
    return nullptr;
}

}  // namespace lejis
