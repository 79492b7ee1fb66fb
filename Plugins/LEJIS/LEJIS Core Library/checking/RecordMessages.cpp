#include "checking/RecordMessages.h"

#include "platform/Text.h"

namespace lejis {
namespace {

std::wstring InParentheses(const platform::TextArgument& text) {
    return text.View().empty() ? std::wstring() : platform::Join({L" (", text.View(), L")"});
}

constexpr size_t kLongestCaveat = 200;

}  // namespace

std::wstring LabelOf(const LejisPersonIndexCard& person) {
    const std::wstring_view afterMiddleName = person.MiddleName.empty() ? L"" : L" ";
    const std::wstring involvement = platform::ProperCase(person.Involvement);
    return platform::Join(
        {person.GivenName, L" ", person.MiddleName, afterMiddleName, person.SurName, InParentheses(involvement)});
}

std::wstring LabelOf(const LejisPropertyIndexCard& property) {
    const std::wstring label = platform::Join({property.Make, L" ", property.Model, InParentheses(property.SerialID)});
    return std::wstring(platform::TrimBlanks(label));
}

std::wstring LabelOf(const LejisVehicleIndexCard& vehicle) {
    return platform::Join({L"Vehicle ", vehicle.Color, L" ", vehicle.Make, L" ", vehicle.Model, L"  "});
}

std::wstring Labelled(const std::wstring& label, const std::wstring& message) { return label + L": " + message; }

std::optional<std::wstring> CautionCaveatMessage(const LejisPersonIndexCard& person) {
    const std::wstring caveat = person.SubjectCautionInformationCaveat;
    if (caveat.size() <= kLongestCaveat) return std::nullopt;
    return platform::Join({L"Caution information cannot be more than 200 characters. '", caveat, L"' is ",
                           std::to_wstring(caveat.size()), L" characters long."});
}

}  // namespace lejis
