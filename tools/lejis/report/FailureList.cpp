#include "report/FailureList.h"

#include "text/Layout.h"

#include <algorithm>

namespace lejis_client {
namespace {

constexpr wchar_t kBullet = L'!';
constexpr wchar_t kIndent[] = L"      ";

}  // namespace

void FailureList::Add(const std::wstring& outcome, const std::wstring& message, const std::wstring& name) {
    names_[{outcome, message}].push_back(name);
}

std::vector<FailureList::Group> FailureList::Groups() const {
    std::vector<Group> groups(names_.begin(), names_.end());
    std::stable_sort(groups.begin(), groups.end(),
                     [](const Group& one, const Group& other) { return one.second.size() > other.second.size(); });
    return groups;
}

std::wstring FailureList::Text() const {
    std::wstring text;
    for (const auto& [reason, names] : Groups()) {
        text += ListItem(kBullet, std::to_wstring(names.size()) + L' ' + reason.first + L": " + reason.second);
        for (const std::wstring& name : names) text += kIndent + name + L'\n';
    }
    return text;
}

}  // namespace lejis_client
