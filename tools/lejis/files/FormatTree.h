// The table of the incident format as the tree of elements that it describes.
#pragma once

#include "files/FormatName.h"
#include "files/IncidentFormat.h"

#include <list>
#include <memory>
#include <string_view>
#include <vector>

namespace lejis_client {

// An element of the format in its place.
struct FormatNode {
    FormatName name;
    // Null for an element that stands in paths only.
    const FormatRow* row = nullptr;
    // Null for an element that holds a value. Places of the same section share them.
    std::shared_ptr<std::list<FormatNode>> children = nullptr;

    // Null when the library reads no such element there.
    const FormatNode* Child(std::wstring_view space, std::wstring_view local) const;
};

// The root of an incident file. The tree is made at the first call and never changes.
const FormatNode& IncidentTree();

// The elements in which the library reads one of this name.
std::vector<const FormatNode*> ParentsOf(std::wstring_view space, std::wstring_view local);

}  // namespace lejis_client
