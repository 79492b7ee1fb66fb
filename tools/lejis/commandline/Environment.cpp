#include "commandline/Environment.h"

#include "commandline/UsageError.h"

#include <windows.h>

#include <algorithm>

namespace lejis_client {
namespace {

// An empty one counts as none.
std::optional<std::wstring> ValueOf(const wchar_t* variable) {
    std::wstring value(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size())));
    return value.empty() ? std::nullopt : std::optional(value);
}

void Take(CommandLine& commandLine, const Option& option, const std::wstring& value) {
    const std::wstring complaint = option.take(commandLine, value);
    if (!complaint.empty()) throw UsageError{option.variable + (L": " + complaint), commandLine.command->name};
}

// The action's own option when it has one, else the first option of this variable.
const Option* OptionWith(std::wstring_view variable, Action action) {
    const Option* found = nullptr;
    for (const Option& option : Options()) {
        if (!option.variable || option.variable != variable) continue;
        if (option.BelongsTo(action)) return &option;
        if (!found) found = &option;
    }
    return found;
}

}  // namespace

std::vector<Variable> TakeEnvironment(CommandLine& commandLine, GivenOptions& given) {
    const Action action = commandLine.command->action;
    std::vector<Variable> variables;
    for (const std::wstring_view name : VariableNames()) {
        const Option* const option = OptionWith(name, action);
        Variable variable = {option->variable, option->name, ValueOf(option->variable), Variable::Use::kByOthers};
        if (option->BelongsTo(action)) {
            variable.use = given.contains(option) ? Variable::Use::kOverridden : Variable::Use::kTaken;
        }
        if (variable.value && variable.use == Variable::Use::kTaken) {
            Take(commandLine, *option, *variable.value);
            given.insert(option);
        }
        variables.push_back(std::move(variable));
    }
    return variables;
}

std::vector<std::wstring_view> VariableNames() {
    std::vector<std::wstring_view> names;
    for (const Option& option : Options()) {
        if (option.variable && std::ranges::find(names, option.variable) == names.end()) {
            names.push_back(option.variable);
        }
    }
    return names;
}

}  // namespace lejis_client
