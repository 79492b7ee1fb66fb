#include "files/UnreadName.h"

#include "text/Layout.h"
#include "text/NearestName.h"

namespace lejis_client {
namespace {

// More places than these tell nothing.
constexpr std::size_t kMostPlaces = 3;

std::wstring NamesOf(const std::vector<const FormatNode*>& nodes) {
    std::vector<std::wstring_view> names;
    for (const FormatNode* node : nodes) names.push_back(node->name.qualified);
    return Enumerated(names);
}

const FormatNode* NearestOf(const WrittenName& name, const std::vector<const FormatNode*>& expected) {
    std::vector<std::wstring_view> names;
    for (const FormatNode* node : expected) names.push_back(node->name.local);
    const auto place = NearestName(name.local, names);
    return place ? expected[*place] : nullptr;
}

}  // namespace

std::wstring WhyUnread(const WrittenName& name, const std::vector<const FormatNode*>& expected) {
    const auto parents = ParentsOf(name.space, name.local);
    if (parents.size() > kMostPlaces) return L" is not read here.";
    if (!parents.empty()) return L" is not read here, only in " + NamesOf(parents) + L".";
    const FormatNode* const nearest = NearestOf(name, expected);
    if (!nearest) return L" is not read.";
    if (nearest->name.qualified == name.qualified) {
        return L" is not read: its namespace is '" + std::wstring(name.space) + L"', not '" +
               std::wstring(nearest->name.space) + L"'.";
    }
    return L" is not read; did you mean " + std::wstring(nearest->name.qualified) + L"?";
}

}  // namespace lejis_client
