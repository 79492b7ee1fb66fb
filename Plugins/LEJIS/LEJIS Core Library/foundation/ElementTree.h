#pragma once

#include "foundation/ElementName.h"
#include "platform/msxml/MsXml.h"
#include "platform/OutText.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lejis {

// An element and the elements in it, taken from MSXML in one walk over its nodes in document order. MSXML makes an
// object for each node that it is asked for and has its nodes in memory in this order; a query for each field costs
// sixty times as much.
class ElementTree {
public:
    // Raises when elements are nested too deep in the root.
    explicit ElementTree(const msxml::Node& root);
    ElementTree(const ElementTree&) = delete;
    ElementTree& operator=(const ElementTree&) = delete;

    // Elements are numbered in document order from the root, which is 0. Those in no namespace of Constants are left
    // out, with all that is in them.
    bool HasName(size_t number, const ElementName& name) const;
    // The number behind those of the element and of all that are in it.
    size_t EndOf(size_t number) const { return elements_[number].end; }
    // As MSXML gives it, with the texts of all descendants. Valid as long as the tree.
    std::wstring_view TextOf(size_t number) const;

private:
    struct Element {
        // That of its name.
        uint32_t key;
        uint32_t end;
        // Where its local name and its text stand in characters_.
        uint32_t nameBegin;
        uint32_t nameLength;
        uint32_t textBegin;
        uint32_t textLength;
        // Where an element that holds elements stands in parents_; kNone for one that has a text.
        uint32_t parent;
    };
    static constexpr uint32_t kNone = UINT32_MAX;

    void Add(const msxml::Node& node, const ElementName& name, int depth);
    // Whether there is an element among the siblings, in whatever namespace.
    bool AddSiblings(msxml::Node first, int depth);
    void SetText(size_t number, std::wstring_view text);
    std::optional<NamespaceNumber> NamespaceOf(const msxml::Node& node);
    std::wstring_view Characters(size_t begin, size_t length) const;

    std::vector<Element> elements_;
    std::wstring characters_;
    std::vector<msxml::Node> parents_;
    // Of the element before: mostly that of the next.
    NamespaceNumber lastNamespace_ = 0;
    // Texts of parents, for those few that are asked for.
    mutable std::deque<platform::OutText> textsOfParents_;
};

}  // namespace lejis
