#include "foundation/ElementTree.h"

#include "foundation/NotPlain.h"
#include "foundation/PlainCharacters.h"
#include "foundation/PlainMarkup.h"
#include "platform/ComError.h"
#include "platform/msxml/ElementText.h"
#include "platform/msxml/Node.h"

#include <utility>

using msxml::Node;

namespace lejis {
namespace {

// Enough for an incident with a few cards.
constexpr size_t kUsualElements = 128;
constexpr size_t kUsualNodes = 32;
constexpr size_t kUsualCharacters = 3072;

// More questions than these would cost more than MSXML's document.
constexpr size_t kMostAskedTexts = 8;

bool IsElement(const Node& node) {
    DOMNodeType type = NODE_INVALID;
    platform::Check(node->get_nodeType(&type));
    return type == NODE_ELEMENT;
}

}  // namespace

ElementTree::ElementTree() {
    elements_.reserve(kUsualElements);
    characters_.reserve(kUsualCharacters);
}

ElementTree::ElementTree(const Node& root) : ElementTree() {
    nodes_.reserve(kUsualNodes);
    Add(root, {}, 0);
}

void ElementTree::Take(PlainMarkup& markup) {
    elements_.clear();
    characters_.clear();
    askedTexts_.clear();
    Add(markup);
}

std::wstring_view ElementTree::TextOf(size_t number) const {
    const Element& element = elements_[number];
    const std::wstring_view text = Characters(element.textBegin, element.textLength);
    if (element.content == kText) return text;
    if (element.content == kTextMarkup) return TextOfMarkup(text);
    if (element.content == kScannedElements) GiveUp();
    // The node may hold elements that the tree leaves out, so its depth is checked here.
    msxml::RequireBoundedDepth(nodes_[element.content]);
    return askedTexts_.emplace_back(msxml::Text(nodes_[element.content])).View();
}

void ElementTree::Add(const Node& node, const ElementName& name, int depth) {
    if (depth == msxml::kMaximumDepth) msxml::RaiseTooDeep();
    const size_t number = elements_.size();
    const auto nameBegin = static_cast<uint32_t>(characters_.size());
    elements_.push_back({name.Key(), 0, nameBegin, static_cast<uint32_t>(name.LocalName().size()), 0, 0, kText});
    characters_ += name.LocalName();
    Node firstChild = msxml::FirstChild(node);
    if (const auto text = msxml::LeafText(node, firstChild)) {
        SetText(number, *text);
    } else if (AddSiblings(std::move(firstChild), depth + 1)) {
        elements_[number].content = static_cast<uint32_t>(nodes_.size());
        nodes_.push_back(node);
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

void ElementTree::Add(PlainMarkup& markup) {
    const size_t number = elements_.size();
    const size_t nameBegin = characters_.size();
    plain::AppendAscii(characters_, markup.LocalName());
    const ElementName name(*markup.Namespace(), Characters(nameBegin, markup.LocalName().size()));
    elements_.push_back({name.Key(), 0, static_cast<uint32_t>(nameBegin),
                         static_cast<uint32_t>(name.LocalName().size()), 0, 0, kScannedElements});
    if (!AddChildren(markup)) SetText(number, markup);
    elements_[number].end = static_cast<uint32_t>(elements_.size());
}

bool ElementTree::AddChildren(PlainMarkup& markup) {
    bool areElements = false;
    for (; markup.NextChild(); areElements = true) {
        if (markup.Namespace()) {
            Add(markup);
        } else {
            markup.Skip();
        }
    }
    return areElements;
}

void ElementTree::SetText(size_t number, const PlainMarkup& markup) {
    const size_t begin = characters_.size();
    markup.AppendText(characters_, false);
    Element& element = elements_[number];
    element.content = kText;
    if (begin < characters_.size() && !msxml::IsTheSameInAnElement(Characters(begin, characters_.size() - begin))) {
        characters_.resize(begin);
        markup.AppendText(characters_, true);
        element.content = kTextMarkup;
    }
    element.textBegin = static_cast<uint32_t>(begin);
    element.textLength = static_cast<uint32_t>(characters_.size() - begin);
}

std::wstring_view ElementTree::TextOfMarkup(std::wstring_view markup) const {
    if (askedTexts_.size() == kMostAskedTexts) GiveUp();
    auto text = msxml::LoneText(markup);
    if (!text) GiveUp();
    return askedTexts_.emplace_back(*std::move(text)).View();
}

std::optional<NamespaceNumber> ElementTree::NamespaceOf(const Node& node) {
    const platform::OutText uri = msxml::NamespaceUri(node);
    if (uri == Constants::kPrefixes[lastNamespace_].uri) return lastNamespace_;
    const auto found = FindNamespace(uri);
    if (found) lastNamespace_ = *found;
    return found;
}

}  // namespace lejis
