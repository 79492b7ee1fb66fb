#include "commandline/DidYouMean.h"

#include "commandline/Option.h"
#include "text/NearestName.h"

namespace lejis_client {
namespace {

std::wstring DidYouMean(std::wstring_view written, const std::vector<std::wstring_view>& names,
                        std::wstring_view prefix) {
    const auto nearest = NearestName(written, names);
    return nearest ? L"; did you mean " + std::wstring(prefix) + std::wstring(names[*nearest]) + L"?" : L"";
}

}  // namespace

std::wstring CommandThatWasMeant(std::wstring_view written) { return DidYouMean(written, CommandNames(), {}); }

// The comparison leaves out the leading hyphens, which would make all options look alike.
std::wstring OptionThatWasMeant(std::wstring_view written, Action action) {
    if (!written.starts_with(kLongPrefix)) return {};
    std::vector<std::wstring_view> names;
    for (const Option* option : OptionsOf(action)) {
        names.push_back(std::wstring_view(option->name).substr(kLongPrefix.size()));
    }
    return DidYouMean(written.substr(kLongPrefix.size()), names, kLongPrefix);
}

}  // namespace lejis_client
