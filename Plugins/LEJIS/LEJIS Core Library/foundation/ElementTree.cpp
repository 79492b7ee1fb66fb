#include "foundation/ElementTree.h"

#include "platform/ComError.h"
#include "platform/msxml/Depth.h"
#include "platform/msxml/LeafText.h"
#include "platform/msxml/Node.h"

#include <utility>

using msxml::Node;

namespace lejis {
namespace {

// Enough for an incident with a few cards.
constexpr size_t kUsualElements = 128;
constexpr size_t kUsualParents = 32;
constexpr size_t kUsualCharacters = 3072;

bool IsElement(const Node& node) {
    DOMNodeType type = NODE_INVALID;
    platform::Check(node->get_nodeType(&type));
    return type == NODE_ELEMENT;
}

}  // namespace

ElementTree::ElementTree(const Node& root) {
    elements_.reserve(kUsualElements);
    parents_.reserve(kUsualParents);
    characters_.reserve(kUsualCharacters);
    Add(root, {}, 0);
}

bool ElementTree::HasName(size_t number, const ElementName& name) const {
    const Element& element = elements_[number];
    return element.key == name.Key() && Characters(element.nameBegin, element.nameLength) == name.LocalName();
}

std::wstring_view ElementTree::TextOf(size_t number) const {
    const Element& element = elements_[number];
    if (element.parent == kNone) return Characters(element.textBegin, element.textLength);
    // There may be others in it than those of the tree.
    msxml::RequireBoundedDepth(parents_[element.parent]);
    return textsOfParents_.emplace_back(msxml::Text(parents_[element.parent])).View();
}

void ElementTree::Add(const Node& node, const ElementName& name, int depth) {
    if (depth == msxml::kMaximumDepth) msxml::RaiseTooDeep();
    const size_t number = elements_.size();
    const auto nameBegin = static_cast<uint32_t>(characters_.size());
    elements_.push_back({name.Key(), 0, nameBegin, static_cast<uint32_t>(name.LocalName().size()), 0, 0, kNone});
    characters_ += name.LocalName();
    Node firstChild = msxml::FirstChild(node);
    if (const auto text = msxml::LeafText(node, firstChild)) {
        SetText(number, *text);
    } else if (AddSiblings(std::move(firstChild), depth + 1)) {
        elements_[number].parent = static_cast<uint32_t>(parents_.size());
        parents_.push_back(node);
    } else {
        const platform::OutText whole = msxml::Text(node);
        SetText(number, whole);
    }
    elements_[number].end = static_cast<uint32_t>(elements_.size());
}

bool ElementTree::AddSiblings(Node first, int depth) {
    bool areElements = false;
    for (Node node = std::move(first); node; node = msxml::NextSibling(node)) {
        // No node but an element has one.
        if (const auto namespaceNumber = NamespaceOf(node)) {
            const platform::OutText localName = msxml::LocalName(node);
            Add(node, {*namespaceNumber, localName}, depth);
            areElements = true;
        } else {
            areElements = areElements || IsElement(node);
        }
    }
    return areElements;
}

void ElementTree::SetText(size_t number, std::wstring_view text) {
    elements_[number].textBegin = static_cast<uint32_t>(characters_.size());
    elements_[number].textLength = static_cast<uint32_t>(text.size());
    characters_ += text;
}

std::optional<NamespaceNumber> ElementTree::NamespaceOf(const Node& node) {
    const platform::OutText uri = msxml::NamespaceUri(node);
    if (uri == Constants::kPrefixes[lastNamespace_].uri) return lastNamespace_;
    const auto found = FindNamespace(uri);
    if (found) lastNamespace_ = *found;
    return found;
}

std::wstring_view ElementTree::Characters(size_t begin, size_t length) const {
    return std::wstring_view(characters_).substr(begin, length);
}

}  // namespace lejis
