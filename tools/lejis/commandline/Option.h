// The options of the program, one row each: reading a command line, the help, "did you mean" and the shells' completion
// come from these rows.
#pragma once

#include "commandline/Command.h"

#include <span>
#include <string>

namespace lejis_client {

struct CommandLine;

struct Option {
    const wchar_t* name;
    // A short name, or another spelling; null where there is none.
    const wchar_t* otherName;
    // What stands for its value in the help; null for a switch, which takes none.
    const wchar_t* value;
    // The bits of those that take it.
    unsigned actions;
    // Writes the value down. Says what is wrong with it; empty when nothing is.
    std::wstring (*take)(CommandLine& commandLine, const std::wstring& value);
    // A short sentence without its full stop, in ASCII.
    const wchar_t* help;
    // What of the incidents it searches for; null for an option that is no criterion.
    const wchar_t* criterion = nullptr;
    // The variable of the environment that stands in for it; null where there is none.
    const wchar_t* variable = nullptr;
    bool isRequired = false;
    bool mayRepeat = false;

    bool BelongsTo(Action action) const { return (actions & action) != 0; }
    bool IsCalled(std::wstring_view text) const { return name == text || (otherName && otherName == text); }
};

inline constexpr std::wstring_view kLongPrefix = L"--";
inline constexpr wchar_t kJsonOption[] = L"--json";

std::span<const Option> Options();

std::vector<const Option*> OptionsOf(Action action);

// Null when the action takes no such option.
const Option* FindOption(Action action, std::wstring_view name);

}  // namespace lejis_client
