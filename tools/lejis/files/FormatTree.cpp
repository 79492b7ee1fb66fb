#include "files/FormatTree.h"

#include <algorithm>
#include <map>

namespace lejis_client {
namespace {

using Children = std::shared_ptr<std::list<FormatNode>>;

class TreeMaker {
public:
    Children ChildrenOf(const FormatSection& section) {
        Children& children = sections_[&section];
        if (children) return children;
        children = std::make_shared<std::list<FormatNode>>();
        for (const FormatRow& row : section.rows) Add(*children, row, row.path);
        return children;
    }

private:
    void Add(std::list<FormatNode>& siblings, const FormatRow& row, std::wstring_view path) {
        const std::size_t slash = path.find(L'/');
        FormatNode& node = NodeOf(siblings, path.substr(0, slash));
        if (slash == std::wstring_view::npos) {
            node.row = &row;
            if (row.section) node.children = ChildrenOf(*row.section);
        } else {
            if (!node.children) node.children = std::make_shared<std::list<FormatNode>>();
            Add(*node.children, row, path.substr(slash + 1));
        }
    }

    static FormatNode& NodeOf(std::list<FormatNode>& siblings, std::wstring_view name) {
        const auto found =
            std::ranges::find(siblings, name, [](const FormatNode& node) { return node.name.qualified; });
        return found == siblings.end() ? siblings.emplace_back(FormatNode{.name = FormatName(name)}) : *found;
    }

    std::map<const FormatSection*, Children> sections_;
};

void AddParents(std::vector<const FormatNode*>& parents, const FormatNode& node, std::wstring_view space,
                std::wstring_view local) {
    if (!node.children) return;
    const bool isKnown = std::ranges::find(parents, &node) != parents.end();
    if (!isKnown && node.Child(space, local)) parents.push_back(&node);
    for (const FormatNode& child : *node.children) AddParents(parents, child, space, local);
}

}  // namespace

const FormatNode* FormatNode::Child(std::wstring_view space, std::wstring_view local) const {
    if (!children) return nullptr;
    const auto found =
        std::ranges::find_if(*children, [&](const FormatNode& child) { return child.name.Is(space, local); });
    return found == children->end() ? nullptr : &*found;
}

const FormatNode& IncidentTree() {
    static const FormatNode root{FormatName(kIncidentElement), nullptr, TreeMaker().ChildrenOf(IncidentSection())};
    return root;
}

std::vector<const FormatNode*> ParentsOf(std::wstring_view space, std::wstring_view local) {
    std::vector<const FormatNode*> parents;
    AddParents(parents, IncidentTree(), space, local);
    return parents;
}

}  // namespace lejis_client
