#pragma once

#include "foundation/ElementName.h"
#include "platform/msxml/MsXml.h"
#include "platform/Text.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lejis {

class PlainMarkup;

// An element and the elements in it, taken from MSXML in one walk over its nodes in document order. MSXML makes an
// object for each node that it is asked for and has its nodes in memory in this order; a query for each field costs
// sixty times as much.
class ElementTree {
public:
    // Throws when elements are nested too deep in the root.
    explicit ElementTree(const msxml::Node& root);
    // Empty, for what Take fills in.
    ElementTree();
    ElementTree(const ElementTree&) = delete;
    ElementTree& operator=(const ElementTree&) = delete;

    // Takes the element that the scanner stands in, and all that it holds, in place of what the tree held. Its texts
    // are those that MSXML gives; one that only MSXML's document knows throws NotPlain when it is asked for.
    void Take(PlainMarkup& markup);

    // Elements are numbered in document order from the root, which is 0. Those in no namespace of Constants are left
    // out, with all that is in them.
    bool HasName(size_t number, const ElementName& name) const {
        const Element& element = elements_[number];
        return element.key == name.Key() && Characters(element.nameBegin, element.nameLength) == name.LocalName();
    }
    // The number after those of the element and of all elements in it.
    size_t EndOf(size_t number) const { return elements_[number].end; }
    // The text as MSXML gives it, with the texts of all descendants. It is valid as long as the tree.
    std::wstring_view TextOf(size_t number) const;

private:
    struct Element {
        // The key of its name.
        uint32_t key;
        uint32_t end;
        // Where its local name and its text stand in characters_.
        uint32_t nameBegin;
        uint32_t nameLength;
        uint32_t textBegin;
        uint32_t textLength;
        // One of the numbers below, or the place in nodes_ of a node that holds elements.
        uint32_t content;
    };
    // A text.
    static constexpr uint32_t kText = UINT32_MAX;
    // Elements, which were scanned.
    static constexpr uint32_t kScannedElements = UINT32_MAX - 1;
    // The markup of a text, which MSXML alone can decode.
    static constexpr uint32_t kTextMarkup = UINT32_MAX - 2;

    void Add(const msxml::Node& node, const ElementName& name, int depth);
    // Whether there is an element among the siblings, in whatever namespace.
    bool AddSiblings(msxml::Node first, int depth);
    void SetText(size_t number, std::wstring_view text);
    void Add(PlainMarkup& markup);
    bool AddChildren(PlainMarkup& markup);
    void SetText(size_t number, const PlainMarkup& markup);
    std::wstring_view TextOfMarkup(std::wstring_view markup) const;
    std::optional<NamespaceNumber> NamespaceOf(const msxml::Node& node);
    std::wstring_view Characters(size_t begin, size_t length) const {
        return std::wstring_view(characters_).substr(begin, length);
    }

    std::vector<Element> elements_;
    std::wstring characters_;
    std::vector<msxml::Node> nodes_;
    // The namespace of the element before, which is mostly that of the next one too.
    NamespaceNumber lastNamespace_ = 0;
    // Texts that MSXML was asked for, of those few elements that need it.
    mutable std::deque<platform::OutText> askedTexts_;
};

}  // namespace lejis
