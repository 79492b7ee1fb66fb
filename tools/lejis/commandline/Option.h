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
    // A short name, or another spelling; may be null.
    const wchar_t* otherName;
    // The help's name for its value; null for a switch, which takes no value.
    const wchar_t* value;
    // The bits of the actions that take it.
    unsigned actions;
    // Stores the value. Returns what is wrong with it, or an empty text.
    std::wstring (*take)(CommandLine& commandLine, const std::wstring& value);
    // A short sentence without its full stop, in ASCII.
    const wchar_t* help;
    // What of the incidents it searches for; null for an option that is not a criterion.
    const wchar_t* criterion = nullptr;
    // The variable of the environment that replaces it; may be null.
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
