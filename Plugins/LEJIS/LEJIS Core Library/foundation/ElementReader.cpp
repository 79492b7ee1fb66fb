#include "foundation/ElementReader.h"

#include "foundation/Prefixes.h"
#include "platform/msxml/ElementText.h"
#include "platform/msxml/Node.h"

using msxml::Element;
using msxml::Node;

namespace lejis {
namespace {

// Most elements have no more.
constexpr size_t kUsualChildren = 20;
constexpr size_t kUsualCharactersOfNames = 400;

bool HasName(const Node& node, const ExpandedName& name) {
    return msxml::LocalName(node).View() == name.localName && msxml::NamespaceUri(node).View() == name.namespaceUri;
}

}  // namespace

ElementReader::ElementReader(const Node& element) {
    children_.reserve(kUsualChildren);
    names_.reserve(kUsualCharactersOfNames);
    for (Node child = msxml::FirstChild(element), next; child; child = std::move(next)) {
        next = msxml::NextSibling(child);
        // No node but an element has one.
        const std::wstring_view namespaceUri = KnownNamespace(msxml::NamespaceUri(child).View());
        if (namespaceUri.empty()) continue;
        const platform::OutText name = msxml::LocalName(child);
        children_.push_back({std::move(child), namespaceUri.data(), names_.size(), name.View().size()});
        names_ += name.View();
    }
}

platform::OutText ElementReader::Text(std::wstring_view path) const {
    auto text = TextIfAny(path);
    return text ? std::move(*text) : platform::OutText();
}

std::optional<platform::OutText> ElementReader::TextIfAny(std::wstring_view path) const {
    const size_t slash = path.find(L'/');
    const std::wstring_view step = path.substr(0, slash);
    for (const NamedChild* child = Next(step); child; child = Next(step, child)) {
        if (slash == std::wstring_view::npos) return msxml::ElementText(child->node);
        if (const Node found = FindBelow(child->node, path.substr(slash + 1))) return msxml::ElementText(found);
    }
    return std::nullopt;
}

Element ElementReader::Child(std::wstring_view name) const {
    const NamedChild* const found = Next(name);
    return found ? msxml::AsElement(found->node) : nullptr;
}

std::vector<Element> ElementReader::Children(std::wstring_view name) const {
    std::vector<Element> found;
    for (const NamedChild* child = Next(name); child; child = Next(name, child)) {
        found.push_back(msxml::AsElement(child->node));
    }
    return found;
}

const ElementReader::NamedChild* ElementReader::Next(std::wstring_view name, const NamedChild* previous) const {
    const ExpandedName wanted = Expand(name);
    const NamedChild* const end = children_.data() + children_.size();
    for (const NamedChild* child = previous ? previous + 1 : children_.data(); child != end; ++child) {
        if (child->namespaceUri == wanted.namespaceUri.data() && NameOf(*child) == wanted.localName) return child;
    }
    return nullptr;
}

std::wstring_view ElementReader::NameOf(const NamedChild& child) const {
    return std::wstring_view(names_).substr(child.nameBegin, child.nameLength);
}

Node FindBelow(const Node& element, std::wstring_view path) {
    const size_t slash = path.find(L'/');
    const ExpandedName step = Expand(path.substr(0, slash));
    for (Node child = msxml::FirstChild(element); child; child = msxml::NextSibling(child)) {
        if (!HasName(child, step)) continue;
        if (slash == std::wstring_view::npos) return child;
        if (Node found = FindBelow(child, path.substr(slash + 1))) return found;
    }
    return nullptr;
}

}  // namespace lejis
