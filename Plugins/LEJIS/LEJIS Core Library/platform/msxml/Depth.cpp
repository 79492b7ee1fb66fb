#include "platform/msxml/Depth.h"

#include "platform/host/SuiteHost.h"
#include "platform/InText.h"
#include "platform/msxml/Node.h"

#include <string>
#include <vector>

namespace msxml {
namespace {

// The path of the elements that are too deep. MSXML finds them level by level, so its stack does not grow with the
// tree, and in a small part of the time that a walk from here would take.
std::wstring TooDeep() {
    std::wstring path = L".";
    for (int level = 0; level < kMaximumDepth; ++level) path += L"/*";
    return path;
}

// The node or the first element behind it; null when there is none.
Node ElementFrom(Node node) {
    while (node && TypeOf(node) != NODE_ELEMENT) node = NextSibling(node);
    return node;
}

// The same by a walk that does not call itself, so the thread's stack does not grow with the tree either.
bool IsTooDeepByWalk(const Node& node) {
    std::vector<Node> way = {ElementFrom(FirstChild(node))};
    while (!way.empty()) {
        if (way.size() == kMaximumDepth && way.back()) return true;
        if (way.back()) {
            way.push_back(ElementFrom(FirstChild(way.back())));
        } else {
            way.pop_back();
            if (!way.empty()) way.back() = ElementFrom(NextSibling(way.back()));
        }
    }
    return false;
}

bool IsTooDeep(const Node& node) {
    static const std::wstring tooDeep = TooDeep();
    Node found;
    if (SUCCEEDED(node->selectSingleNode(platform::InText(tooDeep), found.GetAddressOf()))) return found != nullptr;
    // An MSXML may refuse a path of so many steps.
    SetErrorInfo(0, nullptr);
    return IsTooDeepByWalk(node);
}

}  // namespace

void RaiseTooDeep() {
    throw platform::host::InvalidArgument(L"The XML is nested too deep: " + std::to_wstring(kMaximumDepth) +
                                          L" levels or more");
}

void RequireBoundedDepth(const Node& node) {
    if (IsTooDeep(node)) RaiseTooDeep();
}

}  // namespace msxml
