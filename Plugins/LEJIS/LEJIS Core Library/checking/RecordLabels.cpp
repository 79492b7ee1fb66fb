#include "checking/RecordLabels.h"

#include "platform/Text.h"

namespace lejis {
namespace {

std::wstring InParentheses(const platform::TextArgument& text) {
    return text.View().empty() ? std::wstring() : platform::Join({L" (", text.View(), L")"});
}

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

}  // namespace lejis
