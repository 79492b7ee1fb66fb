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

}  // namespace

void TakeEnvironment(CommandLine& commandLine, GivenOptions& given) {
    for (const Option* option : OptionsOf(commandLine.command->action)) {
        if (!option->variable || given.contains(option)) continue;
        const auto value = ValueOf(option->variable);
        if (!value) continue;
        Take(commandLine, *option, *value);
        given.insert(option);
    }
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
