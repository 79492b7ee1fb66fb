// The floor of writing: the same tree, built and turned into text by bare calls into MSXML.
#pragma once

#include "platform/msxml/MsXml.h"

#include <comutil.h>

#include <string>
#include <vector>

namespace benchmarks {

class BareTree {
public:
    // Takes down what the element holds, its texts ready for the calls.
    explicit BareTree(const msxml::Element& root);

    // Builds the tree in a new document with createNode, put_text and appendChild, and takes its text.
    size_t BuildAndSerialize() const;

    size_t ElementCount() const { return nodes_.size(); }

private:
    struct Attribute {
        _bstr_t name;
        _bstr_t namespaceUri;
        _bstr_t value;
    };
    struct Node {
        size_t depth;
        _bstr_t name;
        _bstr_t namespaceUri;
        _bstr_t text;
        std::vector<Attribute> attributes;
    };

    void TakeDown(const msxml::Element& element, size_t depth);

    // In document order.
    std::vector<Node> nodes_;
};

}  // namespace benchmarks
