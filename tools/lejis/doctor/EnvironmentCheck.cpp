#include "doctor/EnvironmentCheck.h"

#include "text/Layout.h"

namespace lejis_client {
namespace {

// Who takes the value.
std::wstring UseOf(const Variable& variable) {
    const std::wstring option = variable.option;
    switch (variable.use) {
        case Variable::Use::kTaken:
            return L"used because " + option + L" is not given";
        case Variable::Use::kOverridden:
            return L"not used because " + option + L" is given";
        case Variable::Use::kByOthers:
            break;
    }
    return L"not for the doctor; other commands use it where " + option + L" is not given";
}

}  // namespace

void CheckEnvironment(const std::vector<Variable>& variables, Diagnosis& diagnosis) {
    std::vector<std::wstring_view> missing;
    for (const Variable& variable : variables) {
        if (variable.value) {
            diagnosis.Add({variable.name, Health::kOk, *variable.value + L" (" + UseOf(variable) + L")", {}});
        } else {
            missing.push_back(variable.name);
        }
    }
    if (missing.empty()) return;
    const wchar_t* const verb = missing.size() == 1 ? L" is not set" : L" are not set";
    diagnosis.Add({L"Environment", Health::kOk, Enumerated(missing) + verb, {}});
}

}  // namespace lejis_client
