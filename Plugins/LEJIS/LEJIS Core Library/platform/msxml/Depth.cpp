#include "platform/msxml/Depth.h"

#include "platform/ComError.h"
#include "platform/msxml/Node.h"

#include <string>

namespace msxml {
namespace {

// The elements that are too deep. MSXML finds them level by level, so its stack does not grow with the tree, and in a
// small part of the time that a walk from here would take.
std::wstring TooDeep() {
    std::wstring path = L".";
    for (int level = 0; level < kMaximumDepth; ++level) path += L"/*";
    return path;
}

}  // namespace

void RaiseTooDeep() {
    throw platform::ComError(E_INVALIDARG,
                             L"The XML is nested too deep: " + std::to_wstring(kMaximumDepth) + L" levels or more");
}

void RequireBoundedDepth(const Node& node) {
    static const std::wstring tooDeep = TooDeep();
    if (SelectNode(node, tooDeep)) RaiseTooDeep();
}

}  // namespace msxml
