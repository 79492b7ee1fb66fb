#include "checking/RecordLabels.h"

#include "platform/Text.h"

namespace lejis {
namespace {

std::wstring InParentheses(const std::wstring& text) { return text.empty() ? std::wstring() : L" (" + text + L")"; }

}  // namespace

std::wstring LabelOf(const LejisPersonIndexCard& person) {
    const std::wstring afterMiddleName = person.MiddleName.empty() ? L"" : L" ";
    return person.GivenName + L" " + person.MiddleName + afterMiddleName + person.SurName +
           InParentheses(platform::ProperCase(person.Involvement));
}

std::wstring LabelOf(const LejisPropertyIndexCard& property) {
    const std::wstring label = property.Make + L" " + property.Model + InParentheses(property.SerialID);
    return std::wstring(platform::TrimBlanks(label));
}

std::wstring LabelOf(const LejisVehicleIndexCard& vehicle) {
    return L"Vehicle " + vehicle.Color + L" " + vehicle.Make + L" " + vehicle.Model + L"  ";
}

std::wstring Labelled(const std::wstring& label, const std::wstring& message) { return label + L": " + message; }

}  // namespace lejis
